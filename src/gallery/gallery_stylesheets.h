// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "stylesheet_values.h"

#include <QString>

namespace brenvaldo::gallery {

/// Pages whose cells float beside each other, as wide as the window's width tells.
[[nodiscard]] QString tableStylesheet(const StylesheetValues& values);

/// Pages whose cells stand in a grid, with more columns in wider windows.
[[nodiscard]] QString gridStylesheet(const StylesheetValues& values);

} // namespace brenvaldo::gallery
