// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop.h"

#include <QObject>

#include <functional>

namespace brenvaldo::platform::storage {

/// The desktop that the program runs on. Nothing here waits for another program.
class SystemDesktop : public Desktop
{
public:
    using Opener = std::function<void(const QUrl&)>;

    /// Opens addresses with the applications that the user has set for them.
    SystemDesktop();
    explicit SystemDesktop(Opener opener);

    void openUrl(const QUrl& url) override;

    /// Asks the file manager to show and select the item; opens its folder where no file manager
    /// answers. An empty path does nothing.
    void reveal(const QString& path) override;

private:
    Opener m_opener;
    QObject m_context; ///< drops the answers of the file manager that come after this desktop
};

} // namespace brenvaldo::platform::storage
