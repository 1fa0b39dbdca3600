// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiff_numbers.h"

#include <bit>
#include <cmath>

namespace brenvaldo::platform::containers {

namespace {

std::optional<TiffNumber> finite(double value)
{
    return std::isfinite(value) ? std::optional<TiffNumber>(value) : std::nullopt;
}

/// Numerator by denominator, 32 bits each.
std::optional<TiffNumber> ratio(std::uint64_t numerator, std::uint64_t denominator, bool isSigned)
{
    const auto above = static_cast<std::uint32_t>(numerator);
    const auto below = static_cast<std::uint32_t>(denominator);
    if (below == 0)
        return std::nullopt;
    if (!isSigned)
        return static_cast<double>(above) / below;
    return static_cast<double>(static_cast<std::int32_t>(above)) / static_cast<std::int32_t>(below);
}

} // namespace

std::optional<TiffNumber>
tiffNumberAt(const TiffField& field, std::uint64_t offset, ByteOrder order)
{
    const auto raw = unsignedAt(field.value, offset, tiffTypeWidth(field.type), order);
    if (!raw)
        return std::nullopt;
    switch (field.type) {
    case tiff::Rational:
    case tiff::SignedRational:
        return ratio(
            unsignedAt(field.value, offset, 4, order).value_or(0),
            unsignedAt(field.value, offset + 4, 4, order).value_or(0),
            field.type == tiff::SignedRational
        );
    case tiff::SignedByte:
        return qint64{static_cast<std::int8_t>(*raw)};
    case tiff::SignedShort:
        return qint64{static_cast<std::int16_t>(*raw)};
    case tiff::SignedLong:
        return qint64{static_cast<std::int32_t>(*raw)};
    case tiff::Float:
        return finite(std::bit_cast<float>(static_cast<std::uint32_t>(*raw)));
    case tiff::Double:
        return finite(std::bit_cast<double>(*raw));
    default:
        return static_cast<qint64>(*raw);
    }
}

std::optional<double> firstNumber(const TiffField& field, ByteOrder order)
{
    const auto number = field.type == tiff::Ascii ? std::nullopt : tiffNumberAt(field, 0, order);
    if (!number)
        return std::nullopt;
    return std::visit([](auto value) { return static_cast<double>(value); }, *number);
}

} // namespace brenvaldo::platform::containers
