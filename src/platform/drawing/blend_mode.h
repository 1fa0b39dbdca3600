// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::platform::drawing {

/// How the colours of a layer meet those below, on encoded values.
enum class BlendMode {
    Normal,
    Multiply,
    Overlay,
    Darken,
    Lighten,
    ColorDodge,
    ColorBurn,
    SoftLight,
    Difference,
    Exclusion,
    Color, ///< hue and saturation of the layer, luminosity of what is below
    Luminosity, ///< the other way round
    PlusDarker, ///< what both lack of white is taken from white
    PlusLighter ///< the sum
};

} // namespace brenvaldo::platform::drawing
