// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/text_controls.h>

/// \file
/// What leaving a text field does besides taking the text; the field's tag tells.

namespace brenvaldo::panels {

/// Leaving the field selects the function that `tag` stands for and draws the preview anew.
void makeFunctionField(controls::TextField& field, int tag);

/// Leaving the field gives its colour to the colour well that `tag` stands for; these tags lie
/// below those of the functions, so that no function is selected by them.
void makeHexField(controls::TextField& field, int tag);

} // namespace brenvaldo::panels
