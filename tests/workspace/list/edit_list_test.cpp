// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

using namespace brenvaldo;

namespace {

class EditList : public test::ControllerTest
{
protected:
    /// Three photos of different widths, none of them selected, with what is told of them.
    void fillWithPhotos()
    {
        collectionView.hDroppedPhotos(
            {photo(u"b.jpg"_s, 20, 10), photo(u"c.jpg"_s, 40, 30), photo(u"d.jpg"_s, 60, 40)}
        );
        photos.select(std::nullopt);
        neighbours.hiDoNothing
            = [this](const QString& path) { described.append(path.section(u'/', -1)); };
        neighbours.forgetPhoto = [this] { described.append(u"none"_s); };
    }

    [[nodiscard]] int shownWidth() const
    {
        const auto& shown = panels.window.myTemplatePreview.image();
        return shown ? shown->width() : 0;
    }

    /// The rows of the Run Journal, with names in the place of paths.
    [[nodiscard]] QStringList journalRows() const
    {
        QStringList rows;
        for (const workspace::RunRecord& record : journal.records())
            rows.append(QStringList{
                record.function,
                record.source.section(u'/', -1),
                record.target.section(u'/', -1),
                imaging::text(record.word)}
                            .join(u' '));
        return rows;
    }

    QStringList described;

    void fill(const QStringList& names)
    {
        for (const QString& name : names)
            photos.append(entry(u"/gone/"_s + name, u"L"_s));
    }
};

} // namespace

TEST_F(EditList, RemovesTheSelectedEntry)
{
    collectionView.hDroppedPhotos(
        {photo(u"a.jpg"_s), photo(u"b.jpg"_s, 20, 10), photo(u"c.jpg"_s, 60, 40)}
    );
    photos.select(1);

    actions.send(u"hRemoveSelectedObject"_s);

    EXPECT_EQ(listedNames(), (QStringList{u"a.jpg"_s, u"c.jpg"_s}));
    EXPECT_EQ(panels.window.tfImageCount.stringValue(), u"2"_s);
    EXPECT_EQ(panels.window.myTemplatePreview.image()->width(), 60);
}

TEST_F(EditList, TellsOfThePhotoThatTakesThePlaceOfARemovedOne)
{
    fillWithPhotos();
    photos.select(1);

    actions.send(u"hRemoveSelectedObject"_s);
    EXPECT_EQ(photos.selectedIndex(), 1);
    EXPECT_EQ(shownWidth(), 60);

    actions.send(u"hRemoveSelectedObject"_s);
    EXPECT_EQ(photos.selectedIndex(), 0);
    EXPECT_EQ(shownWidth(), 20);

    EXPECT_EQ(described, (QStringList{u"c.jpg"_s, u"d.jpg"_s, u"b.jpg"_s}));
}

TEST_F(EditList, ShowsTheEffectOnThePhotoThatTakesThePlaceOfARemovedOne)
{
    int twins = 0;
    row("textWM").preview = countingPreview(twins);
    fillWithPhotos();
    photos.select(0);
    panels.vwShowPreview.cbShowPreview.setState(1);

    actions.send(u"hRemoveSelectedObject"_s);

    EXPECT_EQ(twins, 1);
    EXPECT_TRUE(showsOverlay());
    EXPECT_EQ(shownWidth(), 40);
}

TEST_F(EditList, TellsOfNoPhotoOnceTheListIsEmpty)
{
    fillWithPhotos();
    photos.select(0);
    actions.send(u"hRemoveAllPhoto"_s);
    EXPECT_EQ(described, (QStringList{u"b.jpg"_s, u"none"_s}));

    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
    actions.send(u"hRemoveSelectedObject"_s);

    EXPECT_EQ(described.mid(2), (QStringList{u"a.jpg"_s, u"none"_s}));
}

TEST_F(EditList, ShowsAndTellsOfNoPhotoWhenAFileThatIsNoneIsSelectedByARemoval)
{
    photos.append(nonPhoto(u"/gone/a.txt"_s));
    fillWithPhotos();
    for (int removal = 0; removal < 3; ++removal) {
        photos.select(photos.count() - 1);
        actions.send(u"hRemoveSelectedObject"_s);
    }

    EXPECT_EQ(photos.selectedIndex(), 0);
    EXPECT_EQ(shownWidth(), 0);
    EXPECT_EQ(described.last(), u"none"_s);
}

TEST_F(EditList, TurnsThePhotoThatIsShownWhereverOthersFallIn)
{
    QStringList turned;
    neighbours.quickEdits.hRotatePicture = [&](const QString& path, const auto&, float) {
        turned.append(path.section(u'/', -1));
        return imaging::ResultWord::Ok;
    };
    fillWithPhotos();
    photos.select(0);
    actions.send(u"setSortingModeAz"_s);
    ASSERT_EQ(shownWidth(), 20);

    collectionView.hDroppedPhotos({photo(u"a.jpg"_s, 80, 60)});
    actions.send(u"hRotateRight"_s);
    EXPECT_EQ(photos.selectedIndex(), 1);
    EXPECT_EQ(shownWidth(), 20);

    actions.send(u"hRemoveSelectedObject"_s);

    EXPECT_EQ(turned, QStringList{u"b.jpg"_s});
    EXPECT_EQ(listedNames(), (QStringList{u"a.jpg"_s, u"c.jpg"_s, u"d.jpg"_s}));
}

TEST_F(EditList, KeepsTheSelectionOnThePhotoThatADragMoves)
{
    fillWithPhotos();
    photos.select(0);

    collectionView.acceptDrop({0}, 3);

    EXPECT_EQ(listedNames(), (QStringList{u"c.jpg"_s, u"d.jpg"_s, u"b.jpg"_s}));
    EXPECT_EQ(photos.selectedIndex(), 2);
    EXPECT_EQ(collectionView.hGetActiveFileFilePath(), folder.path(u"b.jpg"_s));
    EXPECT_EQ(shownWidth(), 20);
    EXPECT_EQ(described, QStringList{u"b.jpg"_s});
}

TEST_F(EditList, KeepsASortedListSortedUnderADrag)
{
    fill({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    photos.select(0);
    actions.send(u"setSortingModeAz"_s);

    collectionView.acceptDrop({2}, 0);

    EXPECT_EQ(listedNames(), (QStringList{u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s}));
}

TEST_F(EditList, KeepsTheOrderForTheNextPhotosAfterRemovingAll)
{
    fill({u"b.jpg"_s, u"a.jpg"_s});
    photos.select(0);
    actions.send(u"setSortingModezA"_s);

    actions.send(u"hRemoveAllPhoto"_s);
    fill({u"a.jpg"_s, u"c.jpg"_s, u"b.jpg"_s});

    EXPECT_EQ(listedNames(), (QStringList{u"c.jpg"_s, u"b.jpg"_s, u"a.jpg"_s}));
}

TEST_F(EditList, ShowsAnEmptyPreviewAfterTheLastEntry)
{
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
    ASSERT_TRUE(showsPhoto());

    actions.send(u"hRemoveSelectedObject"_s);

    EXPECT_TRUE(photos.isEmpty());
    EXPECT_FALSE(showsPhoto());
    EXPECT_EQ(panels.window.tfImageCount.stringValue(), u"0"_s);
}

TEST_F(EditList, RemovesNothingWithoutASelection)
{
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
    photos.select(std::nullopt);

    actions.send(u"hRemoveSelectedObject"_s);

    EXPECT_EQ(photos.count(), 1);
    EXPECT_FALSE(showsPhoto());
}

TEST_F(EditList, RemovesAllEntries)
{
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s), photo(u"b.jpg"_s)});
    panels.vwShowPreview.cbShowPreview.setState(1);

    actions.send(u"hRemoveAllPhoto"_s);

    EXPECT_TRUE(photos.isEmpty());
    EXPECT_FALSE(showsPhoto());
    EXPECT_FALSE(panels.vwShowPreview.cbShowPreview.isOn());
    EXPECT_EQ(panels.window.tfImageCount.stringValue(), u"0"_s);
}

TEST_F(EditList, ReplacesTheSelectedEntry)
{
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s), photo(u"b.jpg"_s)});
    photos.select(0);

    collectionView.hReplaceSelectedPhotoObject(photo(u"new.jpg"_s, 70, 50));

    EXPECT_EQ(listedNames(), (QStringList{u"new.jpg"_s, u"b.jpg"_s}));
    EXPECT_EQ(photos.selectedIndex(), 0);
    EXPECT_EQ(photos.entries().first().myPhoto.kind, workspace::ListPicture::Kind::FullPicture);
    EXPECT_EQ(panels.window.myTemplatePreview.image()->width(), 70);
}

TEST_F(EditList, ShowsTheNextFileAndCountsItWhileItReplacesAnEntry)
{
    fillWithPhotos();
    photos.select(0);
    QStringList seen;
    const auto counter = panels.window.tfImageCount.changed.connect([&] {
        seen.append(
            panels.window.tfImageCount.stringValue() + u' ' + QString::number(shownWidth())
        );
    });

    collectionView.hReplaceSelectedPhotoObject(photo(u"new.jpg"_s, 70, 50));

    EXPECT_EQ(seen, (QStringList{u"2 40"_s, u"3 40"_s}));
    EXPECT_EQ(shownWidth(), 70);
    EXPECT_EQ(described.last(), u"new.jpg"_s);
}

TEST_F(EditList, ReplacesNothingWithoutASelection)
{
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
    photos.select(std::nullopt);
    ASSERT_TRUE(showsPhoto());

    collectionView.hReplaceSelectedPhotoObject(u"/gone/new.jpg"_s);

    EXPECT_EQ(listedNames(), QStringList{u"a.jpg"_s});
    EXPECT_FALSE(showsPhoto());
}

TEST_F(EditList, TicksAllEntriesAfterTheMasterTick)
{
    fill({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    photos.setTick(1, 0);
    photos.select(2);

    user.tick(panels.window.cbPhotoToProcess, 1);
    for (const auto& item : photos.entries())
        EXPECT_EQ(item.myPhotoSelect, 1);

    user.tick(panels.window.cbPhotoToProcess, 0);
    for (const auto& item : photos.entries())
        EXPECT_EQ(item.myPhotoSelect, 0);
    EXPECT_EQ(photos.selectedIndex(), 2);
}

TEST_F(EditList, TurnsTheMasterTickOffWithASingleOne)
{
    fill({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    user.tick(panels.window.cbPhotoToProcess, 1);

    photos.setTick(1, 0);
    actions.send(u"cbPhotoToProcessClicked"_s);

    EXPECT_FALSE(panels.window.cbPhotoToProcess.isOn());
    EXPECT_EQ(photos.entries().at(0).myPhotoSelect, 1);
    EXPECT_EQ(photos.entries().at(1).myPhotoSelect, 0);
    EXPECT_EQ(photos.entries().at(2).myPhotoSelect, 1);
}

TEST_F(EditList, SortsWithASelectionOnly)
{
    fill({u"b.jpg"_s, u"C.jpg"_s, u"a.jpg"_s});

    actions.send(u"setSortingModeAz"_s);
    EXPECT_EQ(listedNames(), (QStringList{u"b.jpg"_s, u"C.jpg"_s, u"a.jpg"_s}));

    photos.select(2);
    actions.send(u"setSortingModeAz"_s);
    EXPECT_EQ(listedNames(), (QStringList{u"a.jpg"_s, u"b.jpg"_s, u"C.jpg"_s}));
    EXPECT_EQ(photos.selectedIndex(), 0);

    actions.send(u"setSortingModezA"_s);
    EXPECT_EQ(listedNames(), (QStringList{u"C.jpg"_s, u"b.jpg"_s, u"a.jpg"_s}));
}

TEST_F(EditList, ShowsThePhotoThatSortingBringsToTheSelectedPlace)
{
    collectionView.hDroppedPhotos({photo(u"b.jpg"_s, 50, 30), photo(u"a.jpg"_s, 40, 30)});
    ASSERT_EQ(photos.selectedIndex(), 0);

    actions.send(u"setSortingModeAz"_s);

    ASSERT_TRUE(panels.window.myTemplatePreview.image());
    EXPECT_EQ(panels.window.myTemplatePreview.image()->width(), 40);
}

TEST_F(EditList, TellsOfThePhotoThatSortingBringsToTheSelectedPlace)
{
    fillWithPhotos();
    photos.select(0);

    actions.send(u"setSortingModezA"_s);

    EXPECT_EQ(shownWidth(), 60);
    EXPECT_EQ(described, (QStringList{u"b.jpg"_s, u"d.jpg"_s}));
}

TEST_F(EditList, KeepsThePlaceOfAnEntryThatGetsANewNameAmongOthersOfItsName)
{
    for (const QString& path : {u"/1/a.jpg"_s, u"/2/a.jpg"_s, u"/3/a.jpg"_s})
        photos.append(entry(path, u"L"_s));
    photos.select(0);
    actions.send(u"setSortingModeAz"_s);

    collectionView.hUpdateCollectionViewItem(u"renamed.jpg"_s, 1);

    EXPECT_EQ(
        guiControls.hGetPhotosFromArrayController(),
        (QStringList{u"/1/a.jpg"_s, u"/2/a.jpg"_s, u"/3/a.jpg"_s})
    );
    EXPECT_EQ(photos.entries().at(1).myNewName, u"renamed.jpg"_s);
}

TEST_F(EditList, StoresANewName)
{
    fill({u"a.jpg"_s, u"b.jpg"_s});

    collectionView.hUpdateCollectionViewItem(u"renamed.jpg"_s, 1);
    collectionView.hUpdateCollectionViewItem(u"nobody.jpg"_s, 2);

    EXPECT_EQ(photos.entries().at(0).myNewName, QString());
    EXPECT_EQ(photos.entries().at(1).myNewName, u"renamed.jpg"_s);
}

TEST_F(EditList, TellsTheActiveFile)
{
    fill({u"a.jpg"_s});
    EXPECT_EQ(collectionView.hGetActiveFileFilePath(), std::nullopt);

    photos.select(0);
    EXPECT_EQ(collectionView.hGetActiveFileFilePath(), u"/gone/a.jpg"_s);
}

TEST_F(EditList, LeavesTheOrderWhenTheLastEntryIsDraggedToTheEnd)
{
    fill({u"a"_s, u"b"_s, u"c"_s});

    collectionView.acceptDrop({2}, 3);

    EXPECT_EQ(listedNames(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
}

TEST_F(EditList, DropsADownwardMoveOnePlaceFurther)
{
    fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s});

    collectionView.acceptDrop({0}, 2);

    EXPECT_EQ(listedNames(), (QStringList{u"b"_s, u"c"_s, u"a"_s, u"d"_s}));
}

TEST_F(EditList, DropsAnUpwardMoveIntoTheGap)
{
    fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s});

    collectionView.acceptDrop({3}, 0);

    EXPECT_EQ(listedNames(), (QStringList{u"d"_s, u"a"_s, u"b"_s, u"c"_s}));
}

TEST_F(EditList, DoesNotCorrectTheIndexesOfSeveralDraggedEntries)
{
    fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});

    collectionView.acceptDrop({0, 1}, 3);

    EXPECT_EQ(listedNames(), (QStringList{u"b"_s, u"d"_s, u"a"_s, u"e"_s, u"c"_s}));
    EXPECT_EQ(panels.window.tfImageCount.stringValue(), u"5"_s);
}

TEST_F(EditList, TurnsTheSelectedFileInItsFolder)
{
    const QString path = photo(u"a.jpg"_s, 40, 30);
    collectionView.hDroppedPhotos({path});
    photos.setTick(0, 0);
    QStringList calls;
    neighbours.quickEdits.hRotatePicture
        = [&](const QString& file, const QString& target, float angle) {
              calls.append(file + u' ' + target + u' ' + QString::number(double(angle)));
              (void)test::PhotoBuilder().size(30, 40).write(file);
              return imaging::ResultWord::Ok;
          };

    actions.send(u"hRotateRight"_s);
    actions.send(u"hRotateLeft"_s);

    EXPECT_EQ(
        calls,
        (QStringList{
            path + u' ' + folder.path() + u" -90"_s, path + u' ' + folder.path() + u" 90"_s})
    );
    const auto& edited = photos.entries().first();
    EXPECT_TRUE(edited.myPhotoPxSize.startsWith(u"30x40px | "_s));
    EXPECT_EQ(edited.myPhotoOrientation, u"P"_s);
    EXPECT_EQ(edited.myPhotoSelect, 1);
    EXPECT_EQ(edited.myPhoto.kind, workspace::ListPicture::Kind::FullPicture);
    EXPECT_EQ(panels.window.myTemplatePreview.image()->width(), 30);
    EXPECT_EQ(photos.selectedIndex(), 0);
    EXPECT_EQ(
        journalRows(),
        (QStringList{u"hRotateRight a.jpg a.jpg OK"_s, u"hRotateLeft a.jpg a.jpg OK"_s})
    );
}

TEST_F(EditList, RemovesWhatAKilledProgramLeftBesideTheSelectedFile)
{
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
    neighbours.quickEdits.hFlipVerticalPicture
        = [](const QString&, const QString&) { return imaging::ResultWord::Ok; };
    const QString abandoned = folder.write(u".brenvaldo-0123abcd"_s, "half a photo");

    actions.send(u"hFlipVertical"_s);

    EXPECT_FALSE(QFileInfo::exists(abandoned));
}

TEST_F(EditList, MirrorsTheSelectedFile)
{
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
    QStringList calls;
    neighbours.quickEdits.hFlipHorizontalPicture = [&](const QString&, const QString&) {
        calls.append(u"horizontal"_s);
        return imaging::ResultWord::Ok;
    };
    neighbours.quickEdits.hFlipVerticalPicture = [&](const QString&, const QString&) {
        calls.append(u"vertical"_s);
        return imaging::ResultWord::NotSupported;
    };

    actions.send(u"hFlipHorizontal"_s);
    actions.send(u"hFlipVertical"_s);

    EXPECT_EQ(calls, (QStringList{u"horizontal"_s, u"vertical"_s}));
    EXPECT_EQ(
        journalRows(),
        (QStringList{
            u"hFlipHorizontal a.jpg a.jpg OK"_s, u"hFlipVertical a.jpg a.jpg Not Supported"_s})
    );
}

TEST_F(EditList, TurnsNoFileThatIsNoPhotoAndNoneWithoutASelection)
{
    int calls = 0;
    neighbours.quickEdits.hRotatePicture = [&](const auto&, const auto&, float) {
        ++calls;
        return imaging::ResultWord::Ok;
    };
    photos.append(nonPhoto(u"/gone/a.txt"_s));

    actions.send(u"hRotateRight"_s);
    photos.select(0);
    actions.send(u"hRotateRight"_s);

    EXPECT_EQ(calls, 0);
}

TEST_F(EditList, LaysAWatermarkOverATurnedPhotoWhateverTheFunction)
{
    int textTwins = 0;
    int imageTwins = 0;
    neighbours.quickEdits.hRotatePicture
        = [](const auto&, const auto&, float) { return imaging::ResultWord::Ok; };
    row("textWM").preview = countingPreview(textTwins);
    row("imageWM").preview = countingPreview(imageTwins);
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
    select("cropPhotos");
    panels.vwShowPreview.cbShowPreview.setState(1);

    actions.send(u"hRotateLeft"_s);
    panels.vwWatermark.tbvWatermarkType.selectIndex(1);
    actions.send(u"hRotateLeft"_s);

    EXPECT_EQ(textTwins, 1);
    EXPECT_EQ(imageTwins, 1);
    EXPECT_TRUE(showsOverlay());
}
