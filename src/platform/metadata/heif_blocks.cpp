// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"
#include "exif_root_fields.h"
#include "heif_items.h"
#include "tiff_blocks.h"

#include <platform/containers/bytes.h>
#include <platform/containers/iso_boxes.h>
#include <platform/containers/photoshop_resources.h>

#include <QHash>

#include <algorithm>

namespace brenvaldo::platform::metadata {

namespace tiff = containers::tiff;
using containers::IsoBox;
using containers::isoBox;
using containers::isoBoxes;
using containers::MetadataBlocks;
using containers::tailOf;

namespace {

/// What the item location box tells, read once: a file may hold as many items as entries.
class Locations
{
public:
    Locations(QByteArrayView file, QByteArrayView meta, QByteArrayView locations)
        : m_file(file)
        , m_itemData(isoBox(isoBoxes(tailOf(meta, 4)), "idat"))
        , m_box(locations)
        , m_version(heifNumberAt(locations, 0, 1))
    {
        m_offsetWidth = static_cast<int>(heifNumberAt(m_box, 4, 1) >> 4U);
        m_lengthWidth = static_cast<int>(heifNumberAt(m_box, 4, 1) & 15U);
        m_baseWidth = static_cast<int>(heifNumberAt(m_box, 5, 1) >> 4U);
        m_indexWidth = m_version == 0 ? 0 : static_cast<int>(heifNumberAt(m_box, 5, 1) & 15U);
        if (isSane())
            readEntries();
    }

    /// The bytes of item `wanted`, once; empty when they do not stand in this file.
    QByteArray take(HeifItemId wanted)
    {
        const Location location = m_locations.take(wanted);
        if (location.method > 1 || location.dataReference != 0)
            return {};
        m_place = location.extentsAt;
        return extentsFrom(location);
    }

private:
    struct Location
    {
        std::uint64_t method = 0;
        std::uint64_t dataReference = 0;
        std::uint64_t base = 0;
        std::uint64_t extents = 0;
        std::uint64_t extentsAt = 0; ///< offset in the box
    };

    [[nodiscard]] bool isSane() const
    {
        return m_offsetWidth <= 8 && m_lengthWidth <= 8 && m_baseWidth <= 8 && m_indexWidth <= 8
            && m_version <= 2;
    }

    [[nodiscard]] std::uint64_t extentWidth() const
    {
        return static_cast<std::uint64_t>(m_indexWidth + m_offsetWidth + m_lengthWidth);
    }

    void readEntries()
    {
        m_place = 6;
        const std::uint64_t count = next(m_version < 2 ? 2 : 4);
        for (std::uint64_t i = 0; i < count && m_place < size(); ++i) {
            const HeifItemId id = next(m_version < 2 ? 2 : 4);
            Location location;
            location.method = m_version == 0 ? 0 : next(2) & 15U;
            location.dataReference = next(2);
            location.base = next(m_baseWidth);
            location.extents = next(2);
            location.extentsAt = m_place;
            m_place += location.extents * extentWidth();
            if (!m_locations.contains(id))
                m_locations.insert(id, location);
        }
    }

    [[nodiscard]] std::uint64_t size() const { return static_cast<std::uint64_t>(m_box.size()); }

    std::uint64_t next(int width)
    {
        const std::uint64_t value = heifNumberAt(m_box, m_place, width);
        m_place += static_cast<std::uint64_t>(width);
        return value;
    }

    QByteArray extentsFrom(const Location& location)
    {
        const QByteArrayView place = location.method == 0 ? m_file : m_itemData;
        // Extents that take no room in the box are all the same one.
        const std::uint64_t count
            = extentWidth() == 0 ? std::min<std::uint64_t>(location.extents, 1) : location.extents;
        QByteArray data;
        for (std::uint64_t i = 0; i < count && m_place < size(); ++i) {
            next(m_indexWidth);
            const std::uint64_t offset = location.base + next(m_offsetWidth);
            const std::uint64_t length = next(m_lengthWidth);
            const auto extent = m_lengthWidth == 0 || length == 0
                ? std::optional(tailOf(place, offset))
                : containers::sliceOf(place, offset, length);
            // More than the whole file can only come from extents that overlap.
            if (!extent || data.size() + extent->size() > m_file.size())
                return {};
            data.append(*extent);
        }
        return data;
    }

    QByteArrayView m_file;
    QByteArrayView m_itemData;
    QByteArrayView m_box;
    std::uint64_t m_version = 0;
    std::uint64_t m_place = 0;
    QHash<HeifItemId, Location> m_locations;
    int m_offsetWidth = 0;
    int m_lengthWidth = 0;
    int m_baseWidth = 0;
    int m_indexWidth = 0;
};

/// Parts the blocks that stand in the EXIF block from it.
void takeRootBlocks(MetadataBlocks& blocks)
{
    const auto exif = containers::TiffFile::open(blocks.exif);
    if (!exif)
        return;
    const containers::TiffDirectory root = exif->firstDirectory();
    blocks.iptc = iptcOf(root);
    blocks.photoshop = blockOf(root, tiff::PhotoshopResources);
    if (blocks.iptc.isEmpty())
        blocks.iptc = containers::photoshopResourceData(
            blocks.photoshop, containers::PhotoshopResourceId::Iptc
        );
    blocks.exif = withoutRootFields(blocks.exif, {tiff::Iptc, tiff::PhotoshopResources});
}

} // namespace

MetadataBlocks readHeifBlocks(QByteArrayView file)
{
    MetadataBlocks blocks;
    const QByteArrayView meta = isoBox(isoBoxes(file), "meta");
    const QList<IsoBox> boxes = isoBoxes(tailOf(meta, 4));
    const HeifItemId primary = primaryHeifItem(isoBox(boxes, "pitm"));
    Locations locations(file, meta, isoBox(boxes, "iloc"));
    for (const HeifItem& item : heifItems(isoBox(boxes, "iinf"), isoBox(boxes, "iref"), primary)) {
        if (item.type == "Exif" && blocks.exif.isEmpty())
            blocks.exif = containers::exifBehindOffset(locations.take(item.id));
        else if (item.type == "application/rdf+xml" && blocks.xmp.isEmpty())
            blocks.xmp = locations.take(item.id);
    }
    takeRootBlocks(blocks);
    return blocks;
}

} // namespace brenvaldo::platform::metadata
