// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace brenvaldo::files {

/// The two operations that open a panel by a mode; each knows modes of its own.
enum class PanelForm { Plain, OC };

/// What a mode asks the user for.
struct PanelMode
{
    enum class Chooses { Files, Folder };

    Chooses chooses = Chooses::Files;
    QStringList allowedTypes = {}; ///< extensions; empty allows every file
    /// Extensions that the files of a chosen folder must have, to the letter; empty takes all.
    QStringList scannedExtensions = {};
    QString message = {};
};

/// Nothing when the form does not know a mode of that name.
[[nodiscard]] std::optional<PanelMode> panelMode(const QString& name, PanelForm form);

/// The paths of all files in `folder` and below whose extension is one of `extensions`, to the
/// letter; of all files when there are none. Hidden files are left out.
[[nodiscard]] QStringList scannedFiles(const QString& folder, const QStringList& extensions);

} // namespace brenvaldo::files
