// SPDX-License-Identifier: GPL-3.0-or-later
#include "heif_items.h"

#include <platform/containers/bytes.h>
#include <platform/containers/iso_boxes.h>

#include <algorithm>

namespace brenvaldo::platform::metadata {

using containers::IsoBox;
using containers::isoBoxes;
using containers::tailOf;

namespace {

std::optional<HeifItem> itemOf(QByteArrayView info)
{
    const std::uint64_t version = heifNumberAt(info, 0, 1);
    if (version < 2 || version > 3)
        return std::nullopt;
    const int idWidth = version == 2 ? 2 : 4;
    const auto typeOffset = static_cast<std::uint64_t>(idWidth) + 6;
    const auto type = containers::sliceOf(info, typeOffset, 4);
    if (!type)
        return std::nullopt;
    HeifItem item{.id = heifNumberAt(info, 4, idWidth), .type = type->toByteArray()};
    if (item.type != "mime")
        return item;
    const QByteArrayView name = tailOf(info, typeOffset + 4);
    const qsizetype nameEnd = name.indexOf('\0');
    const QByteArrayView contentType = nameEnd < 0 ? QByteArrayView() : name.sliced(nameEnd + 1);
    const qsizetype end = contentType.indexOf('\0');
    item.type = (end < 0 ? contentType : contentType.first(end)).toByteArray();
    return item;
}

QList<HeifItem> itemsOf(QByteArrayView information)
{
    const int countWidth = heifNumberAt(information, 0, 1) == 0 ? 2 : 4;
    QList<HeifItem> items;
    for (const IsoBox& box :
         isoBoxes(tailOf(information, static_cast<std::uint64_t>(countWidth) + 4))) {
        if (box.type != QByteArrayView("infe"))
            continue;
        if (const auto item = itemOf(box.payload))
            items.append(*item);
    }
    return items;
}

/// The items that describe item `primary`.
QSet<HeifItemId> descriptionsOf(QByteArrayView references, HeifItemId primary)
{
    const int idWidth = heifNumberAt(references, 0, 1) == 0 ? 2 : 4;
    const auto step = static_cast<std::uint64_t>(idWidth);
    QSet<HeifItemId> ids;
    for (const IsoBox& box : isoBoxes(tailOf(references, 4))) {
        if (box.type != QByteArrayView("cdsc"))
            continue;
        const std::uint64_t count = heifNumberAt(box.payload, step, 2);
        for (std::uint64_t i = 0; i < count; ++i) {
            const auto to = containers::unsignedAt(
                box.payload, step + 2 + i * step, idWidth, containers::ByteOrder::Big
            );
            if (!to)
                break;
            if (*to == primary)
                ids.insert(heifNumberAt(box.payload, 0, idWidth));
        }
    }
    return ids;
}

} // namespace

std::uint64_t heifNumberAt(QByteArrayView bytes, std::uint64_t offset, int width)
{
    return containers::unsignedAt(bytes, offset, width, containers::ByteOrder::Big).value_or(0);
}

HeifItemId primaryHeifItem(QByteArrayView primaryBox)
{
    return heifNumberAt(primaryBox, 4, heifNumberAt(primaryBox, 0, 1) == 0 ? 2 : 4);
}

QList<HeifItem> heifItems(QByteArrayView information, QByteArrayView references, HeifItemId primary)
{
    QList<HeifItem> items = itemsOf(information);
    const QSet<HeifItemId> ids = descriptionsOf(references, primary);
    std::stable_partition(items.begin(), items.end(), [&ids](const HeifItem& item) {
        return ids.contains(item.id);
    });
    return items;
}

} // namespace brenvaldo::platform::metadata
