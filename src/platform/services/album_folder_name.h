// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::platform::services {

/// The name of an album's folder: its title without the characters that some file systems refuse,
/// at most 200 bytes long; "Untitled" where nothing is left.
[[nodiscard]] QString albumFolderName(const QString& title);

/// The name, or with " (2)", " (3)" and so on before its extension, the first that `isTaken` is
/// not true for.
template <class IsTaken>
[[nodiscard]] QString
freeName(const QString& stem, const QString& extension, const IsTaken& isTaken)
{
    QString name = stem + extension;
    for (int number = 2; isTaken(name); ++number)
        name = stem + QStringLiteral(" (%1)").arg(number) + extension;
    return name;
}

} // namespace brenvaldo::platform::services
