// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_node.h"

namespace brenvaldo::platform::graphics {

/// `profile` if it can be read and describes pixels of `model`; empty otherwise.
[[nodiscard]] QByteArray usableProfile(const QByteArray& profile, ColorModel model);

/// The picture with its colours in sRGB, grey as grey with the sRGB curve; the depth and the alpha
/// stay.
///
/// Without a profile of its own RGB and grey are taken as sRGB, CMYK as print ink. The result
/// carries no profile.
[[nodiscard]] ImageNode convertedToSrgb(const ImageNode& node);

/// sRGB `layer` (8-bit RGB with alpha) in the colours and the depth of `target`; the alpha stays
/// behind the samples.
[[nodiscard]] vips::VImage srgbLayerInColorsOf(const vips::VImage& layer, const ImageNode& target);

} // namespace brenvaldo::platform::graphics
