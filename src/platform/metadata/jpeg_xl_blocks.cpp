// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"

#include <platform/containers/iso_boxes.h>

namespace brenvaldo::platform::metadata {

containers::MetadataBlocks readJpegXlBlocks(QByteArrayView file)
{
    const QList<containers::IsoBox> boxes = containers::isoBoxes(file);
    containers::MetadataBlocks blocks;
    blocks.exif = containers::exifBehindOffset(containers::isoBox(boxes, "Exif"));
    blocks.xmp = containers::isoBox(boxes, "xml ").toByteArray();
    return blocks;
}

} // namespace brenvaldo::platform::metadata
