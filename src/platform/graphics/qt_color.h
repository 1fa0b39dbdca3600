// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "color.h"

#include <QColor>

namespace brenvaldo::platform::graphics {

/// The colour for a painter, its alpha included.
[[nodiscard]] inline QColor qtColor(const Color& color)
{
    return QColor::fromRgbF(
        static_cast<float>(color.red),
        static_cast<float>(color.green),
        static_cast<float>(color.blue),
        static_cast<float>(color.alpha)
    );
}

} // namespace brenvaldo::platform::graphics
