// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

using namespace brenvaldo;

namespace {

class FillList : public test::ControllerTest
{
protected:
    /// The texts of the counter while `add` runs, each with the state of the preview's box.
    [[nodiscard]] QStringList counted(const std::function<void()>& add)
    {
        QStringList seen;
        const auto counter = panels.window.tfImageCount.changed.connect([&] {
            seen.append(
                panels.window.tfImageCount.stringValue() + u' '
                + QString::number(panels.vwShowPreview.cbShowPreview.state())
            );
        });
        add();
        return seen;
    }
};

} // namespace

TEST_F(FillList, AsksForPhotos)
{
    chooser.answers = {QStringList{photo(u"a.jpg"_s)}};
    panels.vwShowPreview.cbShowPreview.setState(1);

    actions.send(u"hChoosePhotos"_s);

    ASSERT_EQ(chooser.panels.size(), 1);
    const controls::OpenPanel& panel = chooser.panels.first();
    EXPECT_EQ(panel.message, u"*** Choose your photos ***"_s);
    EXPECT_TRUE(panel.choosesFiles);
    EXPECT_FALSE(panel.choosesDirectories);
    EXPECT_TRUE(panel.allowsMultipleSelection);
    EXPECT_EQ(
        panel.allowedTypes,
        (QStringList{
            u"jpg"_s, u"png"_s, u"gif"_s, u"bmp"_s, u"jpeg"_s, u"tif"_s, u"tiff"_s, u"heic"_s})
    );
    EXPECT_EQ(listedNames(), QStringList{u"a.jpg"_s});
    EXPECT_FALSE(panels.vwShowPreview.cbShowPreview.isOn());
}

TEST_F(FillList, AsksForFilesOfAnyKindToRename)
{
    select("fileRenaming");
    chooser.answers = {QStringList{folder.write(u"notes.txt"_s, "text"), photo(u"a.jpg"_s)}};

    actions.send(u"hChoosePhotos"_s);

    EXPECT_EQ(chooser.panels.first().message, u"*** Choose files to rename ***"_s);
    EXPECT_TRUE(chooser.panels.first().allowedTypes.isEmpty());
    EXPECT_TRUE(chooser.panels.first().allowsMultipleSelection);
    EXPECT_TRUE(chooser.panels.first().choosesFiles);
    EXPECT_FALSE(chooser.panels.first().choosesDirectories);
    EXPECT_EQ(photos.entries().at(0).myRenameSelect, 1);
    EXPECT_EQ(photos.entries().at(1).myRenameSelect, 0);
    EXPECT_EQ(photos.entries().at(1).myPhotoOrientation, u"S"_s);
    EXPECT_EQ(photos.entries().at(1).myPhotoPxSize, QString());
}

TEST_F(FillList, TellsThatBatchSortingNeedsNoPhotos)
{
    select("batchSort");

    actions.send(u"hChoosePhotos"_s);

    EXPECT_TRUE(chooser.panels.isEmpty());
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts.first().first(), u"Batch sort photos and files."_s);
}

TEST_F(FillList, TellsThatCodesNeedNoPhotos)
{
    select("batchQR");

    actions.send(u"hChoosePhotos"_s);

    EXPECT_TRUE(chooser.panels.isEmpty());
    EXPECT_EQ(
        alerts,
        (QList<QStringList>{
            {u"Generate a QR and '128' code."_s,
             u"\rYou don't have to select any photo or file with this function."_s}})
    );
}

TEST_F(FillList, ChangesNothingWhenThePanelIsCancelled)
{
    photos.append(entry(u"/gone/a.jpg"_s, u"L"_s));

    actions.send(u"hChoosePhotos"_s);

    EXPECT_EQ(photos.count(), 1);
    EXPECT_EQ(photos.selectedIndex(), std::nullopt);
}

TEST_F(FillList, CountsAndShowsProgressWhileItAdds)
{
    chooser.answers = {QStringList{photo(u"a.jpg"_s), photo(u"b.jpg"_s), photo(u"c.jpg"_s)}};
    QStringList counter;
    QList<double> bar;
    const auto texts = panels.window.tfImageCount.changed.connect([&] {
        counter.append(panels.window.tfImageCount.stringValue());
    });
    const auto values = panels.window.myProgressBar.changed.connect([&] {
        const double value = panels.window.myProgressBar.doubleValue();
        if (bar.isEmpty() || bar.last() != value)
            bar.append(value);
    });

    actions.send(u"hChoosePhotos"_s);

    EXPECT_EQ(counter, (QStringList{u"1 of 3"_s, u"2 of 3"_s, u"3 of 3"_s, u"3"_s}));
    EXPECT_EQ(bar, (QList<double>{0, 33, 66, 99, 0}));
    EXPECT_TRUE(panels.window.myProgressBar.isHidden());
}

TEST_F(FillList, SelectsTheFirstEntryAnewAfterChoosing)
{
    photos.append(entry(u"/gone/a.jpg"_s, u"L"_s));
    photos.select(0);
    chooser.answers = {QStringList{photo(u"b.jpg"_s)}};
    QList<std::optional<int>> selections;
    const auto subscription
        = photos.selectionChanged.connect([&] { selections.append(photos.selectedIndex()); });

    actions.send(u"hChoosePhotos"_s);

    EXPECT_EQ(selections, (QList<std::optional<int>>{1, 0}));
}

TEST_F(FillList, AddsDroppedFilesWhateverTheyAre)
{
    panels.vwShowPreview.cbShowPreview.setState(1);

    collectionView.hDroppedPhotos({folder.write(u"notes.txt"_s, "text"), photo(u"a.jpg"_s)});

    EXPECT_EQ(listedNames(), (QStringList{u"notes.txt"_s, u"a.jpg"_s}));
    EXPECT_EQ(photos.entries().first().myRenameSelect, 0);
    EXPECT_EQ(panels.window.tfImageCount.stringValue(), u"2"_s);
    EXPECT_TRUE(panels.vwShowPreview.cbShowPreview.isOn());
    EXPECT_EQ(photos.selectedIndex(), 0);
}

TEST_F(FillList, CountsTheListAloneWhileItAddsDroppedFilesWithoutAPreview)
{
    photos.append(entry(u"/gone/x.jpg"_s, u"L"_s));
    panels.vwShowPreview.cbShowPreview.setState(1);

    const QStringList seen = counted([&] {
        collectionView.hDroppedPhotos({photo(u"a.jpg"_s), photo(u"b.jpg"_s)});
    });

    EXPECT_EQ(seen, (QStringList{u"2 0"_s, u"3 0"_s}));
}

TEST_F(FillList, CountsTheListWhileItInsertsPhotosWithoutAPreview)
{
    photos.append(entry(u"/gone/x.jpg"_s, u"L"_s));
    panels.vwShowPreview.cbShowPreview.setState(1);
    chooser.answers = {QStringList{photo(u"a.jpg"_s), photo(u"b.jpg"_s)}};

    const QStringList seen = counted([&] { actions.send(u"hInsertPhotos"_s); });

    EXPECT_EQ(seen, (QStringList{u"2 0"_s, u"3 0"_s}));
}

TEST_F(FillList, AddsNoFurtherFileOnceTheProgramEnds)
{
    const auto closing
        = photos.entriesChanged.connect([&] { panels.window.myProgressBar.askToEnd(); });

    collectionView.hDroppedPhotos({photo(u"a.jpg"_s), photo(u"b.jpg"_s)});

    EXPECT_EQ(listedNames(), QStringList{u"a.jpg"_s});
}

TEST_F(FillList, TurnsAPhotoOnlyWhenItIsChosen)
{
    const QString path
        = test::PhotoBuilder().size(40, 30).orientation(6).write(folder.path(u"turned.jpg"_s));
    chooser.answers = {QStringList{path}};

    actions.send(u"hChoosePhotos"_s);
    collectionView.hDroppedPhotos({path});

    EXPECT_EQ(photos.entries().at(0).myPhotoOrientation, u"P"_s);
    EXPECT_EQ(photos.entries().at(1).myPhotoOrientation, u"L"_s);
}

TEST_F(FillList, InsertsPhotosAtTheEndWithTheirFullPicture)
{
    photos.append(entry(u"/gone/a.jpg"_s, u"L"_s));
    panels.vwShowPreview.cbShowPreview.setState(1);
    chooser.answers = {QStringList{photo(u"b.jpg"_s)}};

    actions.send(u"hInsertPhotos"_s);

    EXPECT_EQ(chooser.panels.first().message, u"*** Choose your photos ***"_s);
    EXPECT_EQ(listedNames(), (QStringList{u"a.jpg"_s, u"b.jpg"_s}));
    EXPECT_EQ(photos.entries().last().myPhoto.kind, workspace::ListPicture::Kind::FullPicture);
    EXPECT_FALSE(photos.entries().last().myPhotoURL.isEmpty());
    EXPECT_TRUE(panels.vwShowPreview.cbShowPreview.isOn());
    EXPECT_TRUE(panels.window.myProgressBar.isHidden());
}

TEST_F(FillList, LetsANewPhotoFallIntoTheSortedList)
{
    collectionView.hDroppedPhotos({photo(u"d.jpg"_s), photo(u"a.jpg"_s)});
    actions.send(u"setSortingModeAz"_s);

    collectionView.hDroppedPhotos({photo(u"B.jpg"_s)});

    EXPECT_EQ(listedNames(), (QStringList{u"a.jpg"_s, u"B.jpg"_s, u"d.jpg"_s}));
}
