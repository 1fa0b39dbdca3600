// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_edit.h"

#include "iptc_data_sets.h"
#include "user_comment.h"
#include "xmp_edit.h"

#include <platform/containers/photoshop_resources.h>

#include <QCryptographicHash>

#include <algorithm>

namespace brenvaldo::platform::metadata {

using containers::MetadataBlocks;
using containers::PhotoshopResource;
using containers::PhotoshopResourceId;

namespace {

bool isOf(const PhotoshopResource& resource, PhotoshopResourceId id)
{
    return resource.id == static_cast<std::uint16_t>(id);
}

/// True when zero bytes alone stand behind the last resource.
bool isWhole(const QByteArray& block, const QList<PhotoshopResource>& resources)
{
    const char* const end = resources.isEmpty() ? block.begin() : resources.last().whole.end();
    return std::all_of(end, block.end(), [](char byte) { return byte == '\0'; });
}

QByteArray checksumOf(const QByteArray& iptc)
{
    return QCryptographicHash::hash(iptc, QCryptographicHash::Md5);
}

/// Resources stand at even places.
void append(QByteArray& block, QByteArrayView resource)
{
    block.append(resource);
    if (block.size() % 2 != 0)
        block.append('\0');
}

std::optional<MetadataBlocks> withIptc(MetadataBlocks blocks, const QList<IptcChange>& changes)
{
    const auto iptc = iptcWith(blocks.iptc, changes);
    const auto xmp = xmpWith(blocks.xmp, changes);
    if (!iptc || !xmp)
        return std::nullopt;
    if (*iptc != blocks.iptc) {
        const auto photoshop = photoshopWith(blocks.photoshop, *iptc);
        if (!photoshop)
            return std::nullopt;
        blocks.photoshop = *photoshop;
    }
    blocks.iptc = *iptc;
    blocks.xmp = *xmp;
    return blocks;
}

} // namespace

std::optional<QByteArray> photoshopWith(const QByteArray& photoshop, const QByteArray& iptc)
{
    const QByteArray former
        = containers::photoshopResourceData(photoshop, PhotoshopResourceId::Iptc);
    const auto block = photoshopWithChecksum(photoshop, {.before = former, .after = iptc});
    if (!block)
        return std::nullopt;
    const QByteArray resource = containers::photoshopResource(PhotoshopResourceId::Iptc, iptc);
    QByteArray result;
    bool isPlaced = false;
    for (const PhotoshopResource& other : containers::photoshopResources(*block)) {
        const bool isReplaced = isOf(other, PhotoshopResourceId::Iptc) && !isPlaced;
        append(result, isReplaced ? resource : other.whole);
        isPlaced = isPlaced || isReplaced;
    }
    return isPlaced ? result : result + resource;
}

std::optional<QByteArray> photoshopWithChecksum(const QByteArray& photoshop, const IptcBlocks& iptc)
{
    const QList<PhotoshopResource> resources = containers::photoshopResources(photoshop);
    if (!isWhole(photoshop, resources))
        return std::nullopt;
    const QByteArray resource
        = containers::photoshopResource(PhotoshopResourceId::IptcChecksum, checksumOf(iptc.after));
    QByteArray result;
    for (const PhotoshopResource& other : resources) {
        const bool isReplaced = isOf(other, PhotoshopResourceId::IptcChecksum)
            && (iptc.before.isEmpty() || other.data == checksumOf(iptc.before));
        append(result, isReplaced ? resource : other.whole);
    }
    return result;
}

std::optional<MetadataBlocks> editedBlocks(const MetadataBlocks& blocks, const MetadataEdit& edit)
{
    const auto result = edit.iptc.isEmpty() ? blocks : withIptc(blocks, edit.iptc);
    if (!result || !edit.userComment)
        return result;
    const auto exif = exifWithUserComment(blocks.exif, *edit.userComment);
    if (!exif)
        return std::nullopt;
    MetadataBlocks edited = *result;
    edited.exif = *exif;
    return edited;
}

} // namespace brenvaldo::platform::metadata
