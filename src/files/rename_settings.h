// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ns_string_handling.h"

#include <panels/rename_panel.h>

#include <QString>

/// \file
/// What the panel of renaming says.

namespace brenvaldo::files {

enum class Renaming { Strip, Replace, Prefix, Postfix, Numbering };

/// The transform of the selected tab.
[[nodiscard]] Renaming selectedRenaming(const panels::RenamePanel& panel);

[[nodiscard]] StripSettings stripSettings(const panels::RenamePanel& panel);
[[nodiscard]] ReplaceSettings replaceSettings(const panels::RenamePanel& panel);
[[nodiscard]] PrefixSettings prefixSettings(const panels::RenamePanel& panel);
[[nodiscard]] PostfixSettings postfixSettings(const panels::RenamePanel& panel);
[[nodiscard]] NumberingSettings numberingSettings(const panels::RenamePanel& panel);

/// The name that the transform of the selected tab gives the file at `path`; "" where it gives none
/// that a file can have.
[[nodiscard]] QString renamedByPanel(const panels::RenamePanel& panel, const QString& path);

} // namespace brenvaldo::files
