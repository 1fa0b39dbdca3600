// SPDX-License-Identifier: GPL-3.0-or-later
#include "jpeg2000_boxes.h"

#include "exif_header.h"

#include <platform/containers/bytes.h>

#include <array>

namespace brenvaldo::platform::metadata {

namespace {

constexpr qsizetype identifierLength = 16;

struct Identifier
{
    Jpeg2000Block block;
    QByteArray bytes;
};

/// The first of each block is the one that is written.
const std::array<Identifier, 5>& identifiers()
{
    static const std::array<Identifier, 5> rows{{
        {Jpeg2000Block::Exif, "JpgTiffExif->JP2"},
        {Jpeg2000Block::Exif, QByteArray::fromHex("0537cdab9d0c4431a72afa561f2a113e")},
        {Jpeg2000Block::Xmp, QByteArray::fromHex("be7acfcb97a942e89c71999491e3afac")},
        {Jpeg2000Block::Iptc, QByteArray::fromHex("33c7a4d2b81d4723a0baf1a3e097ad38")},
        {Jpeg2000Block::Photoshop, QByteArray::fromHex("2c4c0100850440b9a03e562148d6dfeb")},
    }};
    return rows;
}

} // namespace

std::optional<Jpeg2000Block> jpeg2000BlockOf(const containers::IsoBox& box)
{
    if (box.type != QByteArrayView("uuid"))
        return std::nullopt;
    for (const Identifier& identifier : identifiers()) {
        if (box.payload.startsWith(identifier.bytes))
            return identifier.block;
    }
    return std::nullopt;
}

QByteArray jpeg2000BlockData(const containers::IsoBox& box)
{
    const QByteArrayView data = box.payload.sliced(identifierLength);
    const bool isExif = jpeg2000BlockOf(box) == Jpeg2000Block::Exif;
    return (isExif ? withoutExifHeader(data) : data).toByteArray();
}

QByteArray jpeg2000Box(Jpeg2000Block block, const QByteArray& data)
{
    for (const Identifier& identifier : identifiers()) {
        if (identifier.block == block)
            return containers::isoBoxOf("uuid", identifier.bytes + data);
    }
    return {};
}

} // namespace brenvaldo::platform::metadata
