// SPDX-License-Identifier: GPL-3.0-or-later
#include "picture_index.h"

#include <platform/containers/tiff_directory.h>

namespace brenvaldo::platform::metadata {

using containers::ByteOrder;

namespace {

constexpr std::uint16_t entriesTag = 0xB002;
constexpr qsizetype entryLength = 16;
constexpr qsizetype sizePlace = 4;
constexpr qsizetype offsetPlace = 8;

std::uint64_t numberAt(const QByteArray& bytes, qsizetype place, ByteOrder order)
{
    return containers::unsignedAt(bytes, static_cast<std::uint64_t>(place), 4, order).value_or(0);
}

void add(QByteArray& bytes, qsizetype place, qint64 difference, ByteOrder order)
{
    QByteArray number;
    containers::appendUnsigned(
        number, numberAt(bytes, place, order) + static_cast<std::uint64_t>(difference), 4, order
    );
    bytes.replace(place, number.size(), number);
}

} // namespace

QByteArray movedPictureIndex(QByteArrayView index, const PictureMove& move)
{
    QByteArray result = index.toByteArray();
    const auto file = containers::TiffFile::open(index);
    const containers::TiffDirectory directory
        = file ? file->firstDirectory() : containers::TiffDirectory();
    const containers::TiffField* entries = containers::fieldOf(directory, entriesTag);
    if (!entries)
        return result;
    const auto start = static_cast<qsizetype>(entries->valueOffset);
    const qsizetype end = start + entries->value.size();
    for (qsizetype entry = start; entry + entryLength <= end; entry += entryLength) {
        // The first picture is the one that the index stands in.
        if (numberAt(result, entry + offsetPlace, file->order()) == 0)
            add(result, entry + sizePlace, move.growth, file->order());
        else
            add(result, entry + offsetPlace, move.shift, file->order());
    }
    return result;
}

} // namespace brenvaldo::platform::metadata
