// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_profiles.h"

#include <lcms2.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

namespace brenvaldo::test {

namespace {

QByteArray saved(cmsHPROFILE profile)
{
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    QByteArray bytes(static_cast<qsizetype>(size), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsCloseProfile(profile);
    constexpr qsizetype creationDate = 24; // twelve bytes that differ from run to run
    return bytes.replace(creationDate, 12, QByteArray("\x07\xE8\0\1\0\1\0\0\0\0\0\0", 12));
}

using Sampler = cmsInt32Number (*)(const cmsUInt16Number*, cmsUInt16Number*, void*);

/// Writes a table of colours from `inputs` to `outputs` channels.
void writeTable(
    cmsHPROFILE profile,
    cmsTagSignature tag,
    cmsUInt32Number inputs,
    cmsUInt32Number outputs,
    Sampler sampler
)
{
    constexpr cmsUInt32Number gridPoints = 9;
    cmsPipeline* colors = cmsPipelineAlloc(nullptr, inputs, outputs);
    cmsStage* table = cmsStageAllocCLut16bit(nullptr, gridPoints, inputs, outputs, nullptr);
    cmsStageSampleCLut16bit(table, sampler, nullptr, 0);
    cmsPipelineInsertStage(colors, cmsAT_BEGIN, table);
    cmsWriteTag(profile, tag, colors);
    cmsPipelineFree(colors);
}

constexpr cmsUInt16Number fullSample = 0xFFFF;
constexpr cmsUInt16Number neutralSample = 0x8000;
constexpr cmsUInt16Number whiteSample = 0xFF00; // L* of 100 in a table of 16 bits

cmsInt32Number inkOfLab(const cmsUInt16Number* lab, cmsUInt16Number* ink, void* /*unused*/)
{
    const std::uint32_t light
        = std::min<std::uint32_t>(lab[0], whiteSample) * fullSample / whiteSample;
    ink[0] = ink[1] = ink[2] = 0;
    ink[3] = static_cast<cmsUInt16Number>(fullSample - light);
    return 1;
}

cmsInt32Number labOfInk(const cmsUInt16Number* ink, cmsUInt16Number* lab, void* /*unused*/)
{
    const auto paper = static_cast<unsigned>(fullSample - ink[3]);
    lab[0] = static_cast<cmsUInt16Number>(paper * whiteSample / fullSample);
    lab[1] = lab[2] = neutralSample;
    return 1;
}

constexpr cmsCIExyY daylight = {0.3127, 0.3290, 1.0};

} // namespace

QByteArray wideProfile(qsizetype padding)
{
    constexpr cmsCIExyYTRIPLE primaries = {{0.64, 0.33, 1}, {0.21, 0.71, 1}, {0.15, 0.06, 1}};
    cmsToneCurve* curve = cmsBuildGamma(nullptr, 2.2);
    const std::array curves = {curve, curve, curve};
    cmsHPROFILE profile = cmsCreateRGBProfile(&daylight, &primaries, curves.data());
    cmsFreeToneCurve(curve);
    if (padding > 0) {
        cmsMLU* text = cmsMLUalloc(nullptr, 1);
        cmsMLUsetASCII(
            text, "en", "US", std::string(static_cast<std::size_t>(padding / 2), 'x').c_str()
        );
        cmsWriteTag(profile, cmsSigCopyrightTag, text);
        cmsMLUfree(text);
    }
    return saved(profile);
}

QByteArray oddProfile()
{
    constexpr qsizetype renderingIntent = 64;
    return wideProfile().replace(renderingIntent, 4, QByteArray("\xFF\0\0\0", 4));
}

QByteArray profileOf(const RgbSpace& space)
{
    constexpr int srgbCurveType = 4;
    constexpr cmsFloat64Number srgbCurve[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    const auto& [red, green, blue] = space.primaries;
    const cmsCIExyYTRIPLE primaries
        = {{red.x, red.y, 1}, {green.x, green.y, 1}, {blue.x, blue.y, 1}};
    cmsToneCurve* curve = space.gamma > 0
        ? cmsBuildGamma(nullptr, space.gamma)
        : cmsBuildParametricToneCurve(nullptr, srgbCurveType, srgbCurve);
    const std::array curves = {curve, curve, curve};
    cmsHPROFILE profile = cmsCreateRGBProfile(&daylight, &primaries, curves.data());
    cmsFreeToneCurve(curve);
    return saved(profile);
}

QByteArray grayProfile()
{
    cmsToneCurve* curve = cmsBuildGamma(nullptr, 1.8);
    cmsHPROFILE profile = cmsCreateGrayProfile(&daylight, curve);
    cmsFreeToneCurve(curve);
    return saved(profile);
}

QByteArray blackInkProfile()
{
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 2.4);
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, cmsSigCmykData);
    cmsSetPCS(profile, cmsSigLabData);
    writeTable(profile, cmsSigAToB0Tag, 4, 3, labOfInk);
    writeTable(profile, cmsSigBToA0Tag, 3, 4, inkOfLab);
    return saved(profile);
}

QByteArray labProfile()
{
    cmsHPROFILE profile = cmsCreateLab2Profile(nullptr);
    cmsSetDeviceClass(profile, cmsSigColorSpaceClass);
    return saved(profile);
}

QByteArray emptyProfile()
{
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 4.3);
    cmsSetDeviceClass(profile, cmsSigDisplayClass);
    cmsSetColorSpace(profile, cmsSigRgbData);
    cmsSetPCS(profile, cmsSigXYZData);
    return saved(profile);
}

QByteArray scannerProfile()
{
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 4.3);
    cmsSetDeviceClass(profile, cmsSigInputClass);
    cmsSetColorSpace(profile, cmsSigRgbData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsPipeline* colors = cmsPipelineAlloc(nullptr, 3, 3);
    cmsPipelineInsertStage(colors, cmsAT_BEGIN, cmsStageAllocToneCurves(nullptr, 3, nullptr));
    cmsWriteTag(profile, cmsSigAToB0Tag, colors);
    cmsPipelineFree(colors);
    return saved(profile);
}

} // namespace brenvaldo::test
