// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image_node.h>

namespace brenvaldo::platform::codecs {

/// For encoders that hold the whole picture and crash where memory ends.
/// @throws vips::VError "not enough memory …" when `bytesPerPixel` for each pixel, and what the
/// decoder takes besides, can't be had at present.
void checkMemoryForWholePicture(const graphics::ImageNode& node, int bytesPerPixel);

} // namespace brenvaldo::platform::codecs
