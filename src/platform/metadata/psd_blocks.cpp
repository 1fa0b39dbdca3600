// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"

#include <platform/containers/bytes.h>
#include <platform/containers/photoshop_resources.h>

namespace brenvaldo::platform::metadata {

using containers::photoshopResourceData;
using containers::PhotoshopResourceId;

namespace {

constexpr std::uint64_t psdHeaderLength = 26;

bool standsInBlockOfItsOwn(const containers::PhotoshopResource& resource)
{
    return resource.id == static_cast<std::uint16_t>(PhotoshopResourceId::Exif)
        || resource.id == static_cast<std::uint16_t>(PhotoshopResourceId::Xmp)
        || resource.id == static_cast<std::uint16_t>(PhotoshopResourceId::IccProfile);
}

} // namespace

containers::MetadataBlocks readPsdBlocks(QByteArrayView file)
{
    containers::MetadataBlocks blocks;
    const auto colorLength
        = containers::unsignedAt(file, psdHeaderLength, 4, containers::ByteOrder::Big);
    if (!colorLength)
        return blocks;
    const std::uint64_t offset = psdHeaderLength + 4 + *colorLength;
    const auto length = containers::unsignedAt(file, offset, 4, containers::ByteOrder::Big);
    const auto resources = containers::sliceOf(file, offset + 4, length.value_or(0));
    if (!resources)
        return blocks;

    for (const containers::PhotoshopResource& resource :
         containers::photoshopResources(*resources)) {
        if (!standsInBlockOfItsOwn(resource))
            blocks.photoshop.append(resource.whole);
    }
    blocks.exif = photoshopResourceData(*resources, PhotoshopResourceId::Exif);
    blocks.xmp = photoshopResourceData(*resources, PhotoshopResourceId::Xmp);
    blocks.iptc = photoshopResourceData(*resources, PhotoshopResourceId::Iptc);
    return blocks;
}

} // namespace brenvaldo::platform::metadata
