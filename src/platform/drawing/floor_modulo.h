// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::platform::drawing {

/// The place of `value` in a row of tiles of that size: from 0 up to `size`, for negative values
/// too.
[[nodiscard]] constexpr int floorModulo(int value, int size)
{
    return ((value % size) + size) % size;
}

} // namespace brenvaldo::platform::drawing
