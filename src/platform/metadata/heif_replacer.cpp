// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_edit.h"
#include "block_readers.h"
#include "block_replacers.h"
#include "exif_root_fields.h"
#include "heif_locations.h"
#include "tiff_blocks.h"

#include <platform/containers/bytes.h>
#include <platform/containers/iso_boxes.h>

#include <algorithm>
#include <limits>

namespace brenvaldo::platform::metadata {

namespace tiff = containers::tiff;
using containers::appendUnsigned;
using containers::ByteOrder;
using containers::IsoBox;
using containers::isoBox;
using containers::isoBoxOf;
using containers::MetadataBlocks;
using containers::viewed;

namespace {

constexpr qsizetype fullBoxHead = 4; // version and flags
constexpr std::uint64_t greatestId = std::numeric_limits<std::uint16_t>::max();

/// A piece of metadata that comes to stand in the file.
struct Payload
{
    QByteArray type; ///< "Exif", or the content type of a "mime" item
    QByteArray bytes;
    HeifItemId id = 0;
    bool isNew = false;
};

QList<Payload> payloadsOf(const MetadataBlocks& before, const MetadataBlocks& after)
{
    QList<Payload> payloads;
    const bool isExifChanged
        = after.exif != before.exif || (!before.iptc.isEmpty() && after.iptc != before.iptc);
    if (isExifChanged) {
        containers::TiffDirectory fields;
        if (!before.iptc.isEmpty())
            setBlock(fields, tiff::Iptc, after.iptc);
        if (!before.photoshop.isEmpty())
            setBlock(fields, tiff::PhotoshopResources, after.photoshop);
        const QByteArray offset(4, '\0'); // of the block behind it
        payloads.append({.type = "Exif", .bytes = offset + withRootFields(after.exif, fields)});
    }
    if (after.xmp != before.xmp)
        payloads.append({.type = "application/rdf+xml", .bytes = after.xmp});
    return payloads;
}

QByteArray itemInformation(const Payload& payload)
{
    QByteArray entry;
    appendUnsigned(entry, 2, 1, ByteOrder::Big); // version
    appendUnsigned(entry, 1, 3, ByteOrder::Big); // hidden
    appendUnsigned(entry, payload.id, 2, ByteOrder::Big);
    appendUnsigned(entry, 0, 2, ByteOrder::Big); // not protected
    if (payload.type == "Exif")
        entry.append("Exif").append('\0');
    else
        entry.append("mime").append('\0').append(payload.type).append('\0');
    return isoBoxOf("infe", entry);
}

/// The box of item information with the new items.
QByteArray informationBox(QByteArrayView before, const QList<Payload>& payloads)
{
    const int countWidth = heifNumberAt(before, 0, 1) == 0 ? 2 : 4;
    std::uint64_t count = heifNumberAt(before, fullBoxHead, countWidth);
    QByteArray entries = before.sliced(fullBoxHead + countWidth).toByteArray();
    for (const Payload& payload : payloads) {
        count += payload.isNew ? 1 : 0;
        entries.append(payload.isNew ? itemInformation(payload) : QByteArray());
    }
    QByteArray box = before.first(fullBoxHead).toByteArray();
    appendUnsigned(box, count, countWidth, ByteOrder::Big);
    return isoBoxOf("iinf", box + entries);
}

/// The box of references, in which the new items describe the picture.
QByteArray referencesBox(QByteArrayView before, const QList<Payload>& payloads, HeifItemId primary)
{
    QByteArray box = before.isEmpty() ? QByteArray(fullBoxHead, '\0') : before.toByteArray();
    const int idWidth = heifNumberAt(box, 0, 1) == 0 ? 2 : 4;
    for (const Payload& payload : payloads) {
        if (!payload.isNew)
            continue;
        QByteArray reference;
        appendUnsigned(reference, payload.id, idWidth, ByteOrder::Big);
        appendUnsigned(reference, 1, 2, ByteOrder::Big);
        appendUnsigned(reference, primary, idWidth, ByteOrder::Big);
        box.append(isoBoxOf("cdsc", reference));
    }
    return isoBoxOf("iref", box);
}

bool isType(const IsoBox& box, const char* type) { return box.type == QByteArrayView(type); }

bool coverAll(const QList<IsoBox>& boxes, QByteArrayView bytes)
{
    return !boxes.isEmpty() && boxes.last().whole.end() == bytes.end();
}

/// A file whose metadata box is changed.
class Editor
{
public:
    explicit Editor(QByteArrayView file)
        : m_file(file)
        , m_boxes(containers::isoBoxes(file))
    {
        const auto meta = std::find_if(m_boxes.begin(), m_boxes.end(), [](const IsoBox& box) {
            return isType(box, "meta");
        });
        if (meta != m_boxes.end())
            m_meta = *meta;
        m_metaBoxes = containers::isoBoxes(containers::tailOf(m_meta.payload, fullBoxHead));
        m_primary = primaryHeifItem(isoBox(m_metaBoxes, "pitm"));
    }

    /// False for what is not understood: a sequence, boxes that are cut off, no picture.
    [[nodiscard]] bool isValid() const
    {
        const auto pointsIntoTheFile
            = [](const IsoBox& box) { return isType(box, "moov") || isType(box, "moof"); };
        constexpr qsizetype shortestInformation = 8;
        return coverAll(m_boxes, m_file) && coverAll(m_metaBoxes, m_meta.payload) && m_primary != 0
            && isoBox(m_metaBoxes, "iinf").size() >= shortestInformation
            && std::none_of(m_boxes.begin(), m_boxes.end(), pointsIntoTheFile);
    }

    std::optional<QByteArrayList> with(QList<Payload> payloads)
    {
        auto locations = readHeifLocations(isoBox(m_metaBoxes, "iloc"));
        if (!locations || !assignItems(payloads, *locations))
            return std::nullopt;
        const QList<HeifLocation> replaced = taken(locations->items, payloads);
        if (reachesInto(m_meta.whole, *locations))
            return std::nullopt;
        if (isType(m_boxes.last(), "mdat") && !reachesInto(m_boxes.last().whole, *locations)
            && fill(m_boxes.last().payload, replaced))
            m_boxes.removeLast();
        const auto behind = withoutOpenEnd();
        if (!behind)
            return std::nullopt;

        // The length of the box does not depend on what its numbers are.
        const qint64 shift = metaBox(*locations, payloads, 0).size() - m_meta.whole.size();
        QByteArrayList data;
        for (const Payload& payload : payloads)
            data.append(payload.bytes);
        return QByteArrayList{
                   viewed({m_file.begin(), m_meta.whole.begin()}),
                   metaBox(*locations, payloads, shift)}
        + *behind + QByteArrayList{isoBoxOf("mdat", data.join())};
    }

private:
    [[nodiscard]] std::uint64_t placeOf(const char* byte) const
    {
        return static_cast<std::uint64_t>(byte - m_file.begin());
    }

    /// Where the kept boxes end.
    [[nodiscard]] std::uint64_t end() const { return placeOf(m_boxes.last().whole.end()); }

    /// Finds the items that the payloads belong to, or makes new ones; false when there is no
    /// number left.
    [[nodiscard]] bool assignItems(QList<Payload>& payloads, const HeifLocations& locations) const
    {
        const QList<HeifItem> items
            = heifItems(isoBox(m_metaBoxes, "iinf"), isoBox(m_metaBoxes, "iref"), m_primary);
        HeifItemId last = m_primary;
        for (const HeifItem& item : items)
            last = std::max(last, item.id);
        for (const HeifLocation& item : locations.items)
            last = std::max(last, item.id);
        for (Payload& payload : payloads) {
            const auto known = std::find_if(items.begin(), items.end(), [&](const auto& item) {
                return item.type == payload.type;
            });
            payload.isNew = known == items.end();
            payload.id = payload.isNew ? ++last : known->id;
        }
        return last <= greatestId;
    }

    /// Takes the items of the payloads out of `items`.
    static QList<HeifLocation> taken(QList<HeifLocation>& items, const QList<Payload>& payloads)
    {
        const auto first
            = std::stable_partition(items.begin(), items.end(), [&](const HeifLocation& item) {
                  return std::none_of(payloads.begin(), payloads.end(), [&](const auto& payload) {
                      return payload.id == item.id;
                  });
              });
        const QList<HeifLocation> result(first, items.end());
        items.erase(first, items.end());
        return result;
    }

    /// True when the items are all that stands in `part`.
    [[nodiscard]] bool fill(QByteArrayView part, const QList<HeifLocation>& items) const
    {
        std::uint64_t length = 0;
        for (const HeifLocation& item : items) {
            for (const HeifExtent& extent : item.extents) {
                const bool isInside = item.isInFile() && extent.offset >= placeOf(part.begin())
                    && extent.offset < placeOf(part.end());
                length += isInside ? extent.length : 0;
            }
        }
        return length == static_cast<std::uint64_t>(part.size());
    }

    [[nodiscard]] bool reachesInto(QByteArrayView part, const HeifLocations& locations) const
    {
        const std::uint64_t start = placeOf(part.begin());
        const std::uint64_t end = placeOf(part.end());
        for (const HeifLocation& item : locations.items) {
            for (const HeifExtent& extent : item.extents) {
                if (item.isInFile() && extent.offset < end && extent.offset + extent.length > start)
                    return true;
            }
        }
        return false;
    }

    /// The boxes behind the metadata box; the last one says where it ends. Nothing when it is too
    /// long for that.
    [[nodiscard]] std::optional<QByteArrayList> withoutOpenEnd() const
    {
        const QByteArrayView last = m_boxes.last().whole;
        const QByteArrayView behind(m_meta.whole.end(), last.end());
        if (behind.isEmpty() || heifNumberAt(last, 0, 4) != 0)
            return QByteArrayList{viewed(behind)};
        if (last.size() > std::numeric_limits<std::uint32_t>::max())
            return std::nullopt;
        QByteArray length;
        appendUnsigned(length, static_cast<std::uint64_t>(last.size()), 4, ByteOrder::Big);
        return QByteArrayList{
            viewed({behind.begin(), last.begin()}), length, viewed(last.sliced(length.size()))};
    }

    /// The locations when what stands behind the metadata box moves by `shift`, and the payloads
    /// follow the kept boxes.
    [[nodiscard]] HeifLocations
    moved(HeifLocations locations, const QList<Payload>& payloads, qint64 shift) const
    {
        constexpr std::uint64_t boxHead = 8;
        const std::uint64_t metaEnd = placeOf(m_meta.whole.end());
        for (HeifLocation& item : locations.items) {
            for (HeifExtent& extent : item.extents) {
                if (item.isInFile() && extent.offset >= metaEnd)
                    extent.offset += static_cast<std::uint64_t>(shift);
            }
        }
        std::uint64_t place = end() + static_cast<std::uint64_t>(shift) + boxHead;
        for (const Payload& payload : payloads) {
            const auto length = static_cast<std::uint64_t>(payload.bytes.size());
            locations.items.append(
                {.id = payload.id, .extents = {{.offset = place, .length = length}}}
            );
            place += length;
        }
        return locations;
    }

    [[nodiscard]] QByteArray
    metaBox(const HeifLocations& locations, const QList<Payload>& payloads, qint64 shift) const
    {
        constexpr std::uint64_t roomForMetadata = 1U << 30U;
        const bool isLong = end() > std::numeric_limits<std::uint32_t>::max() - roomForMetadata;
        QByteArray payload = m_meta.payload.first(fullBoxHead).toByteArray();
        for (const IsoBox& box : m_metaBoxes) {
            if (isType(box, "iinf"))
                payload.append(informationBox(box.payload, payloads));
            else if (isType(box, "iref"))
                payload.append(referencesBox(box.payload, payloads, m_primary));
            else if (isType(box, "iloc"))
                payload.append(heifLocationBox(moved(locations, payloads, shift), isLong ? 8 : 4));
            else
                payload.append(box.whole);
        }
        if (isoBox(m_metaBoxes, "iref").isEmpty())
            payload.append(referencesBox({}, payloads, m_primary));
        return isoBoxOf("meta", payload);
    }

    QByteArrayView m_file;
    QList<IsoBox> m_boxes; ///< those that are kept
    IsoBox m_meta;
    QList<IsoBox> m_metaBoxes;
    HeifItemId m_primary = 0;
};

} // namespace

std::optional<QByteArrayList> editedHeif(QByteArrayView file, const MetadataEdit& edit)
{
    const MetadataBlocks before = readHeifBlocks(file);
    const auto after = editedBlocks(before, edit);
    Editor editor(file);
    if (!after || !editor.isValid())
        return std::nullopt;
    const QList<Payload> payloads = payloadsOf(before, *after);
    return payloads.isEmpty() ? std::optional(QByteArrayList{viewed(file)}) : editor.with(payloads);
}

} // namespace brenvaldo::platform::metadata
