// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_node.h"

#include <array>

namespace brenvaldo::platform::graphics {

/// 8-bit samples of the picture, 16-bit ones rounded.
[[nodiscard]] ImageNode withBytes(const ImageNode& node);

/// The picture laid on white, without alpha.
[[nodiscard]] ImageNode flattenedOnWhite(const ImageNode& node);

/// The picture, of 8-bit samples, laid on a ground with these samples, without alpha.
[[nodiscard]] ImageNode flattenedOn(const ImageNode& node, const std::array<unsigned, 4>& ground);

/// The picture in 8-bit sRGB with three colour bands, whatever it was; its alpha stays.
[[nodiscard]] ImageNode withRgbBytes(const ImageNode& node);

} // namespace brenvaldo::platform::graphics
