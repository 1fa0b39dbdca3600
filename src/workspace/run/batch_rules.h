// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>
#include <QString>

/// \file
/// Rules of a run that need no photo and no control.

namespace brenvaldo::workspace {

/// The filter of the apply-on pop-up at an index: "ALL", "L", "P" or "S".
[[nodiscard]] QString applyOnFilter(int index);

/// How far the bar goes up at each of `photos` photos, at least one: whole thousandths, so 0 from
/// 1001 photos on.
[[nodiscard]] double progressStep(qsizetype photos);

/// Folder and name in one, the name without its extension.
[[nodiscard]] QString destinationBase(const QString& folder, const QString& outputName);

/// Tells the log that the function is still to come.
void logNotBuilt(const QLatin1String& function);

} // namespace brenvaldo::workspace
