// SPDX-License-Identifier: GPL-3.0-or-later
#include "memory_check.h"

#include <sys/mman.h>

namespace brenvaldo::platform::codecs {

namespace {

bool isAvailable(std::size_t bytes)
{
    void* const block
        = ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (block == MAP_FAILED)
        return false;
    ::munmap(block, bytes);
    return true;
}

} // namespace

void checkMemoryForWholePicture(const graphics::ImageNode& node, int bytesPerPixel)
{
    const auto width = static_cast<std::size_t>(node.pixels.width());
    const auto height = static_cast<std::size_t>(node.pixels.height());
    const std::size_t own = width * height * static_cast<std::size_t>(bytesPerPixel);
    if (!isAvailable(own + node.decodingBytes))
        throw vips::VError(
            "not enough memory for " + std::to_string(width) + " x " + std::to_string(height)
            + " pixels"
        );
}

} // namespace brenvaldo::platform::codecs
