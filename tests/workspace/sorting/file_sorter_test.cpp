// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <support/exif_block.h>
#include <workspace/sorting/file_sorter.h>

#include <QDir>

#include <sys/xattr.h>

using namespace brenvaldo;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

class FileSorter : public test::ControllerTest
{
protected:
    FileSorter()
    {
        sorter.registerActions(actions);
        QDir().mkpath(folder.path(u"out"_s));
        panel.tfBatchSortDestFolder.setStringValue(folder.path(u"out/"_s));
    }

    [[nodiscard]] QString file(const QString& name) const
    {
        const QString path = folder.path(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(name.toUtf8());
        return path;
    }

    controls::ActionRegistry::Sent sort(const QStringList& paths)
    {
        chooser.answers.append(paths);
        return actions.send(u"DVFileSorterRoutine.hSortFiles"_s);
    }

    void byName(int part, int selector, const QString& value)
    {
        panel.cbFileNameChoice.setState(1);
        panel.pubFileName.selectIndex(part);
        panel.pubFileNameSelector.selectIndex(selector);
        panel.tfFileNameVar.setStringValue(value);
    }
    void byPicture(int property, int selector, const QString& value)
    {
        panel.cbImagePropChoice.setState(1);
        panel.pubImageProp.selectIndex(property);
        panel.pubImagePropSelector.selectIndex(selector);
        panel.tfImagePropVar.setStringValue(value);
    }

    /// The files that one run copies, away again.
    QStringList taken(const QStringList& paths)
    {
        sort(paths);
        const QStringList names = sorted();
        for (const QString& name : names)
            QFile::remove(folder.path(u"out/"_s + name));
        return names;
    }
    [[nodiscard]] QStringList sorted() const
    {
        return QDir(folder.path(u"out"_s)).entryList(QDir::Files | QDir::System);
    }

    panels::SortingPanel& panel = panels.vwFileManagementSorting;
    workspace::DVFileSorterRoutine sorter{
        {.subsystems = subsystems,
         .desktop = desktop,
         .journal = journal,
         .alert = [this](const workspace::Message& message) {
             guiControls.hAlertWindow(message.title, message.text);
         }}};
};

} // namespace

TEST_F(FileSorter, TouchesNoFileWithoutACriterion)
{
    EXPECT_TRUE(taken({file(u"a.jpg"_s), file(u"b.jpg"_s)}).isEmpty());

    EXPECT_EQ(chooser.panels.size(), 1);
    EXPECT_EQ(panel.showSortProgress.maximum(), 2);
    EXPECT_EQ(panel.showSortProgress.doubleValue(), 0);
    EXPECT_TRUE(alerts.isEmpty());
}

TEST_F(FileSorter, ComparesTheNameOrTheExtension)
{
    const QStringList paths{file(u"Lake.jpg"_s), file(u"jpg.txt"_s), file(u"hill.JPG"_s)};

    byName(0, 0, u"LA"_s);
    EXPECT_THAT(taken(paths), ElementsAre(u"Lake.jpg"_s));
    byName(0, 1, u"la"_s);
    EXPECT_TRUE(taken(paths).isEmpty());
    byName(0, 1, u"hi"_s);
    EXPECT_THAT(taken(paths), ElementsAre(u"hill.JPG"_s));
    byName(0, 2, u"ll"_s);
    EXPECT_THAT(taken(paths), ElementsAre(u"hill.JPG"_s));
    byName(0, 3, u"jpg"_s);
    EXPECT_THAT(taken(paths), ElementsAre(u"jpg.txt"_s));
    byName(1, 3, u"JPG"_s);
    EXPECT_THAT(taken(paths), ElementsAre(u"hill.JPG"_s));
    byName(1, 0, u"JPG"_s);
    EXPECT_THAT(taken(paths), UnorderedElementsAre(u"Lake.jpg"_s, u"hill.JPG"_s));
}

TEST_F(FileSorter, MakesNoTestOfTheNameWithoutAComparison)
{
    byName(0, -1, u"a"_s);
    EXPECT_TRUE(taken({file(u"a.jpg"_s)}).isEmpty());

    panel.cbFileTagChoice.setState(1);
    EXPECT_THAT(taken({file(u"b.jpg"_s)}), ElementsAre(u"b.jpg"_s));
}

TEST_F(FileSorter, ComparesWhatThePictureTells)
{
    const QByteArray comment("ASCII\0\0\0by the lake", 19);
    const QStringList paths{
        test::PhotoBuilder()
            .size(40, 20)
            .exif(test::exifBlock({.userComment = comment}))
            .write(folder.path(u"a.jpg"_s)),
        test::PhotoBuilder().size(20, 44).write(folder.path(u"b.jpg"_s))};

    byPicture(0, 0, u"LAKE"_s);
    EXPECT_THAT(taken(paths), ElementsAre(u"a.jpg"_s));
    byPicture(1, 3, u"20"_s);
    EXPECT_THAT(taken(paths), ElementsAre(u"b.jpg"_s));
    byPicture(1, 3, u"2"_s);
    EXPECT_TRUE(taken(paths).isEmpty());
    byPicture(2, 3, u"20"_s);
    EXPECT_THAT(taken(paths), ElementsAre(u"a.jpg"_s));
    byPicture(1, 1, u"4"_s);
    EXPECT_THAT(taken(paths), ElementsAre(u"a.jpg"_s));
    byPicture(3, 0, u"rgb"_s);
    EXPECT_THAT(taken(paths), ElementsAre(u"a.jpg"_s, u"b.jpg"_s));
    byPicture(-1, 0, u"rgb"_s);
    EXPECT_TRUE(taken(paths).isEmpty());
}

TEST_F(FileSorter, TakesFilesThatMeetAllCriteria)
{
    const QStringList paths{
        test::PhotoBuilder().size(40, 20).write(folder.path(u"a.jpg"_s)),
        test::PhotoBuilder().size(40, 20).write(folder.path(u"b.jpg"_s)),
        test::PhotoBuilder().size(20, 20).write(folder.path(u"bc.jpg"_s))};

    byPicture(1, 3, u"40"_s);
    byName(0, 0, u"b"_s);

    EXPECT_THAT(taken(paths), ElementsAre(u"b.jpg"_s));
}

TEST_F(FileSorter, TriesTheNameOnlyWhereThePictureFits)
{
    byPicture(1, 3, u"40"_s);
    byName(0, 2, u"a value longer than the name"_s);

    EXPECT_EQ(
        sort({test::PhotoBuilder().size(20, 20).write(folder.path(u"a.jpg"_s))}),
        controls::ActionRegistry::Sent::Done
    );
}

TEST_F(FileSorter, EndsAtAValueLongerThanTheName)
{
    byName(0, 2, u"name"_s);

    EXPECT_EQ(
        sort({file(u"long name.txt"_s), file(u"abc.txt"_s), file(u"next name.txt"_s)}),
        controls::ActionRegistry::Sent::Raised
    );

    EXPECT_THAT(sorted(), ElementsAre(u"long name.txt"_s));
    EXPECT_EQ(panel.showSortProgress.doubleValue(), 0);
}

TEST_F(FileSorter, ComparesTheLabel)
{
    const QStringList paths{file(u"a.txt"_s), file(u"red.txt"_s)};
    ASSERT_EQ(setxattr(paths.last().toUtf8().constData(), "user.kMDItemFSLabel", "6", 1, 0), 0);
    panel.cbFileTagChoice.setState(1);

    panel.pubFileTag.selectIndex(6);
    EXPECT_THAT(taken(paths), ElementsAre(u"red.txt"_s));
    panel.pubFileTagIsNot.selectIndex(1);
    EXPECT_THAT(taken(paths), ElementsAre(u"a.txt"_s));
}

TEST_F(FileSorter, TakesAFileWithoutALabelForAnother)
{
    panel.cbFileTagChoice.setState(1);
    panel.pubFileTagIsNot.selectIndex(1);
    panel.pubFileTag.selectIndex(0);

    sort({folder.path(u"missing.txt"_s)});

    ASSERT_EQ(journal.records().size(), 1);
    EXPECT_EQ(journal.records().first().word, imaging::ResultWord::Failed);
}

TEST_F(FileSorter, CopiesMovesLinksOrTrashes)
{
    byName(0, 0, u"a"_s);

    panel.pubFileHandlingSelector.selectIndex(0);
    sort({file(u"a1.txt"_s)});
    panel.pubFileHandlingSelector.selectIndex(1);
    sort({file(u"a2.txt"_s)});
    panel.pubFileHandlingSelector.selectIndex(2);
    sort({file(u"a3.txt"_s)});
    panel.pubFileHandlingSelector.selectIndex(3);
    sort({file(u"a4.txt"_s)});

    EXPECT_THAT(sorted(), ElementsAre(u"a1.txt"_s, u"a2.txt"_s, u"a3.txt"_s));
    EXPECT_EQ(QFile::symLinkTarget(folder.path(u"out/a3.txt"_s)), folder.path(u"a3.txt"_s));
    const QDir here(folder.path());
    EXPECT_THAT(here.entryList(QDir::Files), ElementsAre(u"a1.txt"_s, u"a3.txt"_s));
    EXPECT_EQ(journal.records().last().target, QString());
    EXPECT_EQ(journal.records().first().target, folder.path(u"out/a1.txt"_s));
}

TEST_F(FileSorter, TouchesNoFileWithoutAHandling)
{
    byName(0, 0, u"a"_s);
    panel.pubFileHandlingSelector.selectIndex(-1);

    sort({file(u"a.txt"_s)});

    EXPECT_TRUE(QFile::exists(folder.path(u"a.txt"_s)));
    EXPECT_TRUE(sorted().isEmpty());
    EXPECT_TRUE(journal.records().isEmpty());
}

TEST_F(FileSorter, SortsOneFileByItselfOnlyByItsPicture)
{
    const QString path = test::PhotoBuilder().size(40, 20).write(folder.path(u"a.jpg"_s));
    byName(0, 0, u"a"_s);

    sorter.hBatchSortPhotos(path);
    EXPECT_TRUE(sorted().isEmpty());
    byPicture(1, 3, u"20"_s);
    sorter.hBatchSortPhotos(path);
    EXPECT_TRUE(sorted().isEmpty());
    byPicture(1, 3, u"40"_s);
    sorter.hBatchSortPhotos(path);
    EXPECT_THAT(sorted(), ElementsAre(u"a.jpg"_s));
}

TEST_F(FileSorter, LeavesItsBarAloneWithoutAnAnswer)
{
    panel.showSortProgress.setMaximum(7);

    actions.send(u"DVFileSorterRoutine.hSortFiles"_s);

    EXPECT_EQ(chooser.panels.size(), 1);
    EXPECT_EQ(panel.showSortProgress.maximum(), 7);
}

TEST_F(FileSorter, NeedsItsValues)
{
    byName(0, 0, QString());
    byPicture(0, 0, QString());
    panel.tfBatchSortDestFolder.setStringValue(QString());

    sort({});
    panel.pubFileHandlingSelector.selectIndex(3);
    sort({});
    panel.tfImagePropVar.setStringValue(u"x"_s);
    sort({});

    EXPECT_THAT(
        alerts,
        ElementsAre(
            (QStringList{
                u"Missing values."_s,
                u"Folder path not defined or doesn't exist anymore."
                u"\rNo variable image parameter defined"
                u"\rNo variable filename or file extension parameter defined"_s}),
            (QStringList{
                u"Missing values."_s,
                u"\rNo variable image parameter defined"
                u"\rNo variable filename or file extension parameter defined"_s}),
            (QStringList{
                u"Missing values."_s,
                u"\rNo variable filename or file extension parameter defined"_s})
        )
    );
    EXPECT_TRUE(chooser.panels.isEmpty());
}

TEST_F(FileSorter, RefusesFilesOfTheDestination)
{
    byName(0, 0, u"a"_s);

    sort({file(u"out/a.txt"_s), file(u"a2.txt"_s)});

    EXPECT_EQ(
        alerts.first(),
        (QStringList{u"Folder Error."_s, u"Source and destination folder are the same."_s})
    );
    EXPECT_THAT(sorted(), ElementsAre(u"a.txt"_s));
    EXPECT_EQ(panels.control(u"tfAlertWwTitle"_s), &panels.window.tfHTMLAlertTitle);
    EXPECT_EQ(panels.control(u"tfAlertWwInfo"_s), &panels.window.tfHTMLAlertInfo);
    EXPECT_TRUE(panels.window.wwAlertWindow.isOpen());
    actions.send(u"DVFileSorterRoutine.closeCustomSheetAlertbSort"_s);
    EXPECT_FALSE(panels.window.wwAlertWindow.isOpen());
}

TEST_F(FileSorter, LosesASingleFileThatIsItsOwnTarget)
{
    byName(0, 0, u"a"_s);

    sort({file(u"out/a.txt"_s)});

    EXPECT_TRUE(sorted().isEmpty());
    EXPECT_EQ(journal.records().first().word, imaging::ResultWord::Failed);
}

TEST_F(FileSorter, LeavesTheFilesWhereTheFolderTakesNone)
{
    byName(0, 0, u"a"_s);
    panel.tfBatchSortDestFolder.setStringValue(u"/proc/"_s);

    for (const int handling : {0, 1, 2}) {
        panel.pubFileHandlingSelector.selectIndex(handling);
        sort({file(u"a.txt"_s)});
    }

    EXPECT_TRUE(QFile::exists(folder.path(u"a.txt"_s)));
    ASSERT_EQ(journal.records().size(), 3);
    for (const auto& record : journal.records())
        EXPECT_EQ(record.word, imaging::ResultWord::Failed);
}

TEST_F(FileSorter, ReplacesWhatStandsAtTheTarget)
{
    byName(0, 0, u"a"_s);
    std::ignore = file(u"out/a.txt"_s);

    sort({file(u"a.txt"_s)});

    QFile copied(folder.path(u"out/a.txt"_s));
    ASSERT_TRUE(copied.open(QIODevice::ReadOnly));
    EXPECT_EQ(copied.readAll(), "a.txt");
}

TEST_F(FileSorter, FreesItsFolderFromWhatKilledProcessesLeft)
{
    const QString left = folder.write(u"out/.brenvaldo-0123abcd"_s, "half a picture");

    sort({file(u"a.txt"_s)});

    EXPECT_FALSE(QFile::exists(left));
}

TEST_F(FileSorter, EnablesTheValuesOfATickedCriterion)
{
    const auto press = [&](const char* box, const char* action, int state) {
        dynamic_cast<controls::CheckBox*>(panels.control(QString::fromLatin1(box)))
            ->setState(state);
        actions.send(u"DVFileSorterRoutine."_s + QString::fromLatin1(action));
    };
    const auto enabled = [&](std::initializer_list<const char*> names) {
        QList<bool> states;
        for (const char* name : names)
            states.append(panels.control(QString::fromLatin1(name))->isEnabled());
        return states;
    };

    for (const bool on : {false, true, false}) {
        press("btnImagePropChoice", "hFilePropEnabled", on ? 1 : 0);
        press("btnFileNameChoice", "hFileNameEnabled", on ? 1 : 0);
        press("btnFileTagChoice", "hFileTagEnabled", on ? 1 : 0);
        EXPECT_EQ(
            enabled(
                {"puImageProp",
                 "puImagePropSelector",
                 "tfImagePropVar",
                 "puFileName",
                 "puFileNameSelector",
                 "tfFileNameVar",
                 "puFileTag",
                 "puFileTagIsNot"}
            ),
            QList<bool>(8, on)
        );
    }
}

TEST_F(FileSorter, ChoosesAndShowsItsFolder)
{
    panel.tfBatchSortDestFolder.setStringValue(QString());
    actions.send(u"DVFileSorterRoutine.hShowBatchDestinationFolder"_s);
    actions.send(u"DVFileSorterRoutine.btnChooseDestFolder"_s);
    EXPECT_TRUE(desktop.revealed.isEmpty());
    EXPECT_EQ(panel.tfBatchSortDestFolder.stringValue(), QString());

    chooser.answers.append(QStringList{u"/sorted"_s});
    actions.send(u"DVFileSorterRoutine.btnChooseDestFolder"_s);
    actions.send(u"DVFileSorterRoutine.hShowBatchDestinationFolder"_s);
    EXPECT_EQ(panel.tfBatchSortDestFolder.stringValue(), u"/sorted/"_s);
    EXPECT_THAT(desktop.revealed, ElementsAre(u"/sorted/"_s));
}
