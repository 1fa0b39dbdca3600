// SPDX-License-Identifier: GPL-3.0-or-later
#include "filtered_image.h"

#include <platform/graphics/image_node.h>
#include <platform/graphics/sample_conversion.h>

namespace brenvaldo::platform::filters {

graphics::Image filteredImage(
    const graphics::Image& photo, const std::function<FilterImage(const FilterImage&)>& chain
)
{
    return graphics::builtImage(*photo.node(), photo.pixelSize(), [&] {
        return *chain(FilterImage(photo)).toImage(photo).node();
    });
}

graphics::Image opaqueOnWhite(const graphics::Image& image)
{
    return graphics::builtImage(*image.node(), image.pixelSize(), [&] {
        return graphics::flattenedOnWhite(*image.node());
    });
}

} // namespace brenvaldo::platform::filters
