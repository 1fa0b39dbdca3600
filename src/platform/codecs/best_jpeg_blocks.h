// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

/// \file
/// What a JPEG of the best quality makes of pixels. Each square of eight by eight is coded by
/// itself, all steps of its frequencies are one level high, and nothing is lost but fractions: so
/// the picture comes out without a file being written and read.

namespace brenvaldo::platform::codecs {

/// Eight rows of RGB pixels side by side, plane by plane; full levels from 0 to 255.
struct BlockRow
{
    static constexpr std::size_t side = 8;
    static constexpr std::size_t width = 32 * side;
    using Plane = std::array<std::array<float, width>, side>;

    alignas(64) std::array<Plane, 3> planes;
};

/// The pixels as they come back. Squares that lie next to each other don't change each other.
void passThroughJpeg(BlockRow& pixels);

} // namespace brenvaldo::platform::codecs
