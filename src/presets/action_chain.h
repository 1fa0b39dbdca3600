// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/containers.h>

#include <QString>

/// \file
/// A chain of file-name actions, as a list with one row an action and as the text of a preset. A
/// row is a line of TAB-separated fields; its second field is padding that the text leaves out.

namespace brenvaldo::presets {

/// What `chainText` gives for an empty list.
[[nodiscard]] QString noActions();

/// The rows joined by CR, without their padding.
[[nodiscard]] QString chainText(const controls::ArrayController& actions);

/// Adds the rows of `chain` to the list, padded with 46 blanks.
void loadChain(const QString& chain, controls::ArrayController& actions);

} // namespace brenvaldo::presets
