// SPDX-License-Identifier: GPL-3.0-or-later
#include <presets/bookmarks.h>
#include <presets/default_patterns.h>
#include <presets/sheet_control.h>

#include "support/log_lines.h"
#include "support/temporary_folder.h"
#include "support/text_printing.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace brenvaldo;

namespace {

/// Answers every panel with the same folder, or cancels.
class FolderChooser : public controls::FileChooser
{
public:
    std::optional<QStringList> answer;
    controls::OpenPanel lastPanel;

    [[nodiscard]] std::optional<QStringList> open(const controls::OpenPanel& panel) override
    {
        lastPanel = panel;
        return answer;
    }
    [[nodiscard]] std::optional<QString> save(const controls::SavePanel& /*panel*/) override
    {
        return std::nullopt;
    }
};

class SheetControl : public testing::Test
{
protected:
    SheetControl() { sheets.registerActions(actions); }

    [[nodiscard]] QStringList filesIn(const QString& path) const
    {
        return QDir(folder.path(path)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    test::TemporaryFolder folder;
    test::TemporaryFolder settings;
    platform::UserDefaults defaults{settings.path(u"test.conf"_qs)};
    FolderChooser chooser;
    panels::Panels panels;
    controls::ActionRegistry actions;
    QStringList alert;
    presets::cSheetControl sheets{
        panels, chooser, defaults, [this](const QString& title, const QString& text) {
            alert = {title, text};
        }};
    panels::PreferencesSheet& preferences = panels.wwPreferencesWindow;
};

} // namespace

TEST_F(SheetControl, LeavesTheDefaultsUnsetWhenTheFirstPanelIsCancelled)
{
    sheets.setLibraryDestination();

    EXPECT_EQ(chooser.lastPanel.message, u"*** FIRST: Choose a root support folder please: ***"_qs);
    EXPECT_TRUE(chooser.lastPanel.choosesDirectories);
    EXPECT_FALSE(chooser.lastPanel.choosesFiles);
    EXPECT_FALSE(defaults.value(u"SupportFilesDestination"_qs));
    EXPECT_FALSE(defaults.value(u"PatternsDestination"_qs));
    EXPECT_TRUE(filesIn(u"."_qs).isEmpty());
}

TEST_F(SheetControl, SetsTheFoldersAndTheDefaultsUp)
{
    chooser.answer = {folder.path()};

    sheets.setLibraryDestination();

    const QString root = folder.path(u"Dravoth_SupportFiles"_qs);
    EXPECT_EQ(
        filesIn(u"Dravoth_SupportFiles"_qs),
        QStringList({u"C-Actions"_qs, u"Patterns"_qs, u"Watermarks"_qs})
    );
    EXPECT_GE(filesIn(u"Dravoth_SupportFiles/Patterns"_qs).size(), 8);
    EXPECT_EQ(defaults.text(u"PatternsDestination"_qs), root + u"/Patterns"_qs);
    EXPECT_EQ(defaults.text(u"WatermarksDestination"_qs), root + u"/Watermarks"_qs);
    EXPECT_EQ(defaults.text(u"CActionsDestination"_qs), root + u"/C-Actions"_qs);
    EXPECT_FALSE(defaults.value(u"cActionsDestination"_qs));
    EXPECT_EQ(preferences.tfLibraryFilePath.stringValue() + QLatin1Char('/'), folder.path());
}

TEST_F(SheetControl, KeepsTheFolderAsABookmarkOverARestart)
{
    chooser.answer = {folder.path()};
    sheets.setLibraryDestination();

    const platform::UserDefaults later(settings.path(u"test.conf"_qs));
    const auto bookmark = later.value(u"SupportFilesDestination"_qs);

    ASSERT_TRUE(bookmark);
    const auto url = presets::DVbookmarks().urlForBookmark(bookmark->toByteArray());
    ASSERT_TRUE(url);
    EXPECT_EQ(url->toLocalFile() + QLatin1Char('/'), folder.path());
}

TEST_F(SheetControl, LeavesAPatternFolderThatExists)
{
    chooser.answer = {folder.path()};
    ASSERT_TRUE(QDir().mkpath(folder.path(u"Dravoth_SupportFiles/Patterns"_qs)));

    sheets.setLibraryDestination();

    EXPECT_TRUE(filesIn(u"Dravoth_SupportFiles/Patterns"_qs).isEmpty());
}

TEST_F(SheetControl, KeepsWhatIsInAChosenFolderAndCopiesNoPatterns)
{
    ASSERT_TRUE(QDir().mkpath(folder.path(u"Dravoth_SupportFiles/Watermarks"_qs)));
    (void)folder.write(u"Dravoth_SupportFiles/Watermarks/logo.png"_qs, "logo");
    chooser.answer = {folder.path()};

    actions.send(u"cSheetControl.chooseLibraryDestination"_qs);

    EXPECT_TRUE(chooser.lastPanel.message.isEmpty());
    EXPECT_EQ(filesIn(u"Dravoth_SupportFiles/Watermarks"_qs), QStringList(u"logo.png"_qs));
    EXPECT_TRUE(QDir(folder.path(u"Dravoth_SupportFiles/Patterns"_qs)).exists());
    EXPECT_TRUE(filesIn(u"Dravoth_SupportFiles/Patterns"_qs).isEmpty());
    EXPECT_TRUE(defaults.value(u"SupportFilesDestination"_qs));
}

TEST_F(SheetControl, ForgetsTheFolderOfBeforeWhenAnotherIsChosen)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"old"_qs));
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"new"_qs));
    chooser.answer = {folder.path(u"old"_qs)};
    sheets.setLibraryDestination();
    EXPECT_TRUE(chooser.lastPanel.canCreateDirectories);
    chooser.answer = {folder.path(u"new"_qs)};

    sheets.chooseLibraryDestination();

    const QString root = folder.path(u"new/Dravoth_SupportFiles"_qs);
    EXPECT_TRUE(chooser.lastPanel.canCreateDirectories);
    EXPECT_FALSE(chooser.lastPanel.choosesFiles);
    EXPECT_EQ(preferences.tfLibraryFilePath.stringValue(), folder.path(u"new"_qs));
    EXPECT_EQ(defaults.text(u"PatternsDestination"_qs), root + u"/Patterns"_qs);
    EXPECT_EQ(defaults.text(u"WatermarksDestination"_qs), root + u"/Watermarks"_qs);
    EXPECT_EQ(defaults.text(u"CActionsDestination"_qs), root + u"/C-Actions"_qs);
    const auto bookmark = defaults.value(u"SupportFilesDestination"_qs);
    ASSERT_TRUE(bookmark);
    EXPECT_EQ(
        presets::DVbookmarks().urlForBookmark(bookmark->toByteArray())->toLocalFile(),
        folder.path(u"new"_qs)
    );
    EXPECT_TRUE(QDir(folder.path(u"old/Dravoth_SupportFiles/Watermarks"_qs)).exists());
}

TEST_F(SheetControl, ChangesNothingWhenAnotherFolderIsNotChosen)
{
    chooser.answer = {folder.path()};
    sheets.setLibraryDestination();
    const auto before = defaults.value(u"SupportFilesDestination"_qs);
    chooser.answer = std::nullopt;

    sheets.chooseLibraryDestination();

    EXPECT_EQ(defaults.value(u"SupportFilesDestination"_qs), before);
    EXPECT_EQ(preferences.tfLibraryFilePath.stringValue() + QLatin1Char('/'), folder.path());
}

TEST_F(SheetControl, ShowsTheFolderInThePreferences)
{
    chooser.answer = {folder.path()};
    sheets.setLibraryDestination();
    preferences.tfLibraryFilePath.setStringValue(QString());

    actions.send(u"cSheetControl.hCallPreferencesWw"_qs);
    EXPECT_TRUE(preferences.sheet.isOpen());
    EXPECT_EQ(preferences.tfLibraryFilePath.stringValue() + QLatin1Char('/'), folder.path());

    actions.send(u"cSheetControl.closePreferencesSheetObjC"_qs);
    EXPECT_FALSE(preferences.sheet.isOpen());
}

TEST_F(SheetControl, TellsInThePreferencesThatTheFolderHasGone)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"support"_qs));
    chooser.answer = {folder.path(u"support"_qs)};
    sheets.setLibraryDestination();
    ASSERT_TRUE(QDir(folder.path(u"support"_qs)).removeRecursively());

    sheets.hCallPreferencesWw();

    EXPECT_EQ(
        preferences.tfLibraryFilePath.stringValue(),
        u"Oh! Your previous defined folder has gone!?\rSelect a new location please."_qs
    );
}

TEST_F(SheetControl, OpensThePreferencesWithoutAFolder)
{
    sheets.hCallPreferencesWw();

    EXPECT_TRUE(preferences.sheet.isOpen());
    EXPECT_TRUE(preferences.tfLibraryFilePath.stringValue().isEmpty());
}

TEST_F(SheetControl, ShowsAndClosesTheAlertOfSuccess)
{
    const test::LogLines log;
    actions.send(u"cSheetControl.hCallAlertSheet"_qs);
    EXPECT_EQ(alert, QStringList({u"Dju!"_qs, u"'t is gelukt! Hoera!"_qs}));
    EXPECT_EQ(log.lines(), QStringList(u"hCallAlertSheet"_qs));

    panels.window.wwAlertWindow.open();
    actions.send(u"cSheetControl.closeAlertSheet"_qs);
    EXPECT_FALSE(panels.window.wwAlertWindow.isOpen());
}

TEST(Bookmarks, ResolveFoldersThatMovedBackAndNoOthers)
{
    const test::TemporaryFolder folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"a"_qs));
    const presets::DVbookmarks bookmarks;
    const auto bookmark = bookmarks.bookmarkForURL(QUrl::fromLocalFile(folder.path(u"a/"_qs)));
    ASSERT_TRUE(bookmark);

    ASSERT_TRUE(QDir(folder.path()).rename(u"a"_qs, u"b"_qs));
    EXPECT_FALSE(bookmarks.urlForBookmark(*bookmark));

    ASSERT_TRUE(QDir(folder.path()).rename(u"b"_qs, u"a"_qs));
    EXPECT_EQ(bookmarks.urlForBookmark(*bookmark)->toLocalFile(), folder.path(u"a"_qs));
    EXPECT_FALSE(bookmarks.bookmarkForURL(QUrl(u"https://example.org/a"_qs)));
}

TEST(DefaultPatterns, AreSeamlessAndNeitherEmptyNorFull)
{
    for (const presets::DefaultPattern& pattern : presets::defaultPatterns()) {
        const QImage& tile = pattern.tile;
        qint64 covered = 0;
        int steepestInside = 0;
        int steepestAcross = 0;
        for (int y = 0; y < tile.height(); ++y) {
            for (int x = 0; x < tile.width(); ++x) {
                const int alpha = qAlpha(tile.pixel(x, y));
                const int next = qAlpha(tile.pixel((x + 1) % tile.width(), y));
                const int below = qAlpha(tile.pixel(x, (y + 1) % tile.height()));
                const bool isSeam = x + 1 == tile.width() || y + 1 == tile.height();
                int& steepest = isSeam ? steepestAcross : steepestInside;
                steepest = std::max({steepest, std::abs(next - alpha), std::abs(below - alpha)});
                covered += alpha > 127 ? 1 : 0;
            }
        }
        const auto area = static_cast<qint64>(tile.width()) * tile.height();
        EXPECT_LE(steepestAcross, steepestInside) << pattern.name.toStdString();
        EXPECT_GT(covered, area / 20) << pattern.name.toStdString();
        EXPECT_LT(covered, area * 3 / 5) << pattern.name.toStdString();
    }
}
