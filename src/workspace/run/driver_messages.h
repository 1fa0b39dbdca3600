// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// \file
/// Texts of the alerts of the list and of the batch driver.

namespace brenvaldo::workspace {

struct Message
{
    QString title;
    QString text;
};

/// The function sorts by its own button.
[[nodiscard]] Message batchSortMessage();
/// The function makes codes by its own button; told at the process button.
[[nodiscard]] Message codeRunMessage();
/// The function needs no photos; told when some are to be chosen.
[[nodiscard]] Message codeChoiceMessage();
[[nodiscard]] Message missingDestinationMessage();
[[nodiscard]] Message noPhotosMessage();
[[nodiscard]] Message wrongValueMessage();
[[nodiscard]] Message wrongSizeMessage();

} // namespace brenvaldo::workspace
