// SPDX-License-Identifier: GPL-3.0-or-later
#include "memory_need.h"

#include "deferred_pixels.h"
#include "image_node.h"

namespace brenvaldo::platform::graphics {

std::size_t memoryNeed(const Image& image)
{
    // Rows on their way, and the buffers of decoder and encoder.
    constexpr std::size_t streaming = 32U << 20U;
    // A picture that is turned, and an encoder that wants it whole, hold all pixels each.
    const std::size_t whole = sizeOf(layoutOf(image.node()->pixels));
    return streaming + 2 * whole + image.node()->decodingBytes;
}

} // namespace brenvaldo::platform::graphics
