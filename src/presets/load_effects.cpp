// SPDX-License-Identifier: GPL-3.0-or-later
#include "load_effects.h"

#include <platform/foundation/numbers.h>

#include <utility>

namespace brenvaldo::presets {

void setAllEnabled(const ControlList& controls, bool enabled)
{
    for (controls::Control* control : controls)
        control->setEnabled(enabled);
}

LoadEffect enablesUnlessZero(ControlList controls) { return disablesWhen(0, std::move(controls)); }

LoadEffect enablesWhen(int value, ControlList controls)
{
    return [value, controls = std::move(controls)](const QString& text) {
        setAllEnabled(controls, platform::intValue(text) == value);
    };
}

LoadEffect disablesWhen(int value, ControlList controls)
{
    return [value, controls = std::move(controls)](const QString& text) {
        setAllEnabled(controls, platform::intValue(text) != value);
    };
}

LoadEffect showsWhen(int value, controls::Control& control)
{
    return [value, &control](const QString& text) {
        control.setHidden(platform::intValue(text) != value);
    };
}

} // namespace brenvaldo::presets
