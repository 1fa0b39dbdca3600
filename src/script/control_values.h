// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command.h"

#include <controls/user_input.h>

namespace brenvaldo::script {

/// Gives `control` the value that `word` names, as a user would, and sends its actions.
[[nodiscard]] Misunderstanding
giveValue(controls::Control& control, const QString& word, const controls::UserInput& user);

/// The value of `control` as the fields of a printed line: two for an item of a list, one
/// otherwise.
[[nodiscard]] QStringList valueFields(const controls::Control& control);

} // namespace brenvaldo::script
