// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"
#include "png_profiles.h"

#include <platform/containers/photoshop_resources.h>
#include <platform/containers/png_chunks.h>

#include <QString>

#include <algorithm>
#include <array>

namespace brenvaldo::platform::metadata {

using containers::MetadataBlocks;
using containers::PngChunk;

namespace {

bool describesColors(const PngChunk& chunk)
{
    static constexpr std::array types{"iCCP", "sRGB", "gAMA", "cHRM"};
    return std::any_of(types.begin(), types.end(), [&chunk](const char* type) {
        return chunk.type == QByteArrayView(type);
    });
}

void fill(QByteArray& block, const QByteArray& data)
{
    if (block.isEmpty())
        block = data;
}

void take(const PngBlockData& data, bool isInChunkOfItsOwn, MetadataBlocks& blocks)
{
    switch (data.block) {
    case PngBlock::Exif:
        if (isInChunkOfItsOwn)
            blocks.exif = data.data;
        fill(blocks.exif, data.data);
        break;
    case PngBlock::Xmp:
        fill(blocks.xmp, data.data);
        break;
    case PngBlock::Photoshop:
        fill(blocks.photoshop, data.data);
        break;
    case PngBlock::Iptc:
        fill(blocks.iptc, data.data);
        break;
    }
}

void takeText(const PngChunk& chunk, const containers::PngText& text, MetadataBlocks& blocks)
{
    if (holdsProfile(text))
        return;
    if (text.keyword == "Comment")
        fill(blocks.comment, text.isUtf8 ? text.text : QString::fromLatin1(text.text).toUtf8());
    blocks.pngTextChunks.append(chunk.whole.toByteArray());
}

} // namespace

MetadataBlocks readPngBlocks(QByteArrayView file)
{
    MetadataBlocks blocks;
    const auto chunks = containers::readPngChunks(file);
    if (!chunks)
        return blocks;
    for (const PngChunk& chunk : *chunks) {
        const auto text = containers::pngText(chunk);
        if (const auto data = pngBlockOf(chunk, text))
            take(*data, chunk.type == QByteArrayView("eXIf"), blocks);
        else if (chunk.type == QByteArrayView("tIME"))
            blocks.pngTextChunks.append(chunk.whole.toByteArray());
        else if (describesColors(chunk))
            blocks.pngColorChunks.append(chunk.whole.toByteArray());
        else if (text)
            takeText(chunk, *text, blocks);
    }
    if (blocks.iptc.isEmpty())
        blocks.iptc = containers::photoshopResourceData(
            blocks.photoshop, containers::PhotoshopResourceId::Iptc
        );
    return blocks;
}

} // namespace brenvaldo::platform::metadata
