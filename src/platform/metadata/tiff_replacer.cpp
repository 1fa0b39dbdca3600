// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_edit.h"
#include "block_replacers.h"
#include "iptc_data_sets.h"
#include "tiff_blocks.h"
#include "user_comment.h"
#include "xmp_edit.h"

#include <platform/containers/photoshop_resources.h>
#include <platform/containers/tiff_edit.h>

namespace brenvaldo::platform::metadata {

namespace tiff = containers::tiff;
using containers::TiffDirectory;

namespace {

/// Adds the tags of IPTC and XMP; false when a block is damaged.
bool addIptc(TiffDirectory& fields, const TiffDirectory& root, const QList<IptcChange>& changes)
{
    const QByteArray photoshop = blockOf(root, tiff::PhotoshopResources);
    const QByteArray resource
        = containers::photoshopResourceData(photoshop, containers::PhotoshopResourceId::Iptc);
    const QByteArray tagged = iptcOf(root);
    const auto iptc = iptcWith(tagged.isEmpty() ? resource : tagged, changes);
    const QByteArray xmp = blockOf(root, tiff::Xmp);
    const auto newXmp = xmpWith(xmp, changes);
    if (!iptc || !newXmp)
        return false;
    if (*iptc != tagged)
        setBlock(fields, tiff::Iptc, *iptc);
    const QByteArray& former = tagged.isEmpty() ? resource : tagged;
    const auto newPhotoshop = *iptc == former ? std::optional(photoshop)
        : resource.isEmpty() ? photoshopWithChecksum(photoshop, {.before = former, .after = *iptc})
                             : photoshopWith(photoshop, *iptc);
    if (!newPhotoshop)
        return false;
    if (*newPhotoshop != photoshop)
        setBlock(fields, tiff::PhotoshopResources, *newPhotoshop);
    if (*newXmp != xmp)
        setBlock(fields, tiff::Xmp, *newXmp);
    return true;
}

} // namespace

std::optional<QByteArrayList> editedTiffFile(QByteArrayView file, const MetadataEdit& edit)
{
    const auto tiffFile = containers::TiffFile::open(file);
    containers::TiffEdit change;
    if (!tiffFile)
        return std::nullopt;
    if (!edit.iptc.isEmpty() && !addIptc(change.root, tiffFile->firstDirectory(), edit.iptc))
        return std::nullopt;
    if (edit.userComment)
        change.exif = {userCommentField(*edit.userComment, tiffFile->order())};
    if (change.root.isEmpty() && change.exif.isEmpty())
        return QByteArrayList{containers::viewed(file)};
    return containers::editedTiff(file, change);
}

} // namespace brenvaldo::platform::metadata
