// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_profile.h"

#include "color_transform.h"

namespace brenvaldo::platform::graphics {

namespace {

/// The profile of a photo that is drawn on. Those of scanners tell what their colours mean, but not
/// how to make them.
Profile drawableProfile(const ImageNode& photo)
{
    const Profile srgb = assumedProfile(ColorModel::Rgb);
    Profile own = profileOf(photo);
    const bool isAssumed = photo.iccProfile.isEmpty();
    if (isAssumed
        || isPossible(
            {srgb, ColorModel::Rgb, VIPS_FORMAT_UCHAR}, {own, photo.colorModel, VIPS_FORMAT_UCHAR}
        ))
        return own;
    return assumedProfile(photo.colorModel);
}

} // namespace

QByteArray usableProfile(const QByteArray& profile, ColorModel model)
{
    if (profile.isEmpty())
        return {};
    const Profile opened = openProfile(profile);
    if (!opened || cmsGetColorSpace(opened.get()) != signatureOf(model))
        return {};
    const Profile srgb = assumedProfile(ColorModel::Rgb);
    const bool isUsable = isPossible(
        {opened, model, VIPS_FORMAT_UCHAR}, {srgb, ColorModel::Rgb, VIPS_FORMAT_UCHAR}
    );
    return isUsable ? profile : QByteArray();
}

ImageNode convertedToSrgb(const ImageNode& node)
{
    if (node.iccProfile.isEmpty() && node.colorModel != ColorModel::Cmyk)
        return node;
    ImageNode converted = node;
    converted.colorModel = node.colorModel == ColorModel::Gray ? ColorModel::Gray : ColorModel::Rgb;
    converted.iccProfile.clear();
    const Profile source = profileOf(node);
    const Profile target = assumedProfile(converted.colorModel);
    const VipsBandFormat format = node.pixels.format();
    converted.pixels = transformed(
        node.pixels,
        {source, node.colorModel, format},
        {target, converted.colorModel, format},
        node.hasAlpha
    );
    return converted;
}

vips::VImage srgbLayerInColorsOf(const vips::VImage& layer, const ImageNode& target)
{
    const VipsBandFormat format = target.pixels.format();
    if (target.iccProfile.isEmpty() && target.colorModel == ColorModel::Rgb
        && format == VIPS_FORMAT_UCHAR)
        return layer;
    const Profile srgb = assumedProfile(ColorModel::Rgb);
    const Profile colors = drawableProfile(target);
    return transformed(
        layer, {srgb, ColorModel::Rgb, VIPS_FORMAT_UCHAR}, {colors, target.colorModel, format}, true
    );
}

} // namespace brenvaldo::platform::graphics
