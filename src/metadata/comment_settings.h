// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::panels {
struct ExifPanel;
}

namespace brenvaldo::metadata {

/// What a run writes as the comment of each photo.
struct CommentSettings
{
    QString comment;
    int clearState = 0; ///< state of `cbClearBeforeAdd`
};

/// Reads the controls.
[[nodiscard]] CommentSettings readSettings(const panels::ExifPanel& panel);

} // namespace brenvaldo::metadata
