// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/containers.h>

class QPushButton;

namespace brenvaldo::views {

/// Gives the widget of a form's button its title, and where our icon set has a drawing for the
/// button, that in place of the title.
void showFace(QPushButton& widget, const controls::Button& button);

} // namespace brenvaldo::views
