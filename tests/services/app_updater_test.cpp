// SPDX-License-Identifier: GPL-3.0-or-later
#include <services/app_updater.h>

#include <support/log_lines.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo;

namespace {

/// Answers at once with the contents that a test gives it.
class GivenFile : public platform::services::WebFetcher
{
public:
    void fetch(const QUrl& url, std::chrono::milliseconds patience, Answer answer) override
    {
        asked = url;
        waits = patience;
        answer(contents);
    }

    std::optional<QByteArray> contents;
    QUrl asked;
    std::chrono::milliseconds waits{0};
};

class Updater : public testing::Test
{
protected:
    QString shown(const std::optional<QByteArray>& contents, int build = 209)
    {
        web.contents = contents;
        panels.wwApplicationVersionWindow.sheet.close();
        updater.getAppVersion(build);
        return panels.wwApplicationVersionWindow.sheet.isOpen()
            ? panels.wwApplicationVersionWindow.tfNewApplicationVersion.stringValue()
            : u"closed"_s;
    }

    test::LogLines log;
    panels::Panels panels;
    GivenFile web;
    services::cAppUpdater updater{
        {.panels = panels, .web = web, .versionFile = [] {
             return QUrl(u"https://www.brenvaldo.example/version/Brenvaldo.txt"_s);
         }}};
};

} // namespace

TEST_F(Updater, TellsOfANewerBuild)
{
    EXPECT_EQ(shown("2.1;210;Fixes;more"), u"2.1 Fixes"_s);
    EXPECT_EQ(updater.html(), u"2.1;210;Fixes;more"_s);
    EXPECT_EQ(web.asked.path(), u"/version/Brenvaldo.txt"_s);
    EXPECT_EQ(web.waits, std::chrono::seconds(20));
    updater.closeApplicationVersionSheetObjC();
    EXPECT_FALSE(panels.wwApplicationVersionWindow.sheet.isOpen());
}

TEST_F(Updater, IsSilentWhenTheBuildIsNotNewer)
{
    EXPECT_EQ(shown("2.1;210;Fixes", 210), u"closed"_s);
    EXPECT_EQ(shown("2.1; 12abc ;Fixes", 12), u"closed"_s);
    EXPECT_EQ(shown("2.1;new;Fixes", 0), u"closed"_s);
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(Updater, LogsAFileThatCannotBeRead)
{
    EXPECT_EQ(shown(std::nullopt), u"closed"_s);
    EXPECT_EQ(shown(QByteArray()), u"closed"_s);
    EXPECT_EQ(log.lines(), (QStringList{u"failed to read"_s, u"failed to read"_s}));
}

TEST_F(Updater, LogsAFileWithTooFewFields)
{
    EXPECT_EQ(shown("<html></html>"), u"closed"_s);
    EXPECT_EQ(shown("2.1;210"), u"closed"_s);
    ASSERT_EQ(log.lines().size(), 2);
    for (const QString& line : log.lines())
        EXPECT_TRUE(line.startsWith(u"Mgr throws an exception: "_s)) << line.toStdString();
    EXPECT_EQ(shown("2.1;209"), u"closed"_s);
    EXPECT_EQ(log.lines().size(), 2);
}

TEST_F(Updater, AddsToWhatIsNew)
{
    updater.hCallApplicationUpdate(u"Brenvaldo"_s, u"9.1"_s, u"One."_s);
    updater.hCallApplicationUpdate(u"Brenvaldo"_s, u"9.2"_s, u"Two."_s);
    const auto& sheet = panels.wwApplicationVersionWindow;
    EXPECT_TRUE(sheet.sheet.isOpen());
    EXPECT_EQ(sheet.tfNewApplicationVersion.stringValue(), u"Brenvaldo 9.2"_s);
    EXPECT_EQ(sheet.tvWhatsNew.stringValue(), u"One.Two."_s);
}

TEST(BuildNumber, IsMadeOfTheVersion)
{
    EXPECT_EQ(services::buildNumberOf(u"9.0.2"_s), 902);
    EXPECT_EQ(services::buildNumberOf({}), 0);
}
