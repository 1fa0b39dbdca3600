// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "slide_show_values.h"

#include <QString>

namespace brenvaldo::gallery {

/// A show with buttons and dots.
[[nodiscard]] QString slideShowStylesheet(const SlideShowValues& values);

/// A show that slides by itself, one rule a picture.
[[nodiscard]] QString slidingShowStylesheet(const SlidingShowValues& values);

/// A dense grid in which a picture takes one, two or three cells by its class.
[[nodiscard]] QString responsiveGridStylesheet(const ResponsiveGridValues& values);

} // namespace brenvaldo::gallery
