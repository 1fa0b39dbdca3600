// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
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
    platform::UserDefaults defaults{settings.path(u"test.conf"_s)};
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

    EXPECT_EQ(chooser.lastPanel.message, u"*** FIRST: Choose a root support folder please: ***"_s);
    EXPECT_TRUE(chooser.lastPanel.choosesDirectories);
    EXPECT_FALSE(chooser.lastPanel.choosesFiles);
    EXPECT_FALSE(defaults.value(u"SupportFilesDestination"_s));
    EXPECT_FALSE(defaults.value(u"PatternsDestination"_s));
    EXPECT_TRUE(filesIn(u"."_s).isEmpty());
}

TEST_F(SheetControl, SetsTheFoldersAndTheDefaultsUp)
{
    chooser.answer = {folder.path()};

    sheets.setLibraryDestination();

    const QString root = folder.path(u"Dravoth_SupportFiles"_s);
    EXPECT_EQ(
        filesIn(u"Dravoth_SupportFiles"_s),
        QStringList({u"C-Actions"_s, u"Patterns"_s, u"Watermarks"_s})
    );
    EXPECT_GE(filesIn(u"Dravoth_SupportFiles/Patterns"_s).size(), 8);
    EXPECT_EQ(defaults.text(u"PatternsDestination"_s), root + u"/Patterns"_s);
    EXPECT_EQ(defaults.text(u"WatermarksDestination"_s), root + u"/Watermarks"_s);
    EXPECT_EQ(defaults.text(u"CActionsDestination"_s), root + u"/C-Actions"_s);
    EXPECT_FALSE(defaults.value(u"cActionsDestination"_s));
    EXPECT_EQ(preferences.tfLibraryFilePath.stringValue() + QLatin1Char('/'), folder.path());
}

TEST_F(SheetControl, KeepsTheFolderAsABookmarkOverARestart)
{
    chooser.answer = {folder.path()};
    sheets.setLibraryDestination();

    const platform::UserDefaults later(settings.path(u"test.conf"_s));
    const auto bookmark = later.value(u"SupportFilesDestination"_s);

    ASSERT_TRUE(bookmark);
    const auto url = presets::DVbookmarks().urlForBookmark(bookmark->toByteArray());
    ASSERT_TRUE(url);
    EXPECT_EQ(url->toLocalFile() + QLatin1Char('/'), folder.path());
}

TEST_F(SheetControl, LeavesAPatternFolderThatExists)
{
    chooser.answer = {folder.path()};
    ASSERT_TRUE(QDir().mkpath(folder.path(u"Dravoth_SupportFiles/Patterns"_s)));

    sheets.setLibraryDestination();

    EXPECT_TRUE(filesIn(u"Dravoth_SupportFiles/Patterns"_s).isEmpty());
}

TEST_F(SheetControl, KeepsWhatIsInAChosenFolderAndCopiesNoPatterns)
{
    ASSERT_TRUE(QDir().mkpath(folder.path(u"Dravoth_SupportFiles/Watermarks"_s)));
    (void)folder.write(u"Dravoth_SupportFiles/Watermarks/logo.png"_s, "logo");
    chooser.answer = {folder.path()};

    actions.send(u"cSheetControl.chooseLibraryDestination"_s);

    EXPECT_TRUE(chooser.lastPanel.message.isEmpty());
    EXPECT_EQ(filesIn(u"Dravoth_SupportFiles/Watermarks"_s), QStringList(u"logo.png"_s));
    EXPECT_TRUE(QDir(folder.path(u"Dravoth_SupportFiles/Patterns"_s)).exists());
    EXPECT_TRUE(filesIn(u"Dravoth_SupportFiles/Patterns"_s).isEmpty());
    EXPECT_TRUE(defaults.value(u"SupportFilesDestination"_s));
}

TEST_F(SheetControl, ForgetsTheFolderOfBeforeWhenAnotherIsChosen)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"old"_s));
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"new"_s));
    chooser.answer = {folder.path(u"old"_s)};
    sheets.setLibraryDestination();
    EXPECT_TRUE(chooser.lastPanel.canCreateDirectories);
    chooser.answer = {folder.path(u"new"_s)};

    sheets.chooseLibraryDestination();

    const QString root = folder.path(u"new/Dravoth_SupportFiles"_s);
    EXPECT_TRUE(chooser.lastPanel.canCreateDirectories);
    EXPECT_FALSE(chooser.lastPanel.choosesFiles);
    EXPECT_EQ(preferences.tfLibraryFilePath.stringValue(), folder.path(u"new"_s));
    EXPECT_EQ(defaults.text(u"PatternsDestination"_s), root + u"/Patterns"_s);
    EXPECT_EQ(defaults.text(u"WatermarksDestination"_s), root + u"/Watermarks"_s);
    EXPECT_EQ(defaults.text(u"CActionsDestination"_s), root + u"/C-Actions"_s);
    const auto bookmark = defaults.value(u"SupportFilesDestination"_s);
    ASSERT_TRUE(bookmark);
    EXPECT_EQ(
        presets::DVbookmarks().urlForBookmark(bookmark->toByteArray())->toLocalFile(),
        folder.path(u"new"_s)
    );
    EXPECT_TRUE(QDir(folder.path(u"old/Dravoth_SupportFiles/Watermarks"_s)).exists());
}

TEST_F(SheetControl, ChangesNothingWhenAnotherFolderIsNotChosen)
{
    chooser.answer = {folder.path()};
    sheets.setLibraryDestination();
    const auto before = defaults.value(u"SupportFilesDestination"_s);
    chooser.answer = std::nullopt;

    sheets.chooseLibraryDestination();

    EXPECT_EQ(defaults.value(u"SupportFilesDestination"_s), before);
    EXPECT_EQ(preferences.tfLibraryFilePath.stringValue() + QLatin1Char('/'), folder.path());
}

TEST_F(SheetControl, ShowsTheFolderInThePreferences)
{
    chooser.answer = {folder.path()};
    sheets.setLibraryDestination();
    preferences.tfLibraryFilePath.setStringValue(QString());

    actions.send(u"cSheetControl.hCallPreferencesWw"_s);
    EXPECT_TRUE(preferences.sheet.isOpen());
    EXPECT_EQ(preferences.tfLibraryFilePath.stringValue() + QLatin1Char('/'), folder.path());

    actions.send(u"cSheetControl.closePreferencesSheetObjC"_s);
    EXPECT_FALSE(preferences.sheet.isOpen());
}

TEST_F(SheetControl, TellsInThePreferencesThatTheFolderHasGone)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"support"_s));
    chooser.answer = {folder.path(u"support"_s)};
    sheets.setLibraryDestination();
    ASSERT_TRUE(QDir(folder.path(u"support"_s)).removeRecursively());

    sheets.hCallPreferencesWw();

    EXPECT_EQ(
        preferences.tfLibraryFilePath.stringValue(),
        u"Oh! Your previous defined folder has gone!?\rSelect a new location please."_s
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
    actions.send(u"cSheetControl.hCallAlertSheet"_s);
    EXPECT_EQ(alert, QStringList({u"Dju!"_s, u"'t is gelukt! Hoera!"_s}));
    EXPECT_EQ(log.lines(), QStringList(u"hCallAlertSheet"_s));

    panels.window.wwAlertWindow.open();
    actions.send(u"cSheetControl.closeAlertSheet"_s);
    EXPECT_FALSE(panels.window.wwAlertWindow.isOpen());
}

TEST(Bookmarks, ResolveFoldersThatMovedBackAndNoOthers)
{
    const test::TemporaryFolder folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"a"_s));
    const presets::DVbookmarks bookmarks;
    const auto bookmark = bookmarks.bookmarkForURL(QUrl::fromLocalFile(folder.path(u"a/"_s)));
    ASSERT_TRUE(bookmark);

    ASSERT_TRUE(QDir(folder.path()).rename(u"a"_s, u"b"_s));
    EXPECT_FALSE(bookmarks.urlForBookmark(*bookmark));

    ASSERT_TRUE(QDir(folder.path()).rename(u"b"_s, u"a"_s));
    EXPECT_EQ(bookmarks.urlForBookmark(*bookmark)->toLocalFile(), folder.path(u"a"_s));
    EXPECT_FALSE(bookmarks.bookmarkForURL(QUrl(u"https://example.org/a"_s)));
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

TEST_F(SheetControl, KeepsHowManyPhotosARunWorksOnAtATime)
{
    controls::TextField& field = preferences.tfPhotosAtATime;
    EXPECT_EQ(field.actions(), QStringList{u"cSheetControl.hSetPhotosAtATime"_s});
    actions.send(u"hCallPreferencesWw"_s);
    EXPECT_EQ(field.stringValue(), u"0"_s);

    field.setStringValue(u"3"_s);
    actions.send(u"hSetPhotosAtATime"_s);
    EXPECT_EQ(defaults.text(u"PhotosAtATime"_s), u"3"_s);
    field.setStringValue(QString());
    actions.send(u"hCallPreferencesWw"_s);
    EXPECT_EQ(field.stringValue(), u"3"_s);

    field.setStringValue(u"4294967297"_s);
    actions.send(u"hSetPhotosAtATime"_s);
    EXPECT_EQ(defaults.text(u"PhotosAtATime"_s), u"2147483647"_s);

    field.setStringValue(u"-2"_s);
    actions.send(u"hSetPhotosAtATime"_s);
    EXPECT_EQ(field.stringValue(), u"0"_s);
    EXPECT_EQ(defaults.text(u"PhotosAtATime"_s), u"0"_s);
}
