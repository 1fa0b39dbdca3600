// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vips/vips8>

#include <functional>

namespace brenvaldo::platform::graphics {

// The places where lazy pixels become real ones: an encoder, a walk over rows, a copy in memory.
//
// What the engine answers there doesn't prove that a picture is whole: its threads may still be at
// work on the last parts while it asks whether one of them has failed, so a fault in the last part
// gets lost now and then. Therefore all pixels of an evaluation pass one last node of our own,
// which remembers whether a part of them could not be computed, be it by a decoder, a kernel, or
// pixels that are made when they are needed, or was made up by a decoder that only warned of it.

/// Lets `sink` use up the pixels that it is given, which are those of `pixels`.
/// @throws vips::VError when a part of them can't be computed, whatever the sink makes of it; what
/// the sink throws goes on.
void evaluate(
    const vips::VImage& pixels, const std::function<void(const vips::VImage& watched)>& sink
);

/// @throws vips::VError when a part of `pixels` can't be computed.
[[nodiscard]] vips::VImage copiedToMemory(const vips::VImage& pixels);

/// Computes `pixels` and hands over each row, from the top down, on one thread at a time.
/// @throws vips::VError when a part of them can't be computed.
void forEachRow(
    const vips::VImage& pixels, const std::function<void(const unsigned char* row, int y)>& take
);

} // namespace brenvaldo::platform::graphics
