// SPDX-License-Identifier: GPL-3.0-or-later
#include "bytes.h"

namespace brenvaldo::platform::containers {

std::optional<QByteArrayView>
sliceOf(QByteArrayView bytes, std::uint64_t offset, std::uint64_t length)
{
    const auto size = static_cast<std::uint64_t>(bytes.size());
    if (offset > size || length > size - offset)
        return std::nullopt;
    return bytes.sliced(static_cast<qsizetype>(offset), static_cast<qsizetype>(length));
}

QByteArrayView tailOf(QByteArrayView bytes, std::uint64_t offset)
{
    if (offset >= static_cast<std::uint64_t>(bytes.size()))
        return {};
    return bytes.sliced(static_cast<qsizetype>(offset));
}

QByteArray viewed(QByteArrayView bytes)
{
    return QByteArray::fromRawData(bytes.data(), bytes.size());
}

std::optional<std::uint64_t>
unsignedAt(QByteArrayView bytes, std::uint64_t offset, int width, ByteOrder order)
{
    const auto field = sliceOf(bytes, offset, static_cast<std::uint64_t>(width));
    if (!field)
        return std::nullopt;
    std::uint64_t value = 0;
    for (int i = 0; i < width; ++i) {
        const int index = order == ByteOrder::Big ? i : width - 1 - i;
        value = (value << 8U) | static_cast<std::uint8_t>(field->at(index));
    }
    return value;
}

void appendUnsigned(QByteArray& bytes, std::uint64_t value, int width, ByteOrder order)
{
    for (int i = 0; i < width; ++i) {
        const int index = order == ByteOrder::Big ? width - 1 - i : i;
        bytes.append(static_cast<char>((value >> (8U * static_cast<unsigned>(index))) & 0xFFU));
    }
}

} // namespace brenvaldo::platform::containers
