// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_edit.h"
#include "block_readers.h"
#include "block_replacers.h"
#include "jpeg2000_boxes.h"

#include <platform/containers/bytes.h>
#include <platform/containers/iso_boxes.h>

#include <algorithm>

namespace brenvaldo::platform::metadata {

using containers::IsoBox;
using containers::MetadataBlocks;
using containers::viewed;

namespace {

/// The box that takes the place of all that hold a block.
struct Replacement
{
    Jpeg2000Block block;
    QByteArray data;
    bool isPlaced = false;
};

QList<Replacement> replacementsFor(const MetadataBlocks& before, const MetadataBlocks& after)
{
    QList<Replacement> replacements;
    if (after.exif != before.exif)
        replacements.append({Jpeg2000Block::Exif, after.exif});
    if (after.xmp != before.xmp)
        replacements.append({Jpeg2000Block::Xmp, after.xmp});
    if (after.iptc != before.iptc)
        replacements.append({Jpeg2000Block::Iptc, after.iptc});
    if (!before.photoshop.isEmpty() && after.photoshop != before.photoshop)
        replacements.append({Jpeg2000Block::Photoshop, after.photoshop});
    return replacements;
}

QByteArray boxOf(Replacement& replacement)
{
    return std::exchange(replacement.isPlaced, true)
        ? QByteArray()
        : jpeg2000Box(replacement.block, replacement.data);
}

QByteArray replaced(const IsoBox& box, QList<Replacement>& replacements)
{
    const auto block = jpeg2000BlockOf(box);
    for (Replacement& replacement : replacements) {
        if (replacement.block == block)
            return boxOf(replacement);
    }
    return viewed(box.whole);
}

/// Boxes that hold places of the file.
bool pointsIntoTheFile(const IsoBox& box)
{
    return box.type == QByteArrayView("ftbl") || box.type == QByteArrayView("moov")
        || box.type == QByteArrayView("moof");
}

} // namespace

std::optional<QByteArrayList> editedJpeg2000(QByteArrayView file, const MetadataEdit& edit)
{
    const QList<IsoBox> boxes = containers::isoBoxes(file);
    const MetadataBlocks before = readJpeg2000Blocks(file);
    const auto after = editedBlocks(before, edit);
    const auto isPicture = [](const IsoBox& box) { return box.type == QByteArrayView("jp2c"); };
    if (!after || std::none_of(boxes.begin(), boxes.end(), isPicture)
        || std::any_of(boxes.begin(), boxes.end(), pointsIntoTheFile))
        return std::nullopt;
    QList<Replacement> replacements = replacementsFor(before, *after);
    QByteArrayList pieces;
    for (const IsoBox& box : boxes) {
        if (isPicture(box)) {
            for (Replacement& replacement : replacements)
                pieces.append(boxOf(replacement));
        }
        pieces.append(replaced(box, replacements));
    }
    return pieces + QByteArrayList{viewed({boxes.last().whole.end(), file.end()})};
}

} // namespace brenvaldo::platform::metadata
