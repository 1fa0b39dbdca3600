// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_image.h"

namespace brenvaldo::platform::filters {

/// `image` where `mask` is white and `background` where it is black, in linear light; the mask's
/// green counts. All three have the same size.
[[nodiscard]] FilterImage
blendedWithMask(const FilterImage& image, const FilterImage& background, const FilterImage& mask);

/// A transparent picture as large as `like`.
[[nodiscard]] FilterImage transparent(const FilterImage& like);

} // namespace brenvaldo::platform::filters
