// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_profile.h"

#include "region_kernel.h"

#include <lcms2.h>

#include <memory>

namespace brenvaldo::platform::graphics {

namespace {

struct ProfileCloser
{
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, ProfileCloser>;

struct TransformDeleter
{
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Transform = std::unique_ptr<void, TransformDeleter>;

cmsColorSpaceSignature signatureOf(ColorModel model)
{
    switch (model) {
    case ColorModel::Gray:
        return cmsSigGrayData;
    case ColorModel::Rgb:
        return cmsSigRgbData;
    case ColorModel::Cmyk:
        return cmsSigCmykData;
    case ColorModel::Lab:
        return cmsSigLabData;
    }
    return cmsSigRgbData;
}

Profile openProfile(const QByteArray& bytes)
{
    return Profile(
        cmsOpenProfileFromMem(bytes.constData(), static_cast<cmsUInt32Number>(bytes.size()))
    );
}

Profile srgbGrayProfile()
{
    constexpr cmsFloat64Number srgbCurve[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    constexpr cmsCIExyY daylight = {0.3127, 0.3290, 1.0};
    constexpr int srgbCurveType = 4;
    cmsToneCurve* curve = cmsBuildParametricToneCurve(nullptr, srgbCurveType, srgbCurve);
    Profile profile(cmsCreateGrayProfile(&daylight, curve));
    cmsFreeToneCurve(curve);
    return profile;
}

/// What pixels of a model mean when they come without a profile.
Profile assumedProfile(ColorModel model)
{
    if (model == ColorModel::Gray)
        return srgbGrayProfile();
    if (model != ColorModel::Cmyk)
        return Profile(cmsCreate_sRGBProfile());
    VipsBlob* blob = nullptr;
    if (vips_profile_load("cmyk", &blob, nullptr) != 0 || blob == nullptr)
        return nullptr;
    std::size_t size = 0;
    const void* bytes = vips_blob_get(blob, &size);
    Profile profile(cmsOpenProfileFromMem(bytes, static_cast<cmsUInt32Number>(size)));
    vips_area_unref(VIPS_AREA(blob));
    return profile;
}

Profile profileOf(const ImageNode& node)
{
    return node.iccProfile.isEmpty() ? assumedProfile(node.colorModel)
                                     : openProfile(node.iccProfile);
}

cmsUInt32Number sampleLayout(ColorModel model, bool hasAlpha, VipsBandFormat format)
{
    const int space = model == ColorModel::Cmyk ? PT_CMYK
        : model == ColorModel::Gray             ? PT_GRAY
                                                : PT_RGB;
    return COLORSPACE_SH(static_cast<cmsUInt32Number>(space))
        | CHANNELS_SH(static_cast<cmsUInt32Number>(colorBands(model)))
        | EXTRA_SH(hasAlpha ? 1U : 0U) | BYTES_SH(format == VIPS_FORMAT_USHORT ? 2U : 1U);
}

/// One side of a colour conversion.
struct Side
{
    const Profile& profile;
    ColorModel model;
    VipsBandFormat format;
};

/// Null when the profiles lack what a conversion needs.
Transform transformBetween(const Side& from, const Side& to, cmsUInt32Number flags)
{
    const bool hasAlpha = (flags & cmsFLAGS_COPY_ALPHA) != 0;
    return Transform(cmsCreateTransform(
        from.profile.get(),
        sampleLayout(from.model, hasAlpha, from.format),
        to.profile.get(),
        sampleLayout(to.model, hasAlpha, to.format),
        INTENT_RELATIVE_COLORIMETRIC,
        flags
    ));
}

/// `pixels` taken from one side to the other; the alpha is only brought to the other depth.
vips::VImage
transformed(const vips::VImage& pixels, const Side& from, const Side& to, bool hasAlpha)
{
    if (!from.profile || !to.profile)
        throw vips::VError("no colour profile for the conversion");
    const std::shared_ptr<void> transform = transformBetween(
        from,
        to,
        // The one-pixel cache is not safe when several threads share a transform.
        cmsFLAGS_NOCACHE | cmsFLAGS_BLACKPOINTCOMPENSATION | (hasAlpha ? cmsFLAGS_COPY_ALPHA : 0U)
    );
    if (!transform)
        throw vips::VError("the colour profiles don't go together");
    const KernelOutput output = {
        .bands = colorBands(to.model) + (hasAlpha ? 1 : 0),
        .format = to.format,
        .interpretation = interpretationOf(to.model, to.format),
    };
    return mapRows(std::array{pixels}, output, [transform](const KernelRow<1>& row) {
        cmsDoTransform(
            transform.get(), row.inputs[0], row.output, static_cast<cmsUInt32Number>(row.count)
        );
    });
}

/// Tells whether a conversion can be made; a readable header alone doesn't mean it.
bool isPossible(const Side& from, const Side& to)
{
    constexpr cmsUInt32Number noTables = cmsFLAGS_NOOPTIMIZE; // quick to make, slow to use
    return transformBetween(from, to, noTables) != nullptr;
}

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
