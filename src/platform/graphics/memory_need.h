// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image.h"

namespace brenvaldo::platform::graphics {

/// About how many bytes of memory are in use while the picture is made and encoded; a high guess.
[[nodiscard]] std::size_t memoryNeed(const Image& image);

} // namespace brenvaldo::platform::graphics
