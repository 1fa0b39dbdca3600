// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <cstdint>

namespace brenvaldo::platform::containers {

enum class PhotoshopResourceId : std::uint16_t {
    Resolution = 0x03ED,
    Iptc = 0x0404,
    IccProfile = 0x040F,
    VersionInfo = 0x0421,
    Exif = 0x0422,
    Xmp = 0x0424,
    IptcChecksum = 0x0425
};

/// One image resource: views into the block it was read from.
struct PhotoshopResource
{
    std::uint16_t id = 0;
    QByteArrayView data;
    QByteArrayView whole; ///< signature, name, length, data and padding
};

/// The resources of `block` in their order, up to the first that is damaged.
[[nodiscard]] QList<PhotoshopResource> photoshopResources(QByteArrayView block);

/// The data of the first resource `id`; empty when there is none.
[[nodiscard]] QByteArray photoshopResourceData(QByteArrayView block, PhotoshopResourceId id);

/// One whole resource without a name.
[[nodiscard]] QByteArray photoshopResource(PhotoshopResourceId id, const QByteArray& data);

/// `block` with `iptc` as its IPTC resource: unchanged when it holds just that already.
[[nodiscard]] QByteArray photoshopBlockWithIptc(const QByteArray& block, const QByteArray& iptc);

/// The IIM data sets at the start of `iptc` without zero bytes that pad them to whole words.
[[nodiscard]] QByteArray withoutIptcPadding(const QByteArray& iptc);

} // namespace brenvaldo::platform::containers
