// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"
#include "exif_header.h"

#include <platform/containers/jpeg_segments.h>
#include <platform/containers/photoshop_resources.h>
#include <platform/containers/png_chunks.h>

#include <QString>

#include <algorithm>
#include <array>

namespace brenvaldo::platform::metadata {

namespace jpeg = containers::jpeg;
using containers::MetadataBlocks;
using containers::PngChunk;

namespace {

constexpr QByteArrayView profilePrefix("Raw profile type ");

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

/// The profiles that some programs write as hexadecimal text.
void takeProfile(const QByteArray& type, const QByteArray& data, MetadataBlocks& blocks)
{
    if (type == "exif" || (type == "APP1" && data.startsWith(jpeg::exifHeader)))
        fill(blocks.exif, withoutExifHeader(data).toByteArray());
    else if (type == "APP1" && data.startsWith(jpeg::xmpHeader))
        fill(blocks.xmp, data.sliced(jpeg::xmpHeader.size()));
    else if (type == "xmp")
        fill(blocks.xmp, data);
    else if ((type == "iptc" || type == "8bim") && !containers::photoshopResources(data).isEmpty())
        fill(blocks.photoshop, data);
    else if (type == "iptc")
        fill(blocks.iptc, data);
}

void takeText(const PngChunk& chunk, const containers::PngText& text, MetadataBlocks& blocks)
{
    if (text.keyword == "XML:com.adobe.xmp") {
        fill(blocks.xmp, text.text);
        return;
    }
    if (text.keyword.startsWith(profilePrefix)) {
        takeProfile(
            text.keyword.sliced(profilePrefix.size()), containers::rawProfileData(text.text), blocks
        );
        return;
    }
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
        if (chunk.type == QByteArrayView("eXIf"))
            blocks.exif = withoutExifHeader(chunk.data).toByteArray();
        else if (chunk.type == QByteArrayView("tIME"))
            blocks.pngTextChunks.append(chunk.whole.toByteArray());
        else if (describesColors(chunk))
            blocks.pngColorChunks.append(chunk.whole.toByteArray());
        else if (const auto text = containers::pngText(chunk))
            takeText(chunk, *text, blocks);
    }
    if (blocks.iptc.isEmpty())
        blocks.iptc = containers::photoshopResourceData(
            blocks.photoshop, containers::PhotoshopResourceId::Iptc
        );
    return blocks;
}

} // namespace brenvaldo::platform::metadata
