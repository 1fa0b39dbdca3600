// SPDX-License-Identifier: GPL-3.0-or-later
#include "filtered_image.h"

#include <platform/graphics/image_node.h>

namespace brenvaldo::platform::filters {

graphics::Image filteredImage(
    const graphics::Image& photo, const std::function<FilterImage(const FilterImage&)>& chain
)
{
    return graphics::builtImage(*photo.node(), photo.pixelSize(), [&] {
        return *chain(FilterImage(photo)).toImage(photo).node();
    });
}

} // namespace brenvaldo::platform::filters
