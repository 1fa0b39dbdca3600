// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

#include <QColor>

namespace brenvaldo::test {

inline constexpr platform::graphics::Color plainRed{.red = 1};
inline constexpr platform::graphics::Color plainGreen{.green = 1};

/// The same colours as a picture shows them.
inline const QColor redPixel(255, 0, 0);
inline const QColor greenPixel(0, 255, 0);
inline const QColor bluePixel(0, 0, 255);

} // namespace brenvaldo::test
