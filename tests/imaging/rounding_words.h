// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::test {

/// `RoundingSettings::type`.
inline constexpr int rectangle = 0;
inline constexpr int circle = 1;
inline constexpr int ellipse = 2;

/// `RoundingSettings::borderPosition`.
inline constexpr int around = 1;

} // namespace brenvaldo::test
