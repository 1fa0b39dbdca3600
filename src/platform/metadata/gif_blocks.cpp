// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"

#include <platform/containers/gif_blocks.h>

namespace brenvaldo::platform::metadata {

using containers::MetadataBlocks;

namespace {

void takeXmpExtension(QByteArrayView dataBlocks, MetadataBlocks& blocks)
{
    constexpr QByteArrayView application("\x0BXMP DataXMP", 12);
    // Bytes behind the packet that lead a reader of data blocks to their end.
    constexpr qsizetype trailerLength = 258;
    const qsizetype length = dataBlocks.size() - application.size() - trailerLength;
    if (blocks.xmp.isEmpty() && length > 0 && dataBlocks.startsWith(application))
        blocks.xmp = dataBlocks.sliced(application.size(), length).toByteArray();
}

} // namespace

MetadataBlocks readGifBlocks(QByteArrayView file)
{
    namespace gif = containers::gif;
    MetadataBlocks blocks;
    for (const containers::GifExtension& extension : containers::readGifExtensions(file)) {
        if (extension.label == gif::comment && blocks.comment.isEmpty())
            blocks.comment = containers::joinedDataBlocks(extension.dataBlocks);
        else if (extension.label == gif::application)
            takeXmpExtension(extension.dataBlocks, blocks);
    }
    return blocks;
}

} // namespace brenvaldo::platform::metadata
