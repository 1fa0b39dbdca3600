// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::views {

/// What a photographer calls the function of that id; the id itself where there is no such name.
[[nodiscard]] QString functionTitle(const QString& function);

} // namespace brenvaldo::views
