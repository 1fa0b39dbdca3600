// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_transform.h"

#include "region_kernel.h"

#include <cstdint>

namespace brenvaldo::platform::graphics {

namespace {

struct TransformDeleter
{
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Transform = std::unique_ptr<void, TransformDeleter>;

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

/// The engine makes a table of colours for each transform, which takes as long as this many pixels
/// do without one.
cmsUInt32Number noTableForFew(const vips::VImage& pixels)
{
    constexpr std::int64_t many = 1 << 16;
    return std::int64_t{pixels.width()} * pixels.height() < many ? cmsFLAGS_NOOPTIMIZE : 0U;
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

constexpr cmsUInt32Number iccNumber(RenderingIntent intent)
{
    switch (intent) {
    case RenderingIntent::Perceptual:
        return INTENT_PERCEPTUAL;
    case RenderingIntent::Relative:
        return INTENT_RELATIVE_COLORIMETRIC;
    case RenderingIntent::Saturation:
        return INTENT_SATURATION;
    case RenderingIntent::Absolute:
        return INTENT_ABSOLUTE_COLORIMETRIC;
    }
    return INTENT_RELATIVE_COLORIMETRIC;
}

/// Null when the profiles lack what a conversion needs.
Transform
transformBetween(const Side& from, const Side& to, cmsUInt32Number flags, RenderingIntent intent)
{
    const bool hasAlpha = (flags & cmsFLAGS_COPY_ALPHA) != 0;
    return Transform(cmsCreateTransform(
        from.profile.get(),
        sampleLayout(from.model, hasAlpha, from.format),
        to.profile.get(),
        sampleLayout(to.model, hasAlpha, to.format),
        iccNumber(intent),
        flags
    ));
}

} // namespace

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

vips::VImage transformed(
    const vips::VImage& pixels,
    const Side& from,
    const Side& to,
    bool hasAlpha,
    const Rendering& rendering
)
{
    if (!from.profile || !to.profile)
        throw vips::VError("no colour profile for the conversion");
    const bool compensates = rendering.blackPoint == BlackPoint::Compensated;
    const std::shared_ptr<void> transform = transformBetween(
        from,
        to,
        // The one-pixel cache is not safe when several threads share a transform.
        cmsFLAGS_NOCACHE | noTableForFew(pixels)
            | (compensates ? cmsFLAGS_BLACKPOINTCOMPENSATION : 0U)
            | (hasAlpha ? cmsFLAGS_COPY_ALPHA : 0U),
        rendering.intent
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

bool isPossible(const Side& from, const Side& to)
{
    constexpr cmsUInt32Number noTables = cmsFLAGS_NOOPTIMIZE; // quick to make, slow to use
    return transformBetween(from, to, noTables, RenderingIntent::Relative) != nullptr;
}

} // namespace brenvaldo::platform::graphics
