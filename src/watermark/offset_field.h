// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/text_controls.h>

#include <algorithm>

namespace brenvaldo::watermark {

/// An offset in pixels. Offsets are limited: beyond this no layer touches a photo.
[[nodiscard]] inline int offsetOf(const controls::TextField& field)
{
    constexpr int farthest = 1 << 24;
    return std::clamp(field.intValue(), -farthest, farthest);
}

} // namespace brenvaldo::watermark
