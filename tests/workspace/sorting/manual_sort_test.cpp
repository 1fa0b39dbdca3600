// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <files/keep_number.h>
#include <support/pixel_probe.h>
#include <support/surroundings.h>
#include <workspace/sorting/manual_sort.h>

#include <QDir>

using namespace brenvaldo;
using testing::ElementsAre;

namespace {

class ManualSort : public test::ControllerTest
{
protected:
    ManualSort()
    {
        sort.registerActions(actions);
        neighbours.hRenameTWMFile = workspace::cGUIcontrols::hRenameTWMFile;
        QDir().mkpath(folder.path(u"two"_s));
        panel.tfSortDestination02.setStringValue(folder.path(u"two/"_s));
        photos.append(entry(photo(u"a.jpg"_s), u"L"_s));
        photos.append(entry(photo(u"b.jpg"_s), u"L"_s));
        photos.select(0);
    }

    void send(const char* action, int tag)
    {
        actions.send(u"cGUIcontrols."_s + QString::fromLatin1(action), {.tag = tag});
    }
    [[nodiscard]] QStringList sorted() const
    {
        return QDir(folder.path(u"two"_s)).entryList(QDir::Files);
    }
    [[nodiscard]] QStringList words() const
    {
        QStringList texts;
        for (const auto& record : journal.records())
            texts.append(record.function + u' ' + imaging::text(record.word));
        return texts;
    }

    panels::SortingPanel& panel = panels.vwFileManagementSorting;
    workspace::ManualSort sort{
        {.subsystems = subsystems,
         .desktop = desktop,
         .collectionView = collectionView,
         .journal = journal,
         .outputName
         = [this](const QString& path) { return guiControls.driver().outputName(path); }}};
};

} // namespace

TEST_F(ManualSort, SetsTheFolderOfItsTag)
{
    for (int tag = 1; tag <= 6; ++tag) {
        chooser.answers.append(QStringList{u"/folder%1"_s.arg(tag)});
        send("hSetSortDestinationFolder", tag);
    }

    EXPECT_EQ(panel.tfSortDestination01.stringValue(), u"/folder1/"_s);
    EXPECT_EQ(panel.tfSortDestination02.stringValue(), u"/folder2/"_s);
    EXPECT_EQ(panel.tfSortDestination03.stringValue(), u"/folder3/"_s);
    EXPECT_EQ(panel.tfSortDestination04.stringValue(), u"/folder4/"_s);
    EXPECT_EQ(panel.tfSortDestination05.stringValue(), u"/folder5/"_s);
    EXPECT_EQ(panel.tfSortDestination06.stringValue(), u"/folder6/"_s);
    EXPECT_EQ(panel.tfSortDestination06.toolTip(), u"/folder6/"_s);
}

TEST_F(ManualSort, KeepsItsFolderWithoutAnAnswer)
{
    send("hSetSortDestinationFolder", 2);

    EXPECT_EQ(panel.tfSortDestination02.stringValue(), folder.path(u"two/"_s));
}

TEST_F(ManualSort, DoesNothingForOtherTags)
{
    chooser.answers = {QStringList{u"/x"_s}, QStringList{u"/x"_s}};
    for (const int tag : {0, 7}) {
        for (const char* action :
             {"hSetSortDestinationFolder",
              "hCopyFileToFolder",
              "hMoveFileToFolder",
              "hAliasFileToFolder"})
            send(action, tag);
    }

    EXPECT_TRUE(words().isEmpty());
    EXPECT_TRUE(sorted().isEmpty());
    EXPECT_EQ(panel.tfSortDestination01.stringValue(), QString());
}

TEST_F(ManualSort, DoesNothingWithoutAFolderOrAPhoto)
{
    for (const char* action : {"hCopyFileToFolder", "hMoveFileToFolder", "hAliasFileToFolder"})
        send(action, 3);
    photos.select(std::nullopt);
    for (const char* action :
         {"hCopyFileToFolder", "hMoveFileToFolder", "hAliasFileToFolder", "hTrashPhoto"})
        send(action, 2);

    EXPECT_TRUE(words().isEmpty());
    EXPECT_EQ(photos.count(), 2);
}

TEST_F(ManualSort, CopiesTheFileAsItIs)
{
    send("hCopyFileToFolder", 2);

    EXPECT_THAT(sorted(), ElementsAre(u"a.jpg"_s));
    EXPECT_TRUE(QFile::exists(folder.path(u"a.jpg"_s)));
    EXPECT_THAT(words(), ElementsAre(u"hCopyFileToFolder OK"_s));
    EXPECT_THAT(listedNames(), ElementsAre(u"a.jpg"_s, u"b.jpg"_s));
}

TEST_F(ManualSort, ReplacesNoFile)
{
    const QString old = test::PhotoBuilder().size(5, 5).write(folder.path(u"two/a.jpg"_s));
    const qint64 size = QFileInfo(old).size();

    for (const char* action : {"hCopyFileToFolder", "hMoveFileToFolder", "hAliasFileToFolder"})
        send(action, 2);

    EXPECT_EQ(QFileInfo(old).size(), size);
    EXPECT_THAT(
        words(),
        ElementsAre(
            u"hCopyFileToFolder EXISTS"_s,
            u"hMoveFileToFolder EXISTS"_s,
            u"hAliasFileToFolder EXISTS"_s
        )
    );
    EXPECT_EQ(photos.entries().first().myPhotoDescription, folder.path(u"a.jpg"_s));
}

TEST_F(ManualSort, WritesTheChosenType)
{
    panels.vwFileType.pubFileType.selectIndex(1);

    send("hCopyFileToFolder", 2);

    EXPECT_THAT(sorted(), ElementsAre(u"a.png"_s));
    EXPECT_EQ(test::storedPixels(folder.path(u"two/a.png"_s)).size(), QSize(47, 33));
}

TEST_F(ManualSort, WritesAtTheChosenQuality)
{
    controls::PopUpButton& types = panels.vwFileType.pubFileType;
    controls::PopUpButton& levels = panels.vwFileType.pubJPEGCompressionLevel;
    types.selectIndex(static_cast<int>(types.titles().indexOf(u"jpeg"_s)));
    const auto sizeAt = [&](const QString& level) {
        levels.selectIndex(static_cast<int>(levels.titles().indexOf(level)));
        send("hCopyFileToFolder", 2);
        return QFileInfo(folder.path(u"two/a.jpg"_s)).size();
    };

    const qint64 low = sizeAt(u"1"_s);

    EXPECT_GT(low, 0);
    EXPECT_LT(low, sizeAt(u"9"_s));
}

TEST_F(ManualSort, ReplacesAFileByACopyOfAnotherType)
{
    const QString old = folder.write(u"two/a.png"_s, "old");
    panels.vwFileType.pubFileType.selectIndex(1);

    send("hCopyFileToFolder", 2);

    EXPECT_EQ(test::storedPixels(old).size(), QSize(47, 33));
}

TEST_F(ManualSort, FailsToWriteWhatIsNoPhoto)
{
    photos.append(nonPhoto(folder.path(u"none.txt"_s)));
    photos.select(2);
    panels.vwFileType.pubFileType.selectIndex(1);

    send("hCopyFileToFolder", 2);

    EXPECT_TRUE(sorted().isEmpty());
    EXPECT_THAT(words(), ElementsAre(u"hCopyFileToFolder Failed"_s));
}

TEST_F(ManualSort, MovesAndTheListFollows)
{
    panels.vwFileType.pubFileType.selectIndex(1);

    send("hMoveFileToFolder", 2);

    EXPECT_THAT(sorted(), ElementsAre(u"a.jpg"_s));
    EXPECT_FALSE(QFile::exists(folder.path(u"a.jpg"_s)));
    EXPECT_EQ(photos.entries().first().myPhotoDescription, folder.path(u"two/a.jpg"_s));
    EXPECT_EQ(photos.selectedIndex(), 0);
    EXPECT_EQ(photos.count(), 2);
}

TEST_F(ManualSort, MovesNothingIntoALostFolder)
{
    QDir(folder.path(u"two"_s)).removeRecursively();

    send("hMoveFileToFolder", 2);
    send("hCopyFileToFolder", 2);

    EXPECT_TRUE(QFile::exists(folder.path(u"a.jpg"_s)));
    EXPECT_EQ(photos.entries().first().myPhotoDescription, folder.path(u"a.jpg"_s));
    EXPECT_TRUE(words().isEmpty());
}

TEST_F(ManualSort, FreesItsFolderFromWhatKilledProcessesLeft)
{
    for (const char* action : {"hCopyFileToFolder", "hMoveFileToFolder"}) {
        const QString left = folder.write(u"two/.brenvaldo-0123abcd"_s, "half a picture");
        send(action, 2);
        EXPECT_FALSE(QFile::exists(left)) << action;
    }
}

TEST_F(ManualSort, LeavesThePhotoWhereTheFolderTakesNone)
{
    panel.tfSortDestination02.setStringValue(u"/proc/"_s);

    for (const char* action : {"hCopyFileToFolder", "hMoveFileToFolder", "hAliasFileToFolder"})
        send(action, 2);

    EXPECT_THAT(
        words(),
        ElementsAre(
            u"hCopyFileToFolder Failed"_s,
            u"hMoveFileToFolder Failed"_s,
            u"hAliasFileToFolder Failed"_s
        )
    );
    EXPECT_TRUE(QFile::exists(folder.path(u"a.jpg"_s)));
    EXPECT_EQ(photos.entries().first().myPhotoDescription, folder.path(u"a.jpg"_s));
}

TEST_F(ManualSort, LinksToThePhoto)
{
    send("hAliasFileToFolder", 2);

    EXPECT_EQ(QFile::symLinkTarget(folder.path(u"two/a.jpg"_s)), folder.path(u"a.jpg"_s));
    EXPECT_EQ(photos.entries().first().myPhotoDescription, folder.path(u"a.jpg"_s));
}

TEST_F(ManualSort, TellsOfALinkThatCannotBeMade)
{
    QDir(folder.path(u"two"_s)).removeRecursively();

    send("hAliasFileToFolder", 2);

    EXPECT_THAT(words(), ElementsAre(u"hAliasFileToFolder Failed"_s));
}

TEST_F(ManualSort, TakesATrashedPhotoOutOfTheList)
{
    send("hTrashPhoto", 0);

    EXPECT_FALSE(QFile::exists(folder.path(u"a.jpg"_s)));
    EXPECT_THAT(listedNames(), ElementsAre(u"b.jpg"_s));
}

TEST_F(ManualSort, KeepsAPhotoThatCannotBeTrashed)
{
    QFile::remove(folder.path(u"a.jpg"_s));

    send("hTrashPhoto", 0);

    EXPECT_EQ(photos.count(), 2);
    EXPECT_THAT(words(), ElementsAre(u"hTrashPhoto Failed"_s));
}

TEST_F(ManualSort, NamesByTheChainWithANumberThatGoesOn)
{
    panels.vwWatermark.cActionsTWMArrayController.addObject(
        {u"n\t \tNumbering\tBrenvaldo9\t1\t\t-\t3\t1\t1"_s}
    );
    files::cKeepNumber::sharedNumber().myNumberString = u"0"_s;

    send("hCopyFileToFolder", 2);
    send("hCopyFileToFolder", 2);

    EXPECT_THAT(sorted(), ElementsAre(u"001-a.jpg"_s, u"002-a.jpg"_s));
}

TEST_F(ManualSort, ShowsEachFolderThatIsSet)
{
    panel.tfSortDestination06.setStringValue(u"/six/"_s);

    for (int number = 1; number <= 6; ++number)
        actions.send(u"cGUIcontrols.hShowSortDestination0%1InFinder"_s.arg(number));

    EXPECT_THAT(desktop.revealed, ElementsAre(folder.path(u"two/"_s), u"/six/"_s));
}
