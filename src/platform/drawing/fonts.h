// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

namespace brenvaldo::platform::drawing {

/// Names of all installed faces in the order of their families: "DejaVu Sans", "DejaVu Sans
/// Bold"...
///
/// A family's plain face has the family's name.
[[nodiscard]] QStringList installedFontNames();

/// The face of one of these names; a name that is not installed gives the font that stands in for
/// it.
[[nodiscard]] QFont fontNamed(const QString& name);

/// The bold face of the font's family with the same width and slant; a face that is bold or heavier
/// stays.
[[nodiscard]] QFont boldFaceOf(const QFont& font);

} // namespace brenvaldo::platform::drawing
