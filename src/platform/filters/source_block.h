// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pixel_node.h"

namespace brenvaldo::platform::filters {

/// Reads `count` pixels of the source `node`: bytes, 16-bit samples, or premultiplied floats out of
/// 1. What lies behind them in the block is transparent.
void readBlock(const PixelNode& node, const void* samples, int count, PixelBlock& out);

} // namespace brenvaldo::platform::filters
