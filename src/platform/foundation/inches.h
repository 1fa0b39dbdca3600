// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::platform {

constexpr double millimetresPerInch = 25.4;
constexpr double centimetresPerInch = 2.54;
constexpr double metresPerInch = 0.0254;

} // namespace brenvaldo::platform
