// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::files {

/// A web address of the maker, without its scheme, by its key in the program's list of addresses;
/// "" for a key that it does not have.
[[nodiscard]] QString webAddress(const QString& key);

} // namespace brenvaldo::files
