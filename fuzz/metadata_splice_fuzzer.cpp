// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/metadata/block_readers.h>
#include <platform/metadata/block_splicers.h>

using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;

/// Puts the blocks of a file into the file itself; every writer gets every file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArrayView file(data, static_cast<qsizetype>(size));
    for (const auto read : {readJpegBlocks, readPngBlocks, readTiffBlocks}) {
        const MetadataBlocks blocks = read(file);
        for (const auto splice : {splicedJpeg, splicedPng, splicedTiff})
            static_cast<void>(splice(file, blocks));
    }
    return 0;
}
