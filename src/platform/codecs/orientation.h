// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::platform::codecs {

/// How stored pixels come to stand upright: turned, then flipped.
struct UprightTurn
{
    int quarters = 0; ///< clockwise
    bool isMirrored = false; ///< left and right change places, after the turn
};

/// The turn that an orientation from 1 to 8 asks for; none for other numbers.
[[nodiscard]] constexpr UprightTurn uprightTurn(int orientation)
{
    constexpr UprightTurn turns[] = {
        {0, false}, {0, true}, {2, false}, {2, true}, {1, true}, {1, false}, {3, true}, {3, false}};
    return orientation >= 1 && orientation <= 8 ? turns[orientation - 1] : UprightTurn{};
}

} // namespace brenvaldo::platform::codecs
