// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panels/batch_sort_controls.h>

#include <QString>

namespace brenvaldo::workspace {

/// The criteria and what is done, as one sentence: "Copies files whose name contains “lake” to
/// /best/."
[[nodiscard]] QString sortSentence(const panels::BatchSortControls& panel);

} // namespace brenvaldo::workspace
