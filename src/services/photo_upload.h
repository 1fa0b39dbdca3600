// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::panels {
struct SortingPanel;
}

namespace brenvaldo::services {

/// One photo for the photo library.
struct PhotoUpload
{
    QString path;
    QString album; ///< title of the selected row; "" without one
    QString keyword; ///< several, parted by ";"
    QString title;
    QString description;
    QString favourite; ///< "1" or "0"
};

/// Reads the controls for the photo at `path`.
[[nodiscard]] PhotoUpload readUpload(const panels::SortingPanel& panel, const QString& path);

} // namespace brenvaldo::services
