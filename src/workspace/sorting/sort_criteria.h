// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panels/batch_sort_controls.h>

#include <QString>

namespace brenvaldo::workspace {

/// What a file must meet to be sorted; a criterion that is not chosen counts neither for nor
/// against.
struct SortCriteria
{
    /// A text of the file, and what it is compared with.
    struct Comparison
    {
        bool isChosen = false;
        int subject = 0;
        int selector = 0; ///< contains, begins with, ends with, is
        QString value;
    };

    Comparison picture; ///< of: user comment, width, height, colour profile
    Comparison name; ///< of: name without extension, else the extension
    bool choosesLabel = false;
    bool isNotLabel = false;
    int label = 0;
};

[[nodiscard]] SortCriteria readSettings(const panels::BatchSortControls& panel);

/// True when the file meets all criteria that are chosen, tried from left to right; false when none
/// is. A value that is longer than the text that should end with it raises a range error.
[[nodiscard]] bool meets(const SortCriteria& criteria, const QString& path);

} // namespace brenvaldo::workspace
