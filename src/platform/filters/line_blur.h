// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vips/vips8>

namespace brenvaldo::platform::filters {

/// `pixels` (floats, readable in any order) blurred with a Gaussian of `sigma` pixels, lazily; what
/// lies beyond an edge counts as the pixels of the edge.
[[nodiscard]] vips::VImage lineBlurred(const vips::VImage& pixels, double sigma);

} // namespace brenvaldo::platform::filters
