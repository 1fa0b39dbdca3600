// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control.h"

#include <platform/graphics/image.h>

#include <optional>

namespace brenvaldo::controls {

/// Shows one picture, or nothing.
class ImageView : public Control
{
public:
    using Control::Control;

    [[nodiscard]] const std::optional<platform::graphics::Image>& image() const { return m_image; }
    void setImage(std::optional<platform::graphics::Image> image);
    void clear() { setImage(std::nullopt); }

private:
    std::optional<platform::graphics::Image> m_image;
};

} // namespace brenvaldo::controls
