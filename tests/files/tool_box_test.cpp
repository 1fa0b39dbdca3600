// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool_box_fixture.h"

#include <platform/drawing/fonts.h>

#include <support/environment.h>
#include <support/faults.h>
#include <support/text_printing.h>

#include <QGuiApplication>
#include <QPalette>

using namespace Qt::StringLiterals;
using namespace brenvaldo::files;
using namespace brenvaldo::test;
namespace platform = brenvaldo::platform;

TEST_F(ToolBox, OpensNoPanelForAnUnknownMode)
{
    EXPECT_EQ(box.hOpenDialogFiles(u"nonsense"_s), std::nullopt);
    EXPECT_EQ(box.hOpenDialogFilesOC(u"watermark"_s), std::nullopt);

    EXPECT_TRUE(chooser.opened.empty());
}

TEST_F(ToolBox, AnswersAnEmptyListForACancelledPanel)
{
    EXPECT_EQ(box.hOpenDialogFiles(u"rename"_s), QStringList());
    EXPECT_EQ(box.hOpenDialogFilesOC(u"sortDir"_s), QStringList());
}

TEST_F(ToolBox, AnswersTheChosenFiles)
{
    chooser.openAnswer = QStringList{u"/a.jpg"_s, u"/b.jpg"_s};

    EXPECT_EQ(box.hOpenDialogFiles(u"watermark"_s), chooser.openAnswer);

    ASSERT_EQ(chooser.opened.size(), 1U);
    EXPECT_TRUE(chooser.opened[0].choosesFiles);
    EXPECT_FALSE(chooser.opened[0].choosesDirectories);
    EXPECT_TRUE(chooser.opened[0].allowsMultipleSelection);
    EXPECT_EQ(chooser.opened[0].allowedTypes.join(u' '), u"png jpg jpeg tif tiff HEIC"_s);
}

TEST_F(ToolBox, ScansTheChosenFolder)
{
    platform::storage::createFolder(folder.path(u"inner"_s));
    const QString tagged = folder.write(u"inner/a.TIF"_s, "");
    static_cast<void>(folder.write(u"b.png"_s, ""));
    chooser.openAnswer = QStringList{folder.path()};

    EXPECT_EQ(box.hOpenDialogFilesOC(u"EMMDir"_s), QStringList{tagged});

    ASSERT_EQ(chooser.opened.size(), 1U);
    EXPECT_FALSE(chooser.opened[0].choosesFiles);
    EXPECT_TRUE(chooser.opened[0].choosesDirectories);
    EXPECT_FALSE(chooser.opened[0].allowsMultipleSelection);
}

TEST_F(ToolBox, ChoosesADirectoryThatMayBeNew)
{
    chooser.openAnswer = QStringList{u"/dir/"_s};

    EXPECT_EQ(box.hChooseDirectory(), u"/dir"_s);

    ASSERT_EQ(chooser.opened.size(), 1U);
    EXPECT_EQ(chooser.opened[0].message, u"Choose folder"_s);
    EXPECT_EQ(chooser.opened[0].prompt, u"OK"_s);
    EXPECT_TRUE(chooser.opened[0].choosesDirectories);
    EXPECT_FALSE(chooser.opened[0].choosesFiles);
    EXPECT_TRUE(chooser.opened[0].canCreateDirectories);
}

TEST_F(ToolBox, ChoosesNoDirectoryWhenCancelled)
{
    EXPECT_EQ(box.hChooseDirectory(), std::nullopt);
}

TEST_F(ToolBox, ListsOneLevelOfAFolder)
{
    platform::storage::createFolder(folder.path(u"inner"_s));
    static_cast<void>(folder.write(u"inner/b"_s, ""));
    static_cast<void>(folder.write(u".hidden"_s, ""));
    const QString file = folder.write(u"a b#c"_s, "");
    QFile::link(u"nowhere"_s, folder.path(u"broken link"_s));

    EXPECT_EQ(
        cToolBox::hGetFilesInDir(folder.path()),
        (QList<QUrl>{
            QUrl::fromLocalFile(file),
            QUrl::fromLocalFile(folder.path(u"broken link"_s)),
            QUrl::fromLocalFile(folder.path(u"inner"_s))})
    );
}

TEST_F(ToolBox, ReadsAnActionFileIntoARow)
{
    const QString path = folder.write(u"Strip.v2.c-action"_s, "Strip\t1\xC3\xA9");
    chooser.openAnswer = QStringList{path};

    const QString row = box.hReadNSDataInFile(u"/start"_s);

    EXPECT_EQ(row, u"Strip.v2\t"_s + QString(65, u' ') + u"\tStrip\t1é"_s);
    ASSERT_EQ(chooser.opened.size(), 1U);
    EXPECT_EQ(chooser.opened[0].message, u"Choose a c-action file"_s);
    EXPECT_EQ(chooser.opened[0].allowedTypes, QStringList{u"c-action"_s});
    EXPECT_EQ(chooser.opened[0].startFolder, u"/start"_s);
    EXPECT_FALSE(chooser.opened[0].allowsMultipleSelection);
}

TEST_F(ToolBox, OpensTheActionPanelInItsDefaultFolder)
{
    EXPECT_EQ(box.hReadNSDataInFile(u""_s), u""_s);

    ASSERT_EQ(chooser.opened.size(), 1U);
    EXPECT_EQ(chooser.opened[0].startFolder, u""_s);
}

TEST_F(ToolBox, ReadsARowWithoutATextFromWhatIsNoText)
{
    chooser.openAnswer = QStringList{folder.write(u"a.c-action"_s, "Strip\t\xFF\xFF")};

    EXPECT_EQ(box.hReadNSDataInFile(u""_s), u"a\t"_s + QString(65, u' ') + u'\t');
}

TEST_F(ToolBox, AsksForAFolderAndAProjectName)
{
    chooser.openAnswer = QStringList{u"/dir"_s};
    chooser.beforeAnswer = [this] {
        EXPECT_EQ(box.avProjectFileName.stringValue(), u"Enter project name here"_s);
        box.avProjectFileName.setStringValue(u"Holiday"_s);
    };

    EXPECT_EQ(box.hSaveProjectDialog(), (QStringList{u"/dir"_s, u"Holiday"_s}));

    ASSERT_EQ(chooser.opened.size(), 1U);
    EXPECT_EQ(chooser.opened[0].message, u"••• Choose folder and enter project name •••"_s);
    EXPECT_EQ(chooser.opened[0].prompt, u"OK"_s);
    EXPECT_TRUE(chooser.opened[0].canCreateDirectories);
    ASSERT_EQ(chooser.opened[0].accessories.size(), 1);
    EXPECT_EQ(chooser.opened[0].accessories[0].control, &box.avProjectFileName);
}

TEST_F(ToolBox, AnswersNoProjectWhenCancelled)
{
    EXPECT_EQ(box.hSaveProjectDialog(), QStringList());
}

TEST_F(ToolBox, ShowsAFileWithFourSignsEncoded)
{
    box.hShowURL(u"/dir/a?b=c&d+e f.html"_s);
    box.hShowURL2(u"/dir/plain.html"_s);

    ASSERT_EQ(desktop.opened.size(), 2);
    EXPECT_EQ(desktop.opened[0].toLocalFile(), u"/dir/a?b=c&d+e f.html"_s);
    EXPECT_TRUE(desktop.opened[0].toString(QUrl::FullyEncoded).contains(u"a%3Fb"_s));
    EXPECT_EQ(desktop.opened[1], QUrl(u"file:///dir/plain.html"_s));
}

TEST_F(ToolBox, MakesAnAddressOfAText)
{
    EXPECT_EQ(cToolBox::hNSStrToUrl(u"/dir/a?b"_s)->toString(QUrl::FullyEncoded), u"/dir/a%3Fb"_s);
    EXPECT_EQ(cToolBox::hNSStrToUrl(u"/dir/a b"_s), std::nullopt);
}

TEST_F(ToolBox, KnowsTheSystem) { EXPECT_EQ(cToolBox::hGetMacOSVersion(), u"109+"_s); }

TEST_F(ToolBox, TellsADarkPaletteByItsText)
{
    const QPalette before = QGuiApplication::palette();

    QGuiApplication::setPalette(QPalette(Qt::white, QColor(40, 40, 40)));
    const bool dark = cToolBox::isDarkMode() && cToolBox::icmIsDarkMode();
    QPalette light;
    light.setColor(QPalette::WindowText, Qt::black);
    light.setColor(QPalette::Window, Qt::white);
    QGuiApplication::setPalette(light);
    const bool stillDark = cToolBox::isDarkMode() || cToolBox::icmIsDarkMode();
    QGuiApplication::setPalette(before);

    EXPECT_TRUE(dark);
    EXPECT_FALSE(stillDark);
}

TEST(InstalledFonts, DropNamesWithALeadingDot)
{
    EXPECT_EQ(
        visibleFontNames({u".Hidden"_s, u"Zapf"_s, u"Arial.x"_s, u"."_s}),
        (QStringList{u"Zapf"_s, u"Arial.x"_s})
    );
}

TEST(InstalledFonts, AreThoseOfThePlatform)
{
    const QStringList names = cToolBox::hGetAllInstalledFonts();

    EXPECT_FALSE(names.isEmpty());
    EXPECT_EQ(names, visibleFontNames(platform::drawing::installedFontNames()));
}
