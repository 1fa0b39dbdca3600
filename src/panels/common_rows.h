// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// A colour well with its hexadecimal digits beside it.
[[nodiscard]] Row
colorRow(const QString& label, controls::ColorWell& well, controls::TextField& hexField);

/// Two offsets in pixels, across and along; `hint` tells which way they count.
[[nodiscard]] Row
offsetRow(controls::TextField& xOffset, controls::TextField& yOffset, const QString& hint);

/// A text field with its label and its unit.
[[nodiscard]] Row
textRow(const QString& label, controls::TextField& field, const QString& unit = {});

} // namespace brenvaldo::panels
