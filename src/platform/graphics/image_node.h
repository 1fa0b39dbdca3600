// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image.h"

#include <vips/vips8>

#include <functional>

namespace brenvaldo::platform::graphics {

/// The pixels of an `Image` and what is known about them.
///
/// `pixels` holds the samples of the colour model and the alpha behind them, 8 or 16 bits each,
/// with an interpretation that says the same, and carries no metadata. CMYK is stored as the amount
/// of ink.
struct ImageNode
{
    vips::VImage pixels = {};
    ColorModel colorModel = ColorModel::Rgb;
    bool hasAlpha = false;
    QByteArray iccProfile = {}; ///< fits the colour model, or is empty
    double dotsPerInch = 72;
    std::size_t decodingBytes = 0; ///< memory that the decoder of the photo takes beside
    std::shared_ptr<const ImageNode> stampedOn = {}; ///< what a stamp was laid on; may be null
    std::function<PixelRect()> stampedPart = {}; ///< part that differs from `stampedOn`; may throw
    std::function<Image(PixelSize)> smaller = {}; ///< see `drawnSmallerBy`; may be null

    /// The same picture with other pixels of the same kind.
    [[nodiscard]] ImageNode withPixels(const vips::VImage& other) const
    {
        ImageNode node = *this;
        node.pixels = other;
        node.stampedOn = nullptr;
        node.stampedPart = nullptr;
        node.smaller = nullptr;
        return node;
    }
};

[[nodiscard]] Image makeImage(ImageNode node);

/// The picture that `build` makes of `original`, of `size`.
///
/// What can't be built is a picture all the same: evaluating it fails, with the reason, as it does
/// for a damaged photo. No exception leaves.
[[nodiscard]] Image
builtImage(const ImageNode& original, PixelSize size, const std::function<ImageNode()>& build);

[[nodiscard]] constexpr int colorBands(ColorModel model)
{
    switch (model) {
    case ColorModel::Gray:
        return 1;
    case ColorModel::Rgb:
    case ColorModel::Lab:
        return 3;
    case ColorModel::Cmyk:
        return 4;
    }
    return 0;
}

/// What a file that states this many pixels a metre means.
[[nodiscard]] double dotsPerInchOf(double pixelsPerMetre);

/// The interpretation that goes with pixels of a colour model and depth.
[[nodiscard]] VipsInterpretation interpretationOf(ColorModel model, VipsBandFormat format);

/// Brings what a decoder gives into the form of an `ImageNode`: 8 or 16 bits, no metadata, grey,
/// RGB or CMYK with at most one alpha, Lab as sRGB.
///
/// Takes the ICC profile and the resolution along. Throws `vips::VError` on pixels of no known
/// kind.
[[nodiscard]] ImageNode nodeOfDecodedPixels(const vips::VImage& decoded);

/// True when the pixels come from a source that can be read from top to bottom only.
[[nodiscard]] bool isSequential(const vips::VImage& pixels);

/// What went wrong, in one line; empties the engine's error buffer for the next job.
[[nodiscard]] QString faultText(const std::exception& error);

} // namespace brenvaldo::platform::graphics
