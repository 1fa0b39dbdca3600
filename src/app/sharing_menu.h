// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/services/sharing_picker.h>
#include <platform/storage/desktop.h>

#include <QCoreApplication>
#include <QMenu>

namespace brenvaldo::app {

/// What can be done with a photo elsewhere, as a menu at the pointer: e-mail, another program, the
/// clipboard, the file manager.
class SharingMenu : public platform::services::SharingPicker
{
    Q_DECLARE_TR_FUNCTIONS(SharingMenu)

public:
    /// `desktop` must outlive this object.
    explicit SharingMenu(platform::storage::Desktop& desktop);

    void show(const QString& path) override;

    /// Adds the commands for the photo at `path`.
    void fill(QMenu& menu, const QString& path);

private:
    platform::storage::Desktop& m_desktop;
};

} // namespace brenvaldo::app
