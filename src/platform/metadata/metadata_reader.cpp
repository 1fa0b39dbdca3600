// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata_reader.h"

#include "block_readers.h"

#include <platform/containers/mapped_file.h>
#include <platform/containers/signatures.h>
#include <platform/foundation/files_in_the_making.h>

namespace brenvaldo::platform::metadata {

using containers::Container;

namespace {

containers::MetadataBlocks blocksOf(Container container, QByteArrayView file)
{
    switch (container) {
    case Container::Jpeg:
        return readJpegBlocks(file);
    case Container::Png:
        return readPngBlocks(file);
    case Container::Gif:
        return readGifBlocks(file);
    case Container::Tiff:
        return readTiffBlocks(file);
    case Container::Heif:
        return readHeifBlocks(file);
    case Container::Jpeg2000:
        return readJpeg2000Blocks(file);
    case Container::JpegXl:
        return readJpegXlBlocks(file);
    case Container::Webp:
        return readWebpBlocks(file);
    case Container::Photoshop:
        return readPsdBlocks(file);
    case Container::Bitmap:
    case Container::Other:
        return {};
    }
    return {};
}

} // namespace

std::optional<containers::MetadataBlocks> readMetadataBlocks(const QString& path)
{
    awaitFile(path);
    const containers::MappedFile file(path);
    const auto kind = containers::fileKindOf(file.bytes());
    return kind ? std::optional(blocksOf(kind->container, file.bytes())) : std::nullopt;
}

} // namespace brenvaldo::platform::metadata
