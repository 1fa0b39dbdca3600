// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"

#include <platform/containers/iso_boxes.h>

namespace brenvaldo::platform {

MetadataBlocks readJpegXlBlocks(QByteArrayView file)
{
    const QList<IsoBox> boxes = isoBoxes(file);
    MetadataBlocks blocks;
    blocks.exif = exifBehindOffset(isoBox(boxes, "Exif"));
    blocks.xmp = isoBox(boxes, "xml ").toByteArray();
    return blocks;
}

} // namespace brenvaldo::platform
