// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <files/tool_box.h>

#include <support/temporary_folder.h>

namespace brenvaldo::test {

/// A tool box whose panels nobody answers.
struct SilentToolBox
{
    class Chooser : public controls::FileChooser
    {
    public:
        std::optional<QStringList> open(const controls::OpenPanel&) override { return {}; }
        std::optional<QString> save(const controls::SavePanel&) override { return {}; }
    };

    class Desktop : public platform::storage::Desktop
    {
    public:
        void openUrl(const QUrl&) override { }
        void reveal(const QString&) override { }
    };

    Chooser chooser;
    Desktop desktop;
    TemporaryFolder folder;
    platform::UserDefaults defaults{folder.path(QStringLiteral("a.conf"))};
    files::cToolBox box{{.chooser = chooser, .desktop = desktop, .defaults = defaults}};
};

} // namespace brenvaldo::test
