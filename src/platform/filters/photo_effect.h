// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_image.h"

#include <array>

namespace brenvaldo::platform::filters {

/// The look of a kind of film, on encoded straight colour: colours are mixed, saturated, brightened
/// and bent in an S, and the ends are moved.
struct PhotoEffect
{
    using Triple = std::array<double, 3>; ///< of red, green and blue

    std::array<Triple, 3> mix; ///< rows for red, green and blue
    double saturation;
    Triple gamma;
    Triple curve; ///< 1 is a smoothstep, below 0 flattens
    Triple black; ///< what black becomes
    Triple white; ///< what white becomes
};

extern const PhotoEffect noir; ///< black and white with exaggerated contrast
extern const PhotoEffect mono; ///< black and white with low contrast
extern const PhotoEffect chrome; ///< exaggerated colour
extern const PhotoEffect process; ///< cool, lifted shadows
extern const PhotoEffect fade; ///< diminished colour, matte blacks
extern const PhotoEffect instant; ///< distorted colour, cream whites
extern const PhotoEffect transfer; ///< warm and brighter

[[nodiscard]] FilterImage withPhotoEffect(const FilterImage& image, const PhotoEffect& effect);

/// The picture as `noir` has it; its depth, profile and alpha stay. A picture of inks becomes one
/// of 8-bit sRGB.
[[nodiscard]] graphics::Image photoEffectNoir(const graphics::Image& image);

} // namespace brenvaldo::platform::filters
