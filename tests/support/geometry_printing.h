// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

#include <ostream>

namespace brenvaldo::platform::graphics {

// Found by GoogleTest when an assertion prints a size or a rectangle.
inline void PrintTo(const PixelSize& size, std::ostream* out)
{
    *out << size.width << " x " << size.height;
}

inline void PrintTo(const PixelRect& rect, std::ostream* out)
{
    *out << rect.width << " x " << rect.height << " at (" << rect.x << ", " << rect.y << ')';
}

} // namespace brenvaldo::platform::graphics
