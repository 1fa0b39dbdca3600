// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/control.h>

#include <functional>
#include <vector>

/// \file
/// What a load of a preset does beyond giving a control its value. Each reads the stored text as a
/// number.

namespace brenvaldo::presets {

using LoadEffect = std::function<void(const QString& text)>;
using ControlList = std::vector<controls::Control*>;

void setAllEnabled(const ControlList& controls, bool enabled);

/// Enables the controls when the number is not 0 and disables them otherwise.
[[nodiscard]] LoadEffect enablesUnlessZero(ControlList controls);

/// Enables the controls when the number is `value` and disables them otherwise.
[[nodiscard]] LoadEffect enablesWhen(int value, ControlList controls);

/// Disables the controls when the number is `value` and enables them otherwise.
[[nodiscard]] LoadEffect disablesWhen(int value, ControlList controls);

/// Shows the control when the number is `value` and hides it otherwise.
[[nodiscard]] LoadEffect showsWhen(int value, controls::Control& control);

} // namespace brenvaldo::presets
