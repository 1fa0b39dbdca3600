// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_edit.h"
#include "block_readers.h"
#include "block_replacers.h"
#include "png_profiles.h"

#include <platform/containers/bytes.h>
#include <platform/containers/png_chunks.h>

#include <algorithm>

namespace brenvaldo::platform::metadata {

using containers::MetadataBlocks;
using containers::PngChunk;
using containers::viewed;

namespace {

/// The chunk that takes the place of all that hold one of its blocks.
struct Replacement
{
    QList<PngBlock> blocks;
    QByteArray chunk;
    bool isPlaced = false;
};

QList<Replacement> replacementsFor(const MetadataBlocks& before, const MetadataBlocks& after)
{
    QList<Replacement> replacements;
    if (after.exif != before.exif)
        replacements.append({{PngBlock::Exif}, containers::pngChunk("eXIf", after.exif)});
    if (after.xmp != before.xmp)
        replacements.append(
            {{PngBlock::Xmp}, containers::pngInternationalText("XML:com.adobe.xmp", after.xmp)}
        );
    if (after.photoshop != before.photoshop)
        replacements.append(
            {{PngBlock::Photoshop, PngBlock::Iptc},
             containers::rawProfileChunk("iptc", after.photoshop)}
        );
    return replacements;
}

/// Chunks in front of the picture data that are not there yet.
QByteArrayList further(QList<Replacement>& replacements)
{
    QByteArrayList chunks;
    for (Replacement& replacement : replacements) {
        if (!std::exchange(replacement.isPlaced, true))
            chunks.append(replacement.chunk);
    }
    return chunks;
}

/// What becomes of a chunk that holds a block: the new one once, then nothing.
QByteArray replaced(const PngChunk& chunk, QList<Replacement>& replacements)
{
    const auto data = pngBlockOf(chunk, containers::pngText(chunk));
    for (Replacement& replacement : replacements) {
        if (data && replacement.blocks.contains(data->block))
            return std::exchange(replacement.isPlaced, true) ? QByteArray() : replacement.chunk;
    }
    return viewed(chunk.whole);
}

} // namespace

std::optional<QByteArrayList> editedPng(QByteArrayView file, const MetadataEdit& edit)
{
    const auto chunks = containers::readPngChunks(file);
    const MetadataBlocks before = readPngBlocks(file);
    const auto after = editedBlocks(before, edit);
    if (!chunks || chunks->isEmpty() || !after)
        return std::nullopt;
    QList<Replacement> replacements = replacementsFor(before, *after);
    QByteArrayList pieces{viewed(file.first(containers::pngSignatureLength))};
    for (const PngChunk& chunk : *chunks) {
        if (chunk.type == QByteArrayView("IDAT"))
            pieces += further(replacements);
        pieces.append(replaced(chunk, replacements));
    }
    // Picture data that are cut off are no whole chunk.
    pieces += further(replacements);
    const char* const end = chunks->last().whole.end();
    return pieces + QByteArrayList{viewed({end, file.end()})};
}

} // namespace brenvaldo::platform::metadata
