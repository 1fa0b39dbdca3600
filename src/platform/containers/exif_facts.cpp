// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_facts.h"

#include "tiff_numbers.h"

#include <platform/foundation/inches.h>

#include <cmath>

namespace brenvaldo::platform::containers {

namespace {

constexpr std::uint64_t perInch = 2;
constexpr std::uint64_t perCentimetre = 3;

/// The first number of the field; nothing when the directory has no such field.
std::optional<double> numberOf(const TiffDirectory& directory, std::uint16_t tag, ByteOrder order)
{
    const TiffField* field = fieldOf(directory, tag);
    return field ? firstNumber(*field, order) : std::nullopt;
}

int orientationOf(const TiffDirectory& image, ByteOrder order)
{
    const double stated = numberOf(image, tiff::Orientation, order).value_or(1);
    return stated >= 1 && stated <= 8 ? static_cast<int>(stated) : 1;
}

std::optional<double> dotsPerInch(const TiffDirectory& image, ByteOrder order)
{
    const auto resolution = numberOf(image, tiff::HorizontalResolution, order);
    if (!resolution || *resolution <= 0)
        return std::nullopt;
    const bool isMetric = numberOf(image, tiff::ResolutionUnit, order) == perCentimetre;
    return isMetric ? *resolution * centimetresPerInch : *resolution;
}

QByteArray thumbnailOf(const TiffFile& file, QByteArrayView block)
{
    const TiffDirectory directory = file.secondDirectory();
    const auto offset = numberOf(directory, tiff::ThumbnailOffset, file.order());
    const auto length = numberOf(directory, tiff::ThumbnailLength, file.order());
    if (offset.value_or(-1) < 0 || length.value_or(-1) < 0)
        return {};
    const auto thumbnail
        = sliceOf(block, static_cast<std::uint64_t>(*offset), static_cast<std::uint64_t>(*length));
    return thumbnail ? thumbnail->toByteArray() : QByteArray();
}

TiffField rationalField(std::uint16_t tag, std::uint64_t numerator, std::uint64_t denominator)
{
    TiffField field{.tag = tag, .type = tiff::Rational};
    appendUnsigned(field.value, numerator, 4, ByteOrder::Big);
    appendUnsigned(field.value, denominator, 4, ByteOrder::Big);
    return field;
}

} // namespace

ExifFacts readExifFacts(QByteArrayView block)
{
    const auto file = TiffFile::open(block);
    if (!file)
        return {};
    const TiffDirectory image = file->firstDirectory();
    return {
        .orientation = orientationOf(image, file->order()),
        .dotsPerInch = dotsPerInch(image, file->order()),
        .thumbnail = thumbnailOf(*file, block)};
}

QByteArray exifOfResolution(double dotsPerInch)
{
    constexpr std::uint64_t denominator = 1000;
    const auto numerator = static_cast<std::uint64_t>(std::lround(dotsPerInch * denominator));
    TiffField unit{.tag = tiff::ResolutionUnit, .type = tiff::Short};
    appendUnsigned(unit.value, perInch, 2, ByteOrder::Big);
    const TiffDirectory image{
        rationalField(tiff::HorizontalResolution, numerator, denominator),
        rationalField(tiff::VerticalResolution, numerator, denominator),
        unit};
    return tiffHeader(ByteOrder::Big, tiffHeaderLength)
        + serializedDirectory(image, tiffHeaderLength, ByteOrder::Big);
}

} // namespace brenvaldo::platform::containers
