// SPDX-License-Identifier: GPL-3.0-or-later
#include "png_profiles.h"

#include "exif_header.h"

#include <platform/containers/jpeg_segments.h>
#include <platform/containers/photoshop_resources.h>

namespace brenvaldo::platform::metadata {

namespace jpeg = containers::jpeg;

namespace {

constexpr QByteArrayView profilePrefix("Raw profile type ");

std::optional<PngBlockData> profileOf(const QByteArray& type, const QByteArray& data)
{
    if (type == "exif" || (type == "APP1" && data.startsWith(jpeg::exifHeader)))
        return PngBlockData{PngBlock::Exif, withoutExifHeader(data).toByteArray()};
    if (type == "APP1" && data.startsWith(jpeg::xmpHeader))
        return PngBlockData{PngBlock::Xmp, data.sliced(jpeg::xmpHeader.size())};
    if (type == "xmp")
        return PngBlockData{PngBlock::Xmp, data};
    if ((type == "iptc" || type == "8bim") && !containers::photoshopResources(data).isEmpty())
        return PngBlockData{PngBlock::Photoshop, data};
    if (type == "iptc")
        return PngBlockData{PngBlock::Iptc, data};
    return std::nullopt;
}

} // namespace

std::optional<PngBlockData>
pngBlockOf(const containers::PngChunk& chunk, const std::optional<containers::PngText>& text)
{
    if (chunk.type == QByteArrayView("eXIf"))
        return PngBlockData{PngBlock::Exif, withoutExifHeader(chunk.data).toByteArray()};
    if (!text)
        return std::nullopt;
    if (text->keyword == "XML:com.adobe.xmp")
        return PngBlockData{PngBlock::Xmp, text->text};
    if (!holdsProfile(*text))
        return std::nullopt;
    return profileOf(
        text->keyword.sliced(profilePrefix.size()), containers::rawProfileData(text->text)
    );
}

bool holdsProfile(const containers::PngText& text)
{
    return text.keyword.startsWith(profilePrefix);
}

} // namespace brenvaldo::platform::metadata
