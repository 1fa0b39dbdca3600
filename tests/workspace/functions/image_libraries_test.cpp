// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>
#include <presets/sheet_control.h>
#include <support/case_name.h>
#include <workspace/functions/image_libraries.h>

#include <QDir>
#include <QFileInfo>

using namespace brenvaldo;
using testing::ElementsAre;

namespace {

class ImageLibraries : public test::ControllerTest
{
protected:
    ImageLibraries() { libraries.registerActions(actions); }

    void setUpLibraries()
    {
        QDir().mkpath(folder.path(u"home"_s));
        chooser.answers.append(QStringList{folder.path(u"home"_s)});
        sheets.setLibraryDestination();
        chooser.panels.clear();
    }

    QString image(const QString& name, int width = 31)
    {
        return test::PhotoBuilder()
            .size(width, 17)
            .format(test::PhotoFormat::Png)
            .write(folder.path(name));
    }

    [[nodiscard]] QString library(const QString& name) const
    {
        return folder.path(u"home/Dravoth_SupportFiles/"_s + name);
    }

    presets::cSheetControl sheets{panels, chooser, defaults, {}};
    workspace::ImageLibraries libraries{
        {.panels = panels,
         .chooser = chooser,
         .defaults = defaults,
         .notifications = notifications,
         .setLibraryDestination = [this] { sheets.setLibraryDestination(); }}};
};

struct Chooser
{
    const char* name;
    const char* action;
    const char* drop;
    const char* path;
    const char* well;
    const char* lookUp;

    friend void PrintTo(const Chooser& row, std::ostream* out) { *out << row.name; }
};

class ImageChooser : public ImageLibraries, public testing::WithParamInterface<Chooser>
{
protected:
    template <class Kind>
    Kind& control(const char* name)
    {
        return dynamic_cast<Kind&>(*panels.control(QString::fromLatin1(name)));
    }

    controls::TextField& path = control<controls::TextField>(GetParam().path);
    controls::ImageView& well = control<controls::ImageView>(GetParam().well);
    controls::PopUpButton& lookUp = control<controls::PopUpButton>(GetParam().lookUp);
    int posted = 0;
    platform::Subscription subscription
        = notifications.addObserver(u"btnChooseWatermarkImageEntred"_s, [this](const QString&) {
              ++posted;
          });
};

} // namespace

TEST_P(ImageChooser, ShowsTheImageThatIsChosen)
{
    const QString chosen = image(u"logo.png"_s);
    chooser.answers.append(QStringList{chosen});

    actions.send(QString::fromLatin1(GetParam().action));

    EXPECT_EQ(path.stringValue(), chosen);
    ASSERT_TRUE(well.image());
    EXPECT_EQ(well.image()->width(), 31);
    EXPECT_EQ(posted, 1);
    ASSERT_EQ(chooser.panels.size(), 1);
    const controls::OpenPanel& panel = chooser.panels.first();
    EXPECT_TRUE(panel.choosesFiles);
    EXPECT_FALSE(panel.choosesDirectories);
    EXPECT_FALSE(panel.allowsMultipleSelection);
    EXPECT_THAT(panel.allowedTypes.mid(0, 4), ElementsAre(u"pdf"_s, u"png"_s, u"jpg"_s, u"jpeg"_s));
    EXPECT_TRUE(panel.allowedTypes.contains(u"svg"_s));
    EXPECT_TRUE(panel.allowedTypes.contains(u"heic"_s));
}

TEST_P(ImageChooser, ChangesNothingWhenItsPanelIsCancelled)
{
    path.setStringValue(u"/before.png"_s);
    chooser.answers.append(std::nullopt);

    actions.send(QString::fromLatin1(GetParam().action));

    EXPECT_EQ(path.stringValue(), u"/before.png"_s);
    EXPECT_FALSE(well.image());
    EXPECT_EQ(posted, 0);
}

TEST_P(ImageChooser, OpensWhereTheLookUpTells)
{
    defaults.set(u"WatermarksDestination"_s, u"/marks"_s);
    defaults.set(u"PatternsDestination"_s, u"/patterns"_s);
    EXPECT_EQ(lookUp.count(), 3);
    lookUp.setTitles({u"0"_s, u"1"_s, u"2"_s, u"3"_s});

    for (int index = 0; index < 4; ++index) {
        lookUp.selectItemAtIndex(index);
        actions.send(QString::fromLatin1(GetParam().action));
    }

    ASSERT_EQ(chooser.panels.size(), 4);
    EXPECT_EQ(chooser.panels.at(0).startFolder, u""_s);
    EXPECT_EQ(chooser.panels.at(1).startFolder, u"/marks"_s);
    EXPECT_EQ(chooser.panels.at(2).startFolder, u"/patterns"_s);
    EXPECT_EQ(chooser.panels.at(3).startFolder, u"/patterns"_s);
}

TEST_P(ImageChooser, OpensAtTheLastFolderWithoutALibrary)
{
    lookUp.selectItemAtIndex(1);

    actions.send(QString::fromLatin1(GetParam().action));

    EXPECT_EQ(chooser.panels.value(0).startFolder, u""_s);
}

TEST_P(ImageChooser, TakesAFileThatIsDroppedOnItsWell)
{
    const QString dropped = image(u"dropped.png"_s, 23);
    EXPECT_TRUE(well.takesFiles());
    EXPECT_TRUE(well.actions().contains(QString::fromLatin1(GetParam().drop)));

    user.drop(well, dropped);

    EXPECT_EQ(path.stringValue(), dropped);
    ASSERT_TRUE(well.image());
    EXPECT_EQ(well.image()->width(), 23);
    EXPECT_EQ(posted, 1);
}

TEST_P(ImageChooser, KeepsThePathOfAFileThatIsNoImage)
{
    chooser.answers.append(QStringList{folder.write(u"text.png"_s, "a text")});
    well.setImage(platform::graphics::Image::fromQImage(QImage(2, 2, QImage::Format_RGB32)));

    actions.send(QString::fromLatin1(GetParam().action));

    EXPECT_EQ(path.stringValue(), folder.path(u"text.png"_s));
    EXPECT_FALSE(well.image());
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    ImageChooser,
    testing::Values(
        Chooser{
            "Watermark",
            "DVWatermark.hChooseWatermarkImage",
            "DVWatermark.hDropWatermarkImage",
            "tfWaterMarkImageFilePath",
            "iwWaterMarkImage",
            "pubImageLookUp"},
        Chooser{
            "Table",
            "cGUIcontrols.hTbChoosePatternImage",
            "cGUIcontrols.hTbDropPatternImage",
            "tfTbPatternImageFilePath",
            "iwTbPatternImage",
            "pubTbImageLookUp"},
        Chooser{
            "SlideShow",
            "cGUIcontrols.hSsChoosePatternImage",
            "cGUIcontrols.hSsDropPatternImage",
            "tfSsPatternImageFilePath",
            "iwSsPatternImage",
            "pubSsImageLookUp"},
        Chooser{
            "ResponsiveGrid",
            "cGUIcontrols.hRgChoosePatternImage",
            "cGUIcontrols.hRgDropPatternImage",
            "tfRgPatternImageFilePath",
            "iwRgPatternImage",
            "pubRgImageLookUp"}
    ),
    test::CaseName()
);

TEST_F(ImageLibraries, ShowLargeImagesSmaller)
{
    const QString large = test::PhotoBuilder().size(3000, 1500).write(folder.path(u"large.jpg"_s));
    chooser.answers.append(QStringList{large});

    actions.send(u"DVWatermark.hChooseWatermarkImage"_s);

    const auto& shown = panels.vwWatermark.iwWaterMarkImage.image();
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->width(), 1024);
    EXPECT_EQ(shown->height(), 512);
}

namespace {

struct Import
{
    const char* name;
    const char* action;
    const char* message;
    const char* folder;

    friend void PrintTo(const Import& row, std::ostream* out) { *out << row.name; }
};

class LibraryImport : public ImageLibraries, public testing::WithParamInterface<Import>
{
protected:
    [[nodiscard]] QString imported(const QString& name) const
    {
        return library(QString::fromLatin1(GetParam().folder) + u'/' + name);
    }

    void import() { actions.send(QString::fromLatin1(GetParam().action)); }
};

} // namespace

TEST_P(LibraryImport, CopiesTheChosenImages)
{
    setUpLibraries();
    chooser.answers.append(QStringList{image(u"a.png"_s), image(u"b.png"_s)});

    import();

    ASSERT_EQ(chooser.panels.size(), 1);
    const controls::OpenPanel& panel = chooser.panels.first();
    EXPECT_EQ(panel.message, QString::fromLatin1(GetParam().message));
    EXPECT_TRUE(panel.allowsMultipleSelection);
    EXPECT_FALSE(panel.choosesDirectories);
    EXPECT_THAT(panel.allowedTypes, ElementsAre(u"png"_s, u"jpg"_s, u"jpeg"_s));
    EXPECT_TRUE(QFileInfo::exists(imported(u"a.png"_s)));
    EXPECT_TRUE(QFileInfo::exists(imported(u"b.png"_s)));
    EXPECT_TRUE(QFileInfo::exists(folder.path(u"a.png"_s)));
}

TEST_P(LibraryImport, SetsTheLibrariesUpOnTheFirstRun)
{
    QDir().mkpath(folder.path(u"home"_s));
    chooser.answers = {QStringList{folder.path(u"home"_s)}, QStringList{image(u"a.png"_s)}};

    import();

    ASSERT_EQ(chooser.panels.size(), 2);
    EXPECT_EQ(
        chooser.panels.first().message, u"*** FIRST: Choose a root support folder please: ***"_s
    );
    EXPECT_TRUE(QFileInfo::exists(imported(u"a.png"_s)));
    EXPECT_TRUE(QFileInfo::exists(library(u"Patterns/Dots.png"_s)));
}

TEST_P(LibraryImport, SetsTheLibrariesUpWithoutABookmark)
{
    setUpLibraries();
    defaults.remove(u"SupportFilesDestination"_s);
    chooser.answers = {QStringList{folder.path(u"home"_s)}, QStringList{image(u"a.png"_s)}};

    import();

    EXPECT_EQ(chooser.panels.size(), 2);
    EXPECT_TRUE(QFileInfo::exists(imported(u"a.png"_s)));
}

TEST_P(LibraryImport, SetsTheLibrariesUpWhenTheirFolderIsGone)
{
    setUpLibraries();
    ASSERT_TRUE(QDir(folder.path(u"home/Dravoth_SupportFiles"_s)).removeRecursively());
    chooser.answers = {QStringList{folder.path(u"home"_s)}, QStringList{image(u"a.png"_s)}};

    import();

    EXPECT_EQ(chooser.panels.size(), 2);
    EXPECT_TRUE(QFileInfo::exists(imported(u"a.png"_s)));
}

TEST_P(LibraryImport, CopiesNothingWithoutALibrary)
{
    chooser.answers = {std::nullopt, QStringList{image(u"a.png"_s)}};

    import();

    EXPECT_EQ(chooser.panels.size(), 2);
    EXPECT_FALSE(QFileInfo::exists(u"/a.png"_s));
}

TEST_P(LibraryImport, ChangesNothingWhenItsPanelIsCancelled)
{
    setUpLibraries();

    import();

    EXPECT_EQ(chooser.panels.size(), 1);
    EXPECT_FALSE(QFileInfo::exists(imported(u"a.png"_s)));
}

TEST_P(LibraryImport, ReplacesAnImageOfTheSameName)
{
    setUpLibraries();
    chooser.answers.append(QStringList{image(u"a.png"_s)});
    import();
    chooser.answers.append(QStringList{image(u"a.png"_s, 50)});

    import();

    EXPECT_EQ(QImage(imported(u"a.png"_s)).width(), 50);
}

TEST_P(LibraryImport, LeavesAnImageThatLiesInTheLibrary)
{
    setUpLibraries();
    chooser.answers.append(QStringList{image(u"a.png"_s)});
    import();
    chooser.answers.append(QStringList{imported(u"a.png"_s)});

    import();

    EXPECT_EQ(QImage(imported(u"a.png"_s)).width(), 31);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    LibraryImport,
    testing::Values(
        Import{
            "Watermarks",
            "DVWatermark.hImportWatermarkImages",
            "*** Choose your watermark image please ***",
            "Watermarks"},
        Import{
            "WatermarksByTheOtherClass",
            "cGUIcontrols.hImportWatermarkImages",
            "*** Choose your watermark image please ***",
            "Watermarks"},
        Import{
            "Patterns",
            "DVWatermark.hImportPatternImages",
            "*** Choose your pattern image please ***",
            "Patterns"},
        Import{
            "PatternsByTheOtherClass",
            "cGUIcontrols.hImportPatternImages",
            "*** Choose your pattern image please ***",
            "Patterns"}
    ),
    test::CaseName()
);
