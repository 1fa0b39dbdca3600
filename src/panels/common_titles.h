// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace brenvaldo::panels {

/// Names of the nine anchors of a position grid, row by row from the top left.
[[nodiscard]] QStringList positionGridTitles();

/// Directions of a gradient, by 90 degrees.
[[nodiscard]] QStringList gradientAngleTitles();

/// Blend modes of frames and borders.
[[nodiscard]] QStringList frameBlendTitles();

/// Strengths from "0.1" to "1.0".
[[nodiscard]] QStringList intensityTitles();

/// The action of a text field that selects the function its tag stands for.
[[nodiscard]] QString endEditingAction();

} // namespace brenvaldo::panels
