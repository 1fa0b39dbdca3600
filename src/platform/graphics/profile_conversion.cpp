// SPDX-License-Identifier: GPL-3.0-or-later
#include "profile_conversion.h"

#include "color_transform.h"

#include <algorithm>
#include <array>
#include <string>

namespace brenvaldo::platform::graphics {

namespace {

std::optional<ColorModel> modelOf(const Profile& profile)
{
    using enum ColorModel;
    for (const ColorModel model : {Gray, Rgb, Cmyk, Lab}) {
        if (cmsGetColorSpace(profile.get()) == signatureOf(model))
            return model;
    }
    return std::nullopt;
}

bool isOfADevice(const Profile& profile)
{
    constexpr std::array classes
        = {cmsSigDisplayClass, cmsSigOutputClass, cmsSigInputClass, cmsSigColorSpaceClass};
    const auto found = std::find(classes.begin(), classes.end(), cmsGetDeviceClass(profile.get()));
    return found != classes.end();
}

bool canBeMade(const Profile& profile, ColorModel model)
{
    const Profile srgb = assumedProfile(ColorModel::Rgb);
    return isPossible(
        {srgb, ColorModel::Rgb, VIPS_FORMAT_UCHAR}, {profile, model, VIPS_FORMAT_UCHAR}
    );
}

QString descriptionOf(const Profile& profile)
{
    const auto read = [&profile](wchar_t* text, cmsUInt32Number bytes) {
        return cmsGetProfileInfo(profile.get(), cmsInfoDescription, "en", "US", text, bytes);
    };
    std::wstring text(read(nullptr, 0) / sizeof(wchar_t), L'\0');
    read(text.data(), static_cast<cmsUInt32Number>(text.size() * sizeof(wchar_t)));
    return QString::fromWCharArray(text.c_str()).trimmed();
}

ImageNode convertedNode(ImageNode node, const ColorSpace& space, RenderingIntent intent)
{
    if (space.model == ColorModel::Lab)
        throw vips::VError("no picture is kept in Lab colours");
    const VipsBandFormat format = node.pixels.format();
    const Profile from = profileOf(node);
    const Profile to = openProfile(space.profile);
    node = node.withPixels(transformed(
        node.pixels,
        {from, node.colorModel, format},
        {to, space.model, format},
        node.hasAlpha,
        {.intent = intent, .blackPoint = BlackPoint::Kept}
    ));
    node.colorModel = space.model;
    node.iccProfile = space.profile;
    return node;
}

} // namespace

std::optional<ColorSpace> colorSpaceOf(const QByteArray& profile)
{
    const Profile opened = openProfile(profile);
    const auto model = opened ? modelOf(opened) : std::nullopt;
    if (!model || !isOfADevice(opened))
        return std::nullopt;
    if (*model != ColorModel::Lab && !canBeMade(opened, *model))
        return std::nullopt;
    return ColorSpace{.name = descriptionOf(opened), .model = *model, .profile = profile};
}

ColorSpace standardColorSpace()
{
    const Profile srgb = assumedProfile(ColorModel::Rgb);
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(srgb.get(), nullptr, &size);
    QByteArray bytes(static_cast<qsizetype>(size), '\0');
    cmsSaveProfileToMem(srgb.get(), bytes.data(), &size);
    return {.name = descriptionOf(srgb), .model = ColorModel::Rgb, .profile = bytes};
}

Image convertedTo(const Image& image, const ColorSpace& space, RenderingIntent intent)
{
    const ImageNode& node = *image.node();
    return builtImage(node, image.pixelSize(), [&] { return convertedNode(node, space, intent); });
}

} // namespace brenvaldo::platform::graphics
