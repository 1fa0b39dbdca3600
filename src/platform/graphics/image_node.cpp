// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_node.h"

#include "color_profile.h"
#include "deferred_pixels.h"

#include <platform/foundation/inches.h>
#include <platform/foundation/literals.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>
#include <vector>

namespace brenvaldo::platform::graphics {

namespace {

constexpr double defaultDotsPerInch = 72;

/// Profile of decoded pixels; empty without one.
QByteArray embeddedProfile(const vips::VImage& decoded)
{
    if (decoded.get_typeof(VIPS_META_ICC_NAME) == 0)
        return {};
    std::size_t size = 0;
    const void* bytes = decoded.get_blob(VIPS_META_ICC_NAME, &size);
    return {static_cast<const char*>(bytes), static_cast<qsizetype>(size)};
}

/// Files that count in whole pixels a metre mean whole dots per inch: 2835 are 72, not 72.009.
std::optional<double> wholeDotsPerInch(double pixelsPerMetre)
{
    constexpr double noise = 1e-6;
    const double counted = std::round(pixelsPerMetre);
    const double dotsPerInch = std::round(counted * metresPerInch);
    const bool isCounted = std::abs(pixelsPerMetre - counted) < noise;
    if (isCounted && std::round(dotsPerInch / metresPerInch) == counted)
        return dotsPerInch;
    return std::nullopt;
}

double statedDotsPerInch(const vips::VImage& decoded)
{
    // One pixel a millimetre is also what the engine reports when a file states nothing.
    const double pixelsPerMillimetre = decoded.xres();
    const bool isStated = pixelsPerMillimetre != 1 || decoded.get_typeof("resolution-unit") != 0;
    if (!std::isfinite(pixelsPerMillimetre) || pixelsPerMillimetre <= 0 || !isStated)
        return defaultDotsPerInch;
    return dotsPerInchOf(pixelsPerMillimetre * 1000);
}

bool isLab(VipsInterpretation interpretation)
{
    return interpretation == VIPS_INTERPRETATION_LAB || interpretation == VIPS_INTERPRETATION_LABQ
        || interpretation == VIPS_INTERPRETATION_LABS;
}

vips::VImage withIntegerSamples(const vips::VImage& decoded)
{
    switch (decoded.format()) {
    case VIPS_FORMAT_UCHAR:
    case VIPS_FORMAT_USHORT:
        return decoded;
    case VIPS_FORMAT_UINT:
        return (decoded >> 16).cast(VIPS_FORMAT_USHORT);
    case VIPS_FORMAT_FLOAT:
    case VIPS_FORMAT_DOUBLE:
        return decoded.linear(65535.0, 0.5).cast(VIPS_FORMAT_USHORT);
    default:
        return decoded.cast(VIPS_FORMAT_USHORT);
    }
}

ColorModel modelOf(const vips::VImage& decoded)
{
    if (decoded.interpretation() == VIPS_INTERPRETATION_CMYK && decoded.bands() >= 4)
        return ColorModel::Cmyk;
    return decoded.bands() >= 3 ? ColorModel::Rgb : ColorModel::Gray;
}

void* collectName(VipsImage* /*image*/, const char* name, GValue* /*value*/, void* names)
{
    static_cast<std::vector<std::string>*>(names)->emplace_back(name);
    return nullptr;
}

/// A copy without metadata; what the engine itself needs to know stays.
vips::VImage bare(const vips::VImage& pixels, VipsInterpretation interpretation)
{
    const vips::VImage copy = pixels.copy(vips::VImage::option()
                                              ->set("interpretation", interpretation)
                                              ->set("xres", 1.0)
                                              ->set("yres", 1.0));
    std::vector<std::string> names;
    vips_image_map(copy.get_image(), collectName, &names);
    for (const std::string& name : names) {
        if (name != VIPS_META_SEQUENTIAL)
            vips_image_remove(copy.get_image(), name.c_str());
    }
    return copy;
}

} // namespace

Image makeImage(ImageNode node)
{
    return Image(std::make_shared<const ImageNode>(std::move(node)));
}

Image builtImage(const ImageNode& original, PixelSize size, const std::function<ImageNode()>& build)
{
    try {
        return makeImage(build());
    } catch (const std::exception& error) {
        PixelLayout layout = layoutOf(original.pixels);
        layout.width = std::clamp(size.width, 1, VIPS_MAX_COORD - 1);
        layout.height = std::clamp(size.height, 1, VIPS_MAX_COORD - 1);
        const auto fail = [reason = faultText(error)]() -> vips::VImage {
            throw vips::VError(reason.toStdString());
        };
        return makeImage(original.withPixels(deferredPixels(layout, fail)));
    }
}

double dotsPerInchOf(double pixelsPerMetre)
{
    if (const auto whole = wholeDotsPerInch(pixelsPerMetre))
        return *whole;
    constexpr double precision = 1e4; // counting in other units leaves noise behind
    return std::round(pixelsPerMetre * metresPerInch * precision) / precision;
}

VipsInterpretation interpretationOf(ColorModel model, VipsBandFormat format)
{
    const bool isDeep = format == VIPS_FORMAT_USHORT;
    switch (model) {
    case ColorModel::Gray:
        return isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    case ColorModel::Cmyk:
        return VIPS_INTERPRETATION_CMYK;
    case ColorModel::Rgb:
    case ColorModel::Lab:
        return isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
    }
    return VIPS_INTERPRETATION_ERROR;
}

ImageNode nodeOfDecodedPixels(const vips::VImage& decoded)
{
    const bool wasLab = isLab(decoded.interpretation());
    vips::VImage pixels = wasLab ? decoded.colourspace(VIPS_INTERPRETATION_sRGB) : decoded;
    pixels = withIntegerSamples(pixels);

    ImageNode node;
    node.colorModel = modelOf(pixels);
    const int bands = colorBands(node.colorModel);
    node.hasAlpha = pixels.bands() > bands;
    const int keptBands = bands + (node.hasAlpha ? 1 : 0);
    if (pixels.bands() > keptBands)
        pixels = pixels.extract_band(0, vips::VImage::option()->set("n", keptBands));
    node.pixels = bare(pixels, interpretationOf(node.colorModel, pixels.format()));
    if (!wasLab)
        node.iccProfile = usableProfile(embeddedProfile(decoded), node.colorModel);
    node.dotsPerInch = statedDotsPerInch(decoded);
    return node;
}

bool isSequential(const vips::VImage& pixels)
{
    return vips_image_is_sequential(pixels.get_image()) != FALSE;
}

QString faultText(const std::exception& error)
{
    // The buffer is everybody's; an error of the engine holds what stood in it when it was raised.
    const QString text = QString::fromUtf8(error.what()).simplified();
    const QString buffered = QString::fromUtf8(vips_error_buffer()).simplified();
    vips_error_clear();
    if (!text.isEmpty())
        return text;
    return buffered.isEmpty() ? u"the data are damaged"_s : buffered; // some decoders only warn
}

} // namespace brenvaldo::platform::graphics
