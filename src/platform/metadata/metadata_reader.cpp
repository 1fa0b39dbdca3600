// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata_reader.h"

#include "block_readers.h"

#include <platform/containers/mapped_file.h>
#include <platform/containers/type_identifier.h>

#include <array>

namespace brenvaldo::platform {

namespace {

using BlockReader = MetadataBlocks (*)(QByteArrayView);

/// How the files of a container start.
struct Container
{
    qsizetype offset = 0;
    QByteArrayView signature;
    BlockReader reader = nullptr;
};

constexpr std::array containers{
    Container{0, QByteArrayView("\xFF\xD8\xFF"), readJpegBlocks},
    Container{0, QByteArrayView("\x89PNG\r\n\x1A\n"), readPngBlocks},
    Container{0, QByteArrayView("II*\0", 4), readTiffBlocks},
    Container{0, QByteArrayView("MM\0*", 4), readTiffBlocks},
    Container{0, QByteArrayView("II+\0", 4), readTiffBlocks},
    Container{0, QByteArrayView("MM\0+", 4), readTiffBlocks},
    Container{4, QByteArrayView("ftyp"), readHeifBlocks},
    Container{4, QByteArrayView("jP  \r\n\x87\n"), readJpeg2000Blocks},
    Container{4, QByteArrayView("JXL \r\n\x87\n"), readJpegXlBlocks},
    Container{8, QByteArrayView("WEBP"), readWebpBlocks},
    Container{0, QByteArrayView("GIF8"), readGifBlocks},
    Container{0, QByteArrayView("8BPS"), readPsdBlocks},
};

BlockReader readerFor(QByteArrayView file)
{
    for (const Container& container : containers) {
        if (file.size() >= container.offset
            && file.sliced(container.offset).startsWith(container.signature))
            return container.reader;
    }
    return nullptr;
}

} // namespace

std::optional<MetadataBlocks> readMetadataBlocks(const QString& path)
{
    const MappedFile file(path);
    if (const BlockReader reader = readerFor(file.bytes()))
        return reader(file.bytes());
    if (typeIdentifierOfContents(path).isEmpty())
        return std::nullopt;
    return MetadataBlocks{};
}

} // namespace brenvaldo::platform
