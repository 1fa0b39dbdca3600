// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <files/tool_box.h>
#include <platform/foundation/literals.h>

#include <support/temporary_folder.h>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace brenvaldo::test {

/// Answers every panel alike and keeps what it was asked.
class ChooserRecorder : public controls::FileChooser
{
public:
    std::optional<QStringList> open(const controls::OpenPanel& panel) override
    {
        opened.push_back(panel);
        beforeAnswer();
        return openAnswer;
    }

    std::optional<QString> save(const controls::SavePanel& panel) override
    {
        saved.push_back(panel);
        beforeAnswer();
        typesAtAnswer = panel.allowedTypes;
        return saveAnswer;
    }

    std::vector<controls::OpenPanel> opened;
    std::vector<controls::SavePanel> saved;
    QStringList typesAtAnswer; ///< what the latest save panel allowed in the end
    std::optional<QStringList> openAnswer; ///< nothing cancels
    std::optional<QString> saveAnswer;
    std::function<void()> beforeAnswer = [] {}; ///< what the user does in the panel
};

class DesktopRecorder : public platform::storage::Desktop
{
public:
    void openUrl(const QUrl& url) override { opened += url; }
    void reveal(const QString& path) override { revealed += path; }

    QList<QUrl> opened;
    QStringList revealed;
};

class ToolBox : public testing::Test
{
protected:
    TemporaryFolder folder;
    ChooserRecorder chooser;
    DesktopRecorder desktop;
    platform::UserDefaults defaults{folder.path(u"settings/a.conf"_s)};
    files::cToolBox box{{.chooser = chooser, .desktop = desktop, .defaults = defaults}};
};

} // namespace brenvaldo::test
