// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_view.h"

namespace brenvaldo::controls {

void ImageView::setImage(std::optional<platform::graphics::Image> image)
{
    m_image = std::move(image);
    changed();
}

} // namespace brenvaldo::controls
