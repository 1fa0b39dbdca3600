// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"
#include "exif_header.h"

#include <platform/containers/bytes.h>
#include <platform/containers/iso_boxes.h>
#include <platform/containers/photoshop_resources.h>

namespace brenvaldo::platform::metadata {

namespace {

constexpr qsizetype identifierLength = 16;

const QByteArray& xmpIdentifier()
{
    static const QByteArray identifier = QByteArray::fromHex("be7acfcb97a942e89c71999491e3afac");
    return identifier;
}

const QByteArray& iptcIdentifier()
{
    static const QByteArray identifier = QByteArray::fromHex("33c7a4d2b81d4723a0baf1a3e097ad38");
    return identifier;
}

const QByteArray& photoshopIdentifier()
{
    static const QByteArray identifier = QByteArray::fromHex("2c4c0100850440b9a03e562148d6dfeb");
    return identifier;
}

bool isExifIdentifier(QByteArrayView identifier)
{
    static const QByteArray other = QByteArray::fromHex("0537cdab9d0c4431a72afa561f2a113e");
    return identifier == QByteArrayView("JpgTiffExif->JP2") || identifier == other;
}

} // namespace

containers::MetadataBlocks readJpeg2000Blocks(QByteArrayView file)
{
    containers::MetadataBlocks blocks;
    for (const containers::IsoBox& box : containers::isoBoxes(file)) {
        if (box.type != QByteArrayView("uuid") || box.payload.size() < identifierLength)
            continue;
        const QByteArrayView identifier = box.payload.first(identifierLength);
        const QByteArrayView data = box.payload.sliced(identifierLength);
        if (isExifIdentifier(identifier))
            blocks.exif = withoutExifHeader(data).toByteArray();
        else if (identifier == QByteArrayView(xmpIdentifier()))
            blocks.xmp = data.toByteArray();
        else if (identifier == QByteArrayView(iptcIdentifier()))
            blocks.iptc = data.toByteArray();
        else if (identifier == QByteArrayView(photoshopIdentifier()))
            blocks.photoshop = data.toByteArray();
    }
    if (blocks.iptc.isEmpty())
        blocks.iptc = containers::photoshopResourceData(
            blocks.photoshop, containers::PhotoshopResourceId::Iptc
        );
    return blocks;
}

} // namespace brenvaldo::platform::metadata
