// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control.h"

#include <platform/graphics/color.h>

namespace brenvaldo::controls {

/// A field that shows a colour and lets the user choose another.
class ColorWell : public Control
{
public:
    explicit ColorWell(const QString& name, platform::Color color = {});

    [[nodiscard]] const platform::Color& color() const { return m_color; }
    void setColor(const platform::Color& color);

private:
    platform::Color m_color;
};

} // namespace brenvaldo::controls
