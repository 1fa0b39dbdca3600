// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::views {

/// "Process 16 photos"; "Process" when a run takes none.
[[nodiscard]] QString runTitle(qsizetype photos);

} // namespace brenvaldo::views
