// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// \file
/// Where the program keeps its files, by the XDG base directories; read anew at each call, nothing
/// is created.

namespace brenvaldo::platform {

/// `$XDG_DATA_HOME`, by default `~/.local/share`.
[[nodiscard]] QString applicationSupportFolder();

/// The program's own home, `$XDG_DATA_HOME/Brenvaldo`; holds `Temp`.
[[nodiscard]] QString homeFolder();

/// `$XDG_CONFIG_HOME`, by default `~/.config`.
[[nodiscard]] QString configurationFolder();

/// The user's desktop folder.
[[nodiscard]] QString desktopFolder();

} // namespace brenvaldo::platform
