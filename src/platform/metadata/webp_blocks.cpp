// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"
#include "exif_header.h"

#include <platform/containers/bytes.h>

namespace brenvaldo::platform::metadata {

containers::MetadataBlocks readWebpBlocks(QByteArrayView file)
{
    containers::MetadataBlocks blocks;
    std::uint64_t offset = 12; // "RIFF", the length of the file, "WEBP"
    while (const auto length
           = containers::unsignedAt(file, offset + 4, 4, containers::ByteOrder::Little)) {
        const auto type = containers::sliceOf(file, offset, 4);
        const auto data = containers::sliceOf(file, offset + 8, *length);
        if (!type || !data)
            break;
        if (*type == QByteArrayView("EXIF") && blocks.exif.isEmpty()) {
            blocks.exif = withoutExifHeader(*data).toByteArray();
        } else if (*type == QByteArrayView("XMP ") && blocks.xmp.isEmpty()) {
            blocks.xmp = data->toByteArray();
        }
        offset += 8 + *length + *length % 2;
    }
    return blocks;
}

} // namespace brenvaldo::platform::metadata
