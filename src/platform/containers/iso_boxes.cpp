// SPDX-License-Identifier: GPL-3.0-or-later
#include "iso_boxes.h"

#include "bytes.h"

namespace brenvaldo::platform::containers {

namespace {

constexpr std::uint64_t toTheEnd = 0;
constexpr std::uint64_t lengthFollows = 1;

} // namespace

QList<IsoBox> isoBoxes(QByteArrayView bytes)
{
    QList<IsoBox> boxes;
    std::uint64_t offset = 0;
    while (const auto shortLength = unsignedAt(bytes, offset, 4, ByteOrder::Big)) {
        std::uint64_t length = *shortLength;
        std::uint64_t headLength = 8;
        if (length == lengthFollows) {
            length = unsignedAt(bytes, offset + 8, 8, ByteOrder::Big).value_or(0);
            headLength = 16;
        } else if (length == toTheEnd) {
            length = static_cast<std::uint64_t>(bytes.size()) - offset;
        }
        const auto whole = sliceOf(bytes, offset, length);
        if (!whole || length < headLength)
            break;
        boxes.append(
            {.type = whole->sliced(4, 4), .payload = tailOf(*whole, headLength), .whole = *whole}
        );
        offset += length;
    }
    return boxes;
}

QByteArrayView isoBox(const QList<IsoBox>& boxes, QByteArrayView type)
{
    for (const IsoBox& box : boxes) {
        if (box.type == type)
            return box.payload;
    }
    return {};
}

QByteArray isoBoxOf(QByteArrayView type, QByteArrayView payload)
{
    QByteArray box;
    appendUnsigned(box, static_cast<std::uint64_t>(payload.size()) + 8, 4, ByteOrder::Big);
    return box.append(type).append(payload);
}

QByteArray exifBehindOffset(QByteArrayView item)
{
    const auto offset = unsignedAt(item, 0, 4, ByteOrder::Big);
    return offset ? tailOf(item, 4 + *offset).toByteArray() : QByteArray();
}

} // namespace brenvaldo::platform::containers
