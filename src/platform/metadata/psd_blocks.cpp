// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"

#include <platform/containers/photoshop_file.h>
#include <platform/containers/photoshop_resources.h>

namespace brenvaldo::platform::metadata {

using containers::photoshopResourceData;
using containers::PhotoshopResourceId;

namespace {

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
    const auto sections = containers::photoshopSections(file);
    if (!sections)
        return blocks;
    const QByteArrayView resources = sections->resources;
    for (const containers::PhotoshopResource& resource :
         containers::photoshopResources(resources)) {
        if (!standsInBlockOfItsOwn(resource))
            blocks.photoshop.append(resource.whole);
    }
    blocks.exif = photoshopResourceData(resources, PhotoshopResourceId::Exif);
    blocks.xmp = photoshopResourceData(resources, PhotoshopResourceId::Xmp);
    blocks.iptc = photoshopResourceData(resources, PhotoshopResourceId::Iptc);
    return blocks;
}

} // namespace brenvaldo::platform::metadata
