// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/storage/desktop.h>

namespace brenvaldo::views {

/// The user's desktop: its browser and its file manager.
class QtDesktop : public platform::storage::Desktop
{
public:
    void openUrl(const QUrl& url) override;
    /// Selects the file in the file manager where that can, else opens its folder; never waits.
    void reveal(const QString& path) override;
};

} // namespace brenvaldo::views
