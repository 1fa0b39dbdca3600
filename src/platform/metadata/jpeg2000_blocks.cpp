// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"
#include "jpeg2000_boxes.h"

#include <platform/containers/photoshop_resources.h>

namespace brenvaldo::platform::metadata {

namespace {

QByteArray& blockIn(containers::MetadataBlocks& blocks, Jpeg2000Block block)
{
    switch (block) {
    case Jpeg2000Block::Exif:
        return blocks.exif;
    case Jpeg2000Block::Xmp:
        return blocks.xmp;
    case Jpeg2000Block::Iptc:
        return blocks.iptc;
    case Jpeg2000Block::Photoshop:
        break;
    }
    return blocks.photoshop;
}

} // namespace

containers::MetadataBlocks readJpeg2000Blocks(QByteArrayView file)
{
    containers::MetadataBlocks blocks;
    for (const containers::IsoBox& box : containers::isoBoxes(file)) {
        if (const auto block = jpeg2000BlockOf(box))
            blockIn(blocks, *block) = jpeg2000BlockData(box);
    }
    if (blocks.iptc.isEmpty())
        blocks.iptc = containers::photoshopResourceData(
            blocks.photoshop, containers::PhotoshopResourceId::Iptc
        );
    return blocks;
}

} // namespace brenvaldo::platform::metadata
