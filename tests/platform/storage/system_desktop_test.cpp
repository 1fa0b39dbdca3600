// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/storage/system_desktop.h>

#include <support/environment.h>
#include <support/temporary_folder.h>

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;
using brenvaldo::platform::storage::SystemDesktop;
using namespace brenvaldo::test;

namespace {

/// A desktop without a bus, and what it was asked to open.
class SystemDesktopTest : public testing::Test
{
protected:
    std::vector<QUrl> opened;
    SystemDesktop desktop{[this](const QUrl& url) { opened.push_back(url); }};
    TemporaryFolder folder;

private:
    Environment m_bus{"DBUS_SESSION_BUS_ADDRESS", {}};
    Environment m_runtime{"XDG_RUNTIME_DIR", {}};
};

} // namespace

TEST_F(SystemDesktopTest, OpensAddresses)
{
    const QUrl url(u"https://www.example/help?a=b"_s);

    desktop.openUrl(url);

    EXPECT_EQ(opened, std::vector{url});
}

TEST_F(SystemDesktopTest, OpensTheFolderOfAFileWithoutAFileManager)
{
    desktop.reveal(folder.write(u"a#b été.jpg"_s, ""));

    EXPECT_EQ(opened, std::vector{QUrl::fromLocalFile(folder.path().chopped(1))});
}

TEST_F(SystemDesktopTest, OpensAFolderItselfWithoutAFileManager)
{
    desktop.reveal(folder.path());

    EXPECT_EQ(opened, std::vector{QUrl::fromLocalFile(folder.path())});
}

TEST_F(SystemDesktopTest, RevealsNothingWithoutAPath)
{
    desktop.reveal(u""_s);

    EXPECT_TRUE(opened.empty());
}
