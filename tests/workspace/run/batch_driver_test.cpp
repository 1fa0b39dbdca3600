// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>
#include <workspace/functions/watermark_run.h>
#include <workspace/run/batch_rules.h>

#include <files/keep_number.h>
#include <metadata/comment_settings.h>
#include <platform/foundation/log.h>
#include <services/photo_upload.h>

#include <support/case_name.h>

using namespace brenvaldo;

namespace {

const QStringList missingDestination{
    u"Missing destination."_s,
    u"Please choose a destination folder,\rwhere you like to store your processed photos."_s};
const QStringList noPhotos{u"No photos to process."_s, u"Please choose photos first."_s};

class BatchDriver : public test::ControllerTest
{
protected:
    BatchDriver()
    {
        platform::setLogSink([this](const QString& line) { log.append(line); });
    }
    ~BatchDriver() override { platform::setLogSink({}); }

    void chooseDestination()
    {
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(u"/out/"_s);
    }
    void addPhotos(const QStringList& names, const QString& orientation = u"L"_s)
    {
        for (const QString& name : names)
            photos.append(entry(u"/in/"_s + name, orientation));
    }
    void run() { actions.send(u"hLoadImages"_s); }
    void selectResize()
    {
        select("resizePhotos");
        panels.window.pubEditPhoto.selectIndex(8);
        panels.vwResizePhotos.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(u"100"_s);
        runs("resizePhotos", [this](const workspace::PhotoOutput& output) {
            bases.append(output.photo.destinationBase);
            tails.append(output.tail);
            bar.append(panels.window.myProgressBar.doubleValue());
            return imaging::ResultWord::Ok;
        });
    }
    [[nodiscard]] QStringList words() const
    {
        QStringList found;
        for (const auto& record : journal.records())
            found.append(text(record.word));
        return found;
    }

    QStringList log;
    QStringList bases;
    QList<imaging::OutputTail> tails;
    QList<double> bar;
};

struct Filter
{
    const char* name;
    int index;
    const char* filter;
};

void PrintTo(const Filter& filter, std::ostream* out) { *out << filter.name; }

class ApplyOn : public testing::TestWithParam<Filter>
{
};

struct NotBuilt
{
    const char* name; ///< function id
    int index;
};

void PrintTo(const NotBuilt& function, std::ostream* out) { *out << function.name; }

class FunctionsToCome : public BatchDriver, public testing::WithParamInterface<NotBuilt>
{
};

} // namespace

TEST_P(ApplyOn, MapsTheIndexToTheOrientation)
{
    EXPECT_EQ(workspace::applyOnFilter(GetParam().index), QLatin1String(GetParam().filter));
}

INSTANTIATE_TEST_SUITE_P(
    BatchRules,
    ApplyOn,
    testing::Values(
        Filter{"All", 0, "ALL"},
        Filter{"Landscape", 1, "L"},
        Filter{"Portrait", 2, "P"},
        Filter{"Square", 3, "S"},
        Filter{"Beyond", 7, "S"}
    ),
    test::CaseName{}
);

TEST(BatchRules, CountTheBarInWholeThousandths)
{
    EXPECT_EQ(workspace::progressStep(1), 1000);
    EXPECT_EQ(workspace::progressStep(3), 333);
    EXPECT_EQ(workspace::progressStep(1000), 1);
    EXPECT_EQ(workspace::progressStep(1001), 0);
}

TEST(BatchRules, TakeTheExtensionOffTheDestinationBase)
{
    EXPECT_EQ(workspace::destinationBase(u"/out/"_s, u"a.JPG"_s), u"/out/a"_s);
    EXPECT_EQ(workspace::destinationBase(u"/out"_s, u"a.JPG"_s), u"/outa"_s);
}

TEST_F(BatchDriver, DoesNothingForManualSorting)
{
    select("manSort");
    chooseDestination();
    addPhotos({u"a.jpg"_s});
    panels.vwShowPreview.cbShowPreview.setState(1);

    run();

    EXPECT_TRUE(alerts.isEmpty());
    EXPECT_TRUE(journal.records().isEmpty());
    EXPECT_TRUE(panels.vwShowPreview.cbShowPreview.isOn());
}

TEST_F(BatchDriver, SendsBatchSortingToItsOwnButton)
{
    select("batchSort");

    run();

    EXPECT_EQ(
        alerts,
        (QList<QStringList>{
            {u"Batch sort photos and files."_s,
             u"\rYou selected: \"Sort photos & files\" > \"Batch mode\" function at the left. "
             u"\rYou'll need to use the \"Choose files & sort\" button on the left "
             u"pane.\r\rSelected photos & files will be sorted according to your given settings in "
             u"chosen destination folder."_s}})
    );
    EXPECT_TRUE(panels.window.wwAlertWindow.isOpen());
    EXPECT_EQ(panels.window.tfHTMLAlertTitle.stringValue(), alerts.first().first());
    EXPECT_EQ(panels.window.tfHTMLAlertInfo.stringValue(), alerts.first().last());

    actions.send(u"closeApplicationAlertSheetObjC"_s);
    EXPECT_FALSE(panels.window.wwAlertWindow.isOpen());
}

TEST_F(BatchDriver, SendsCodesToTheirOwnButton)
{
    select("batchQR");

    run();

    EXPECT_EQ(
        alerts,
        (QList<QStringList>{
            {u"Generate a QR and '128' code."_s,
             u"\rUse the \"Generate code\" button at the left pane to generate the code."_s}})
    );
}

TEST_F(BatchDriver, AsksForADestinationBeforeItLooksAtTheList)
{
    panels.vwShowPreview.cbShowPreview.setState(1);

    run();
    EXPECT_EQ(alerts, QList<QStringList>{missingDestination});
    EXPECT_TRUE(panels.vwShowPreview.cbShowPreview.isOn());

    chooseDestination();
    run();
    EXPECT_EQ(alerts, (QList<QStringList>{missingDestination, noPhotos}));
}

TEST_F(BatchDriver, EndsSilentlyWhenTheOrientationTakesNoPhoto)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s, u"b.jpg"_s});
    panels.vwApplyOn.pubPhotoOrientation.selectIndex(2);

    run();

    EXPECT_TRUE(alerts.isEmpty());
    EXPECT_TRUE(bases.isEmpty());
}

TEST_F(BatchDriver, TakesTickedPhotosOfTheOrientationInTheOrderOfTheList)
{
    selectResize();
    chooseDestination();
    addPhotos({u"b.jpg"_s, u"a.jpg"_s, u"unticked.jpg"_s});
    addPhotos({u"tall.jpg"_s}, u"P"_s);
    photos.append(nonPhoto(u"/in/notes.txt"_s));
    photos.setTick(2, 0);
    panels.vwApplyOn.pubPhotoOrientation.selectIndex(1);

    run();

    EXPECT_EQ(bases, (QStringList{u"/out/b"_s, u"/out/a"_s}));
    EXPECT_EQ(
        guiControls.driver().mySelectedImagesNSArray(),
        (QStringList{u"/in/b.jpg"_s, u"/in/a.jpg"_s})
    );
}

TEST_F(BatchDriver, SkipsTickedEntriesThatAreNoPhotos)
{
    select("textWM");
    chooseDestination();
    photos.append(nonPhoto(u"/in/notes.txt"_s));
    addPhotos({u"a.jpg"_s});
    QStringList taken;
    worksOn("textWM", [&](const auto& list) { taken = list.paths; });

    run();

    EXPECT_EQ(taken, QStringList{u"/in/a.jpg"_s});
}

TEST_F(BatchDriver, StartsTheNumberingAfresh)
{
    files::cKeepNumber::sharedNumber().myNumberString = u"17"_s;

    run();

    EXPECT_EQ(files::cKeepNumber::sharedNumber().myNumberString, u"0"_s);
}

TEST_F(BatchDriver, KeepsThePreviewOffDuringARun)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s});
    panels.vwShowPreview.cbShowPreview.setState(1);
    bool wasOn = true;
    runs("resizePhotos", [&](const auto&) {
        wasOn = panels.vwShowPreview.cbShowPreview.isOn();
        return imaging::ResultWord::Ok;
    });

    run();

    EXPECT_FALSE(wasOn);
    EXPECT_TRUE(panels.vwShowPreview.cbShowPreview.isOn());
}

TEST_F(BatchDriver, PutsThePreviewBackAfterAFault)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s});
    panels.vwShowPreview.cbShowPreview.setState(1);
    runs("resizePhotos", [](const auto&) -> imaging::ResultWord {
        throw platform::RangeError(u"index 3 beyond bounds"_s);
    });

    run();

    EXPECT_TRUE(panels.vwShowPreview.cbShowPreview.isOn());
    EXPECT_TRUE(panels.window.myProgressBar.isHidden());
}

TEST_F(BatchDriver, WritesAllPhotosInTheTypeThatWasChosenBeforeTheLoop)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s, u"b.jpg"_s});
    panels.vwFileType.pubFileType.selectIndex(1);
    panels.vwFileType.pubJPEGCompressionLevel.selectIndex(3);
    runs("resizePhotos", [this](const workspace::PhotoOutput& output) {
        tails.append(output.tail);
        panels.vwFileType.pubFileType.selectIndex(2);
        panels.vwFileType.pubJPEGCompressionLevel.selectIndex(0);
        return imaging::ResultWord::Ok;
    });

    run();

    ASSERT_EQ(tails.size(), 2);
    EXPECT_EQ(tails.last().myFileType, u"public.png"_s);
    EXPECT_EQ(tails.last().compressionLevel, u"4"_s);
}

TEST_F(BatchDriver, StopsTheBarAt999OfThreePhotos)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});

    run();

    EXPECT_EQ(bar, (QList<double>{333, 666, 999}));
    EXPECT_TRUE(panels.window.myProgressBar.isHidden());
}

TEST_F(BatchDriver, KeepsTheOriginalFileType)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.JPG"_s});

    run();

    EXPECT_EQ(bases, QStringList{u"/out/a"_s});
    EXPECT_EQ(tails.first().outputType, u"original file type"_s);
    EXPECT_EQ(tails.first().fileExtension, u"JPG"_s);
    EXPECT_EQ(tails.first().fileExtensionNSStr, QString());
    EXPECT_EQ(tails.first().fileUTI, u"public.jpeg"_s);
    EXPECT_EQ(tails.first().myFileType, u"public.jpeg"_s);
    EXPECT_EQ(tails.first().compressionLevel, u"9"_s);
}

TEST_F(BatchDriver, MakesTheTypeOfTheChosenTitle)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s});

    panels.vwFileType.pubFileType.selectIndex(4);
    run();
    panels.vwFileType.pubFileType.selectIndex(1);
    run();

    EXPECT_EQ(tails.at(0).myFileType, u"com.compuserve.gif"_s);
    EXPECT_EQ(tails.at(1).myFileType, u"public.png"_s);
    EXPECT_EQ(tails.at(1).fileUTI, u"public.jpeg"_s);
}

TEST_F(BatchDriver, NamesOutputsByTheChainOfActions)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s});
    panels.vwWatermark.cActionsTWMArrayController.addObject({u"Prefix"_s});
    neighbours.hRenameTWMFile
        = [](const QString&, const QString& name, const QList<QStringList>& chain) {
              return chain.first().first() + u'_' + name;
          };

    run();

    EXPECT_EQ(bases, QStringList{u"/out/Prefix_a"_s});
}

TEST_F(BatchDriver, RecordsEachPhotoInTheJournal)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.tif"_s});

    run();

    ASSERT_EQ(journal.records().size(), 1);
    EXPECT_EQ(journal.records().first().function, u"resizePhotos"_s);
    EXPECT_EQ(journal.records().first().source, u"/in/a.tif"_s);
    EXPECT_EQ(journal.records().first().target, u"/out/a.tiff"_s);
    EXPECT_EQ(text(journal.records().first().word), u"OK"_s);
}

TEST_F(BatchDriver, WarnsOfAMaximumOfZeroForEachPhotoAndStillCalls)
{
    selectResize();
    restoreRun("resizePhotos");
    chooseDestination();
    addPhotos({u"a.jpg"_s, u"b.jpg"_s});
    panels.vwResizePhotos.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(QString());

    run();

    const QStringList wrongValue{u"Wrong value"_s, u"Value can't be empty or '0'."_s};
    EXPECT_EQ(alerts, (QList<QStringList>{wrongValue, wrongValue}));
    // The word that the operation has for it; there is no such file.
    EXPECT_EQ(words(), (QStringList{u"OK"_s, u"OK"_s}));
}

TEST_F(BatchDriver, PassesOverPhotosForABoxWithoutWidthOrHeight)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s, u"b.jpg"_s});
    panels.vwResizePhotos.pubScaleType.selectIndex(1);
    panels.vwResizePhotos.dvVCUiScaleFixView.tfScaleFixWidth.setStringValue(u"300"_s);
    restoreRun("resizePhotos");

    run();

    const QStringList wrongSize{u"Wrong value"_s, u"Width or height can't be empty or '0'."_s};
    EXPECT_EQ(alerts, (QList<QStringList>{wrongSize, wrongSize}));
    EXPECT_TRUE(journal.records().isEmpty());

    panels.vwResizePhotos.dvVCUiScaleFixView.tfScaleFixHeight.setStringValue(u"200"_s);
    run();
    EXPECT_EQ(journal.records().size(), 2);
}

TEST_F(BatchDriver, FollowsThePopUpWhereTheIdDisagrees)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s});
    select("cropPhotos");

    run();

    EXPECT_EQ(bases, QStringList{u"/out/a"_s});
}

TEST_F(BatchDriver, ReadsTheCommentOfAPhoto)
{
    select("batchExifUC");
    addPhotos({u"a.jpg"_s});
    panels.vwFileManagementEXIF.tfExifUserComment.setStringValue(u"At sea"_s);
    QList<QStringList> calls;
    reads("batchExifUC", [&](const QString& path) {
        const auto [comment, clear] = metadata::readSettings(panels.vwFileManagementEXIF);
        return [&calls, call = QStringList{path, comment, QString::number(clear)}] {
            calls.append(call);
        };
    });

    for (const int state : {0, 1}) {
        panels.vwFileManagementEXIF.cbClearBeforeAdd.setState(state);
        run();
    }

    EXPECT_EQ(
        calls,
        (QList<QStringList>{
            {u"/in/a.jpg"_s, u"At sea"_s, u"0"_s}, {u"/in/a.jpg"_s, u"At sea"_s, u"1"_s}})
    );
}

TEST_F(BatchDriver, MarksWithAPictureOnEveryTabButThatOfTexts)
{
    select("textWM");
    chooseDestination();
    addPhotos({u"a.jpg"_s});
    panels.vwWatermark.tbvWatermarkType.selectIndex(1);
    int texts = 0;
    int pictures = 0;
    worksOn("textWM", [&](const auto&) { ++texts; });
    worksOn("imageWM", [&](const auto&) { ++pictures; });

    run();

    EXPECT_EQ(texts, 0);
    EXPECT_EQ(pictures, 1);
}

TEST_F(BatchDriver, HandsTheWholeListToTheWatermark)
{
    chooseDestination();
    addPhotos({u"a.jpg"_s, u"b.jpg"_s});
    panels.vwWatermark.tvFileName.setStringValue(u"name"_s);
    panels.vwWatermark.pubFileNamePhotoProperties.selectItemAtIndex(1);
    watermark::WatermarkRun seen;
    worksOn("textWM", [&](const auto& list) {
        seen = workspace::watermarkRun(list);
        list.sink.take(
            {.source = u"/in/a.jpg"_s,
             .target = u"/out/a.jpg"_s,
             .outcome = imaging::ResultWord::Ok}
        );
    });

    run();

    EXPECT_EQ(seen.photos, (QStringList{u"/in/a.jpg"_s, u"/in/b.jpg"_s}));
    EXPECT_EQ(seen.destination, u"/out/"_s);
    EXPECT_EQ(seen.outputType, u"original file type"_s);
    EXPECT_EQ(seen.compressionLevel, u"9"_s);
    EXPECT_EQ(seen.fileNameText, u"name"_s);
    EXPECT_EQ(seen.photoProperty, 1);
    ASSERT_EQ(journal.records().size(), 1);
    EXPECT_EQ(journal.records().first().function, u"textWM"_s);
}

TEST_P(FunctionsToCome, FailForEachPhotoAndSaySo)
{
    select(GetParam().name);
    panels.window.pubEditPhoto.selectIndex(GetParam().index);
    chooseDestination();
    addPhotos({u"a.jpg"_s, u"b.jpg"_s});

    run();

    EXPECT_EQ(words(), (QStringList{u"Failed"_s, u"Failed"_s}));
    ASSERT_FALSE(log.isEmpty());
    EXPECT_TRUE(log.first().contains(QLatin1String(GetParam().name)));
}

INSTANTIATE_TEST_SUITE_P(
    BatchDriver,
    FunctionsToCome,
    testing::Values(
        NotBuilt{"textWM", 0},
        NotBuilt{"addTint", 1},
        NotBuilt{"framing", 2},
        NotBuilt{"roundings", 3},
        NotBuilt{"profileConversion", 4},
        NotBuilt{"faces", 5},
        NotBuilt{"rotatePhotos", 6},
        NotBuilt{"filters", 7},
        NotBuilt{"resizePhotos", 8},
        NotBuilt{"cropPhotos", 9},
        NotBuilt{"batchUploadPhotos", 0},
        NotBuilt{"batchExifUC", 0},
        NotBuilt{"fileRenaming", 0},
        NotBuilt{"batchFileConvert", 0},
        NotBuilt{"htmlExport", 0}
    ),
    test::CaseName{}
);

TEST_F(BatchDriver, ConvertsEveryTickedEntry)
{
    select("batchFileConvert");
    chooseDestination();
    addPhotos({u"a.JPG"_s});
    photos.append(nonPhoto(u"/in/b.txt"_s));
    panels.vwApplyOn.pubPhotoOrientation.selectIndex(2);
    runs("batchFileConvert", [&](const workspace::PhotoOutput& output) {
        EXPECT_EQ(output.tail.compressionLevel, u"9"_s);
        return imaging::ResultWord::Ok;
    });

    run();

    QStringList targets;
    for (const auto& record : journal.records())
        targets.append(record.target);

    EXPECT_EQ(targets, (QStringList{u"/out/a.jpeg"_s, u"/out/b"_s}));
}

TEST_F(BatchDriver, RenamesFilesThatAreNoPhotosToo)
{
    select("fileRenaming");
    chooseDestination();
    addPhotos({u"a.jpg"_s});
    photos.append(nonPhoto(u"/in/b.txt"_s));
    panels.vwApplyOn.pubPhotoOrientation.selectIndex(2);
    QList<workspace::RenameRequest> requests;
    renames([&](const workspace::RenameRequest& request) { requests.append(request); });

    run();

    ASSERT_EQ(requests.size(), 2);
    EXPECT_EQ(requests.at(1).path, u"/in/b.txt"_s);
    EXPECT_EQ(requests.at(1).function, u"RenamingFunction"_s);
    EXPECT_EQ(requests.at(1).previewState, 0);
    EXPECT_EQ(requests.at(1).index, 1);
}

TEST_F(BatchDriver, NeedsNoDestinationForADryRunOfRenaming)
{
    select("fileRenaming");
    addPhotos({u"a.jpg"_s, u"b.jpg"_s});
    photos.setTick(1, 0);
    collectionView.hUpdateCollectionViewItem(u"old"_s, 1);
    panels.vwShowPreview.cbShowPreview.setState(1);
    renames([&](const workspace::RenameRequest& request) { EXPECT_EQ(request.previewState, 1); });

    run();

    EXPECT_TRUE(alerts.isEmpty());
    EXPECT_EQ(photos.entries().at(0).myNewName, u"new.jpg"_s);
    EXPECT_EQ(photos.entries().at(1).myNewName, QString());

    panels.vwShowPreview.cbShowPreview.setState(0);
    run();
    EXPECT_EQ(alerts, QList<QStringList>{missingDestination});
}

TEST_F(BatchDriver, UploadsWithTheSelectedAlbum)
{
    select("batchUploadPhotos");
    addPhotos({u"a.jpg"_s});
    panels::SortingPanel& panel = panels.vwFileManagementSorting;
    panel.tfAddKeyword.setStringValue(u"sea"_s);
    panel.tfAddTitle.setStringValue(u"Title"_s);
    panel.tfAddDescription.setStringValue(u"Description"_s);
    panel.cbAddToFavorite.setState(1);
    panel.theApplePhotosData.setObjects({{u"Holiday"_s}, {u"Work"_s}});
    QList<services::PhotoUpload> uploads;
    reads("batchUploadPhotos", [&](const QString& path) {
        return [&, upload = services::readUpload(panel, path)] { uploads.append(upload); };
    });

    run();
    panel.myPhotosTableView.selectRow(1);
    run();

    ASSERT_EQ(uploads.size(), 2);
    EXPECT_EQ(uploads.at(0).album, QString());
    EXPECT_EQ(uploads.at(1).album, u"Work"_s);
    EXPECT_EQ(uploads.at(1).keyword, u"sea"_s);
    EXPECT_EQ(uploads.at(1).title, u"Title"_s);
    EXPECT_EQ(uploads.at(1).description, u"Description"_s);
    EXPECT_EQ(uploads.at(1).favourite, u"1"_s);
}

TEST_F(BatchDriver, EndsRunsOfNoPhotosSilently)
{
    chooseDestination();
    for (const char* function : {"batchUploadPhotos", "batchExifUC", "fileRenaming"}) {
        select(function);
        run();
    }
    addPhotos({u"a.jpg"_s});
    photos.setTick(0, 0);
    select("batchFileConvert");
    run();

    EXPECT_TRUE(alerts.isEmpty());
    EXPECT_TRUE(journal.records().isEmpty());
}

TEST_F(BatchDriver, DoesNothingForTheUploadThatNoControlSelects)
{
    selectResize();
    select("uploadPhotos");
    chooseDestination();
    addPhotos({u"a.jpg"_s});

    run();

    EXPECT_TRUE(bases.isEmpty());
    EXPECT_TRUE(journal.records().isEmpty());
}

TEST_F(BatchDriver, HandsThePhotosToTheGallery)
{
    select("htmlExport");
    chooseDestination();
    addPhotos({u"a.jpg"_s});
    QString destination;
    worksOn("htmlExport", [&](const auto& list) { destination = list.destination; });

    run();

    EXPECT_EQ(destination, u"/out/"_s);
    EXPECT_EQ(guiControls.driver().mySelectedImagesNSArray(), QStringList{u"/in/a.jpg"_s});
}

TEST_F(BatchDriver, EndsTheChosenDestinationWithASlash)
{
    chooser.answers = {QStringList{u"/out/photos"_s}};

    actions.send(u"hChooseScalingDestinationFolder"_s);
    actions.send(u"hShowDestinationFolderInFinder"_s);

    const controls::OpenPanel& panel = chooser.panels.first();
    EXPECT_EQ(panel.message, u"*** Choose destination folder ***"_s);
    EXPECT_FALSE(panel.choosesFiles);
    EXPECT_TRUE(panel.choosesDirectories);
    EXPECT_TRUE(panel.canCreateDirectories);
    EXPECT_FALSE(panel.allowsMultipleSelection);
    const controls::TextField& field = panels.vwMainDestination.tfImageDestinationFolder;
    EXPECT_EQ(field.stringValue(), u"/out/photos/"_s);
    EXPECT_EQ(field.toolTip(), u"/out/photos/"_s);
    EXPECT_EQ(desktop.revealed, QStringList{u"/out/photos/"_s});
}

TEST_F(BatchDriver, KeepsTheDestinationWhenThePanelIsCancelled)
{
    chooseDestination();

    actions.send(u"hChooseScalingDestinationFolder"_s);

    EXPECT_EQ(panels.vwMainDestination.tfImageDestinationFolder.stringValue(), u"/out/"_s);
}

TEST_F(BatchDriver, TellsAllPathsOfTheList)
{
    addPhotos({u"a.jpg"_s});
    photos.append(nonPhoto(u"/in/b.txt"_s));

    EXPECT_EQ(
        guiControls.hGetPhotosFromArrayController(), (QStringList{u"/in/a.jpg"_s, u"/in/b.txt"_s})
    );
}

TEST_F(BatchDriver, TakesPhotosOfTheHiddenFilterForChangesInPlace)
{
    addPhotos({u"wide.jpg"_s, u"unticked.jpg"_s});
    addPhotos({u"tall.jpg"_s}, u"P"_s);
    photos.append(nonPhoto(u"/in/notes.txt"_s));
    photos.setTick(1, 0);
    panels.vwApplyOn.pubPhotoOrientation.selectIndex(1);
    QStringList taken;
    reads("batchUploadPhotos", [&](const QString& path) {
        return [&taken, path] { taken.append(u"upload "_s + path); };
    });
    reads("batchExifUC", [&](const QString& path) {
        return [&taken, path] { taken.append(u"comment "_s + path); };
    });

    for (const char* function : {"batchUploadPhotos", "batchExifUC"}) {
        select(function);
        run();
    }

    EXPECT_EQ(taken, (QStringList{u"upload /in/wide.jpg"_s, u"comment /in/wide.jpg"_s}));
}

TEST_F(BatchDriver, MovesTheBarOfEveryRunByWholeThousandths)
{
    chooseDestination();
    addPhotos({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    const auto seeBar = [this] { bar.append(panels.window.myProgressBar.doubleValue()); };
    for (const char* function : {"batchUploadPhotos", "batchExifUC"})
        reads(function, [&](const auto&) { return seeBar; });
    renames([&](const auto&) { seeBar(); });
    runs("batchFileConvert", [&](const auto&) {
        seeBar();
        return imaging::ResultWord::Ok;
    });

    for (const char* function :
         {"batchUploadPhotos", "batchExifUC", "fileRenaming", "batchFileConvert"}) {
        bar.clear();
        select(function);
        run();
        EXPECT_EQ(bar, (QList<double>{333, 666, 999})) << function;
        EXPECT_TRUE(panels.window.myProgressBar.isHidden()) << function;
    }
}

TEST_F(BatchDriver, ReadsTheArgumentsOfAChangeInPlaceBeforeTheBarGoesUp)
{
    addPhotos({u"a.jpg"_s});
    panels.vwFileManagementEXIF.tfExifUserComment.setStringValue(u"before"_s);
    panels.vwFileManagementSorting.tfAddTitle.setStringValue(u"before"_s);
    const auto subscription = panels.window.myProgressBar.changed.connect([this] {
        if (panels.window.myProgressBar.doubleValue() == 0)
            return;
        panels.vwFileManagementEXIF.tfExifUserComment.setStringValue(u"after"_s);
        panels.vwFileManagementSorting.tfAddTitle.setStringValue(u"after"_s);
    });
    QStringList read;
    reads("batchUploadPhotos", [&](const QString& path) {
        const auto& panel = panels.vwFileManagementSorting;
        return [&read, upload = services::readUpload(panel, path)] { read.append(upload.title); };
    });
    reads("batchExifUC", [&](const QString&) {
        const auto settings = metadata::readSettings(panels.vwFileManagementEXIF);
        return [&read, settings] { read.append(settings.comment); };
    });

    select("batchExifUC");
    run();
    panels.vwFileManagementSorting.tfAddTitle.setStringValue(u"before"_s);
    select("batchUploadPhotos");
    run();

    EXPECT_EQ(read, (QStringList{u"before"_s, u"before"_s}));
}

TEST_F(BatchDriver, EndsARunOfAnIndexBeyondThePopUp)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s});
    panels.window.pubEditPhoto.setTitles(
        panels.window.pubEditPhoto.titles() + QStringList(u"Eleventh"_s)
    );
    panels.window.pubEditPhoto.selectIndex(10);
    run();

    EXPECT_TRUE(alerts.isEmpty());
    EXPECT_TRUE(bases.isEmpty());
    EXPECT_TRUE(journal.records().isEmpty());
}

TEST_F(BatchDriver, AddsToAChainWithoutAPath)
{
    QList<workspace::RenameRequest> requests;
    renames([&](const workspace::RenameRequest& request) { requests.append(request); });

    actions.send(u"hCalledCActionFunc"_s);

    ASSERT_EQ(requests.size(), 1);
    EXPECT_EQ(requests.first().path, QString());
    EXPECT_EQ(requests.first().function, u"CActionFunction"_s);
    EXPECT_EQ(requests.first().previewState, 0);
    EXPECT_EQ(requests.first().index, 0);
    EXPECT_TRUE(journal.records().isEmpty());
}

TEST_F(BatchDriver, AsksTheChainForANameWithPathAndName)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s});
    panels.vwWatermark.cActionsTWMArrayController.addObject({u"Prefix"_s, u"x"_s});
    QList<QStringList> asked;
    neighbours.hRenameTWMFile
        = [&](const QString& path, const QString& name, const QList<QStringList>& chain) {
              asked.append({path, name, chain.first().join(u'+')});
              return name;
          };

    run();

    EXPECT_EQ(asked, QList<QStringList>{(QStringList{u"/in/a.jpg"_s, u"a.jpg"_s, u"Prefix+x"_s})});
}

TEST_F(BatchDriver, RunsAgainInsideOfARun)
{
    selectResize();
    chooseDestination();
    addPhotos({u"a.jpg"_s, u"b.jpg"_s});
    panels.vwShowPreview.cbShowPreview.setState(1);
    QStringList order;
    runs("resizePhotos", [&](const workspace::PhotoOutput& output) {
        order.append(output.photo.destinationBase);
        if (order.size() == 1)
            run();
        return imaging::ResultWord::Ok;
    });

    run();

    EXPECT_EQ(order, (QStringList{u"/out/a"_s, u"/out/a"_s, u"/out/b"_s, u"/out/b"_s}));
    EXPECT_TRUE(panels.vwShowPreview.cbShowPreview.isOn());
    EXPECT_TRUE(panels.window.myProgressBar.isHidden());
}
