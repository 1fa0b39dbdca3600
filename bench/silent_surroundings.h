// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/file_chooser.h>
#include <platform/storage/desktop.h>

namespace brenvaldo::bench {

/// Answers no panel.
struct SilentChooser : controls::FileChooser
{
    std::optional<QStringList> open(const controls::OpenPanel& /*panel*/) override { return {}; }
    std::optional<QString> save(const controls::SavePanel& /*panel*/) override { return {}; }
};

struct SilentDesktop : platform::storage::Desktop
{
    void openUrl(const QUrl& /*url*/) override { }
    void reveal(const QString& /*path*/) override { }
};

} // namespace brenvaldo::bench
