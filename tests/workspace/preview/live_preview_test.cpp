// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

#include <support/case_name.h>

using namespace brenvaldo;

namespace {

struct Twin
{
    const char* name; ///< the function id
    bool photoStays;
};

void PrintTo(const Twin& twin, std::ostream* out) { *out << twin.name; }

class LivePreview : public test::ControllerTest
{
protected:
    void addPhotoWithPreview()
    {
        collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
        panels.vwShowPreview.cbShowPreview.setState(1);
    }
};

class Twins : public LivePreview, public testing::WithParamInterface<Twin>
{
};

class FunctionsWithoutTwin : public LivePreview, public testing::WithParamInterface<const char*>
{
};

} // namespace

TEST_P(Twins, ShowTheEffectOfTheirFunction)
{
    int calls = 0;
    row(GetParam().name).preview = countingPreview(calls);
    addPhotoWithPreview();
    select(GetParam().name);

    collectionView.callForPreview();

    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(showsOverlay());
    EXPECT_EQ(showsPhoto(), GetParam().photoStays);
}

TEST_P(Twins, LeaveTheOverlayEmptyWhenTheyFail)
{
    row(GetParam().name).preview = [](const auto&, const QString&) { return std::nullopt; };
    addPhotoWithPreview();
    select(GetParam().name);

    collectionView.callForPreview();

    EXPECT_FALSE(showsOverlay());
}

TEST_P(Twins, AreNotCalledWhileThePreviewIsOff)
{
    int calls = 0;
    row(GetParam().name).preview = countingPreview(calls);
    addPhotoWithPreview();
    panels.vwShowPreview.cbShowPreview.setState(0);
    select(GetParam().name);

    collectionView.callForPreview();

    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(showsOverlay());
    EXPECT_TRUE(showsPhoto());
}

INSTANTIATE_TEST_SUITE_P(
    LivePreview,
    Twins,
    testing::Values(
        Twin{"textWM", true},
        Twin{"imageWM", true},
        Twin{"addTint", true},
        Twin{"framing", false},
        Twin{"roundings", false},
        Twin{"profileConversion", true},
        Twin{"rotatePhotos", false},
        Twin{"filters", false},
        Twin{"cropPhotos", true}
    ),
    test::CaseName{}
);

TEST_P(FunctionsWithoutTwin, ShowThePlainPhoto)
{
    addPhotoWithPreview();
    select(GetParam());

    collectionView.callForPreview();

    EXPECT_TRUE(showsPhoto());
    EXPECT_FALSE(showsOverlay());
}

INSTANTIATE_TEST_SUITE_P(
    LivePreview,
    FunctionsWithoutTwin,
    testing::Values("resizePhotos", "faces", "fileRenaming", "batchQR", "htmlExport"),
    [](const auto& row) { return std::string(row.param); }
);

TEST_F(LivePreview, IsEmptyForAConversionOnOrOff)
{
    addPhotoWithPreview();
    select("batchFileConvert");

    collectionView.callForPreview();
    EXPECT_FALSE(showsPhoto());

    panels.vwShowPreview.cbShowPreview.setState(0);
    collectionView.callForPreview();
    EXPECT_FALSE(showsPhoto());
}

TEST_F(LivePreview, IsEmptyForAnEmptyList)
{
    panels.window.myTemplatePreview.setImage(
        platform::graphics::Image::fromQImage(QImage(2, 2, QImage::Format_RGB32))
    );

    collectionView.callForPreview();

    EXPECT_FALSE(showsPhoto());
}

TEST_F(LivePreview, IsEmptyForAFileThatIsNoPhotoWhateverTheFunction)
{
    addPhotoWithPreview();
    photos.append(nonPhoto(u"/gone/a.txt"_s));
    photos.select(1);
    ASSERT_TRUE(showsPhoto()) << "the selection of such a file changes nothing by itself";

    for (const char* function : {"textWM", "cropPhotos", "fileRenaming"}) {
        select(function);
        collectionView.callForPreview();
        EXPECT_FALSE(showsPhoto()) << function;
    }
}

TEST_F(LivePreview, TellsOfNoPhotoWhereItIsEmptyForWantOfOne)
{
    int forgotten = 0;
    neighbours.forgetPhoto = [&] { ++forgotten; };
    collectionView.callForPreview();
    EXPECT_EQ(forgotten, 1);

    addPhotoWithPreview();
    select("batchFileConvert");
    collectionView.callForPreview();
    EXPECT_EQ(forgotten, 1) << "a conversion shows no photo, but one is selected";

    photos.append(nonPhoto(u"/gone/a.txt"_s));
    photos.select(1);
    collectionView.callForPreview();
    EXPECT_EQ(forgotten, 2);
}

TEST_F(LivePreview, ShowsThePhotoUpright)
{
    const QString path
        = test::PhotoBuilder().size(40, 30).orientation(6).write(folder.path(u"turned.jpg"_s));

    collectionView.hDroppedPhotos({path});

    EXPECT_EQ(panels.window.myTemplatePreview.image()->width(), 30);
}

TEST_F(LivePreview, FollowsTheSelection)
{
    QStringList described;
    neighbours.hiDoNothing = [&](const QString& path) { described.append(path); };
    const QStringList paths{photo(u"a.jpg"_s, 20, 10), photo(u"b.jpg"_s, 60, 40)};
    collectionView.hDroppedPhotos(paths);

    photos.select(1);

    EXPECT_EQ(panels.window.myTemplatePreview.image()->width(), 60);
    EXPECT_EQ(described, paths);
}

TEST_F(LivePreview, LogsThatNothingIsSelected)
{
    int twins = 0;
    row("textWM").preview = countingPreview(twins);
    addPhotoWithPreview();
    collectionView.callForPreview();
    ASSERT_TRUE(showsOverlay());
    QStringList lines;
    platform::setLogSink([&](const QString& line) { lines.append(line); });

    photos.select(std::nullopt);

    platform::setLogSink({});
    EXPECT_EQ(lines, QStringList{u"no picture selected"_s});
    EXPECT_FALSE(showsOverlay());
}

TEST_F(LivePreview, NamesTheSelectedPhotoAsTheOneToPrint)
{
    const controls::TextField& toPrint = panels.window.tfOriginalPictureStrRef;
    photos.append(entry(photo(u"a.jpg"_s), u"L"_s));
    photos.select(0);
    EXPECT_EQ(toPrint.stringValue(), folder.path(u"a.jpg"_s));

    photos.clear();
    collectionView.callForPreview();
    EXPECT_EQ(toPrint.stringValue(), QString());
}

TEST_F(LivePreview, ShowsThePictureOfEachGalleryTemplate)
{
    QStringList shown;
    neighbours.imageNamed = [&](const QString& name) {
        shown.append(name);
        return std::nullopt;
    };
    controls::TextField& fileName = panels.vwHtmlExport.tfHTMLfileName;
    QStringList names;

    for (int index = 0; index < 4; ++index) {
        panels.vwHtmlExport.pubPhotoGalleryModel.selectIndex(index);
        collectionView.callForTemplatePreview();
        names.append(fileName.stringValue());
        fileName.setStringValue(u"mine"_s);
    }

    EXPECT_EQ(
        shown, (QStringList{u"Ex01XL.png"_s, u"Ex02XL.png"_s, u"Ex03XL.png"_s, u"Ex04XL.png"_s})
    );
    EXPECT_EQ(
        names,
        (QStringList{u"myFirstPhotoGallery"_s, u"mine"_s, u"mine"_s, u"myFourthPhotoGallery"_s})
    );
}

TEST_F(LivePreview, ShowsAWatermarkAndNoCropBoxAfterSwappingTheSizeOfACrop)
{
    int watermarks = 0;
    int crops = 0;
    row("textWM").preview = countingPreview(watermarks);
    row("cropPhotos").preview = countingPreview(crops);
    addPhotoWithPreview();
    select("cropPhotos");
    auto& size = panels.vwCropPhotos.dvVCUiCropWxHView;
    size.tfCropWidth.setStringValue(u"300"_s);
    size.tfCropHeight.setStringValue(u"200"_s);

    user.press(size.btnFlipCropWH);

    EXPECT_EQ(size.tfCropWidth.stringValue(), u"200"_s);
    EXPECT_EQ(size.tfCropHeight.stringValue(), u"300"_s);
    EXPECT_EQ(watermarks, 1);
    EXPECT_EQ(crops, 0);
    EXPECT_TRUE(showsOverlay());
}

TEST_F(LivePreview, SwapsTheOffsetsOfACropAndDrawsTheOverlay)
{
    int watermarks = 0;
    row("textWM").preview = countingPreview(watermarks);
    addPhotoWithPreview();
    auto& place = panels.vwCropPhotos.dvVCUiCropPositionView;
    place.tfXcropOffset.setStringValue(u"10"_s);
    place.tfYcropOffset.setStringValue(u"20"_s);

    user.press(place.btnFlipCropXY);

    EXPECT_EQ(place.tfXcropOffset.stringValue(), u"20"_s);
    EXPECT_EQ(place.tfYcropOffset.stringValue(), u"10"_s);
    EXPECT_EQ(watermarks, 1);
    EXPECT_TRUE(showsOverlay());
}

TEST_F(LivePreview, DrawsTheImageWatermarkOverACropWhileItsTabIsOpen)
{
    int texts = 0;
    int images = 0;
    row("textWM").preview = countingPreview(texts);
    row("imageWM").preview = countingPreview(images);
    addPhotoWithPreview();
    panels.vwWatermark.tbvWatermarkType.selectIndex(1);

    user.pick(panels.vwCropPhotos.dvVCUiCropPositionView.scCropPosition, 2);

    EXPECT_EQ(texts, 0);
    EXPECT_EQ(images, 1);
}

TEST_F(LivePreview, SwapsTheBoxOfAResizeAndDrawsNothing)
{
    int watermarks = 0;
    row("textWM").preview = countingPreview(watermarks);
    addPhotoWithPreview();
    auto& box = panels.vwResizePhotos.dvVCUiScaleFixView;
    box.tfScaleFixWidth.setStringValue(u"300"_s);

    user.press(box.btnFlipScaleFixWH);

    EXPECT_EQ(box.tfScaleFixWidth.stringValue(), QString());
    EXPECT_EQ(box.tfScaleFixHeight.stringValue(), u"300"_s);
    EXPECT_EQ(watermarks, 0);
}

TEST_F(LivePreview, SwapsAndDrawsNothingWhileAFileThatIsNoPhotoIsSelected)
{
    int watermarks = 0;
    row("textWM").preview = countingPreview(watermarks);
    photos.append(nonPhoto(u"/gone/a.txt"_s));
    photos.select(0);
    panels.vwShowPreview.cbShowPreview.setState(1);
    auto& box = panels.vwResizePhotos.dvVCUiScaleFixView;
    auto& size = panels.vwCropPhotos.dvVCUiCropWxHView;
    auto& place = panels.vwCropPhotos.dvVCUiCropPositionView;
    for (controls::TextField* field :
         {&box.tfScaleFixWidth, &size.tfCropWidth, &place.tfXcropOffset})
        field->setStringValue(u"300"_s);

    user.press(box.btnFlipScaleFixWH);
    user.press(size.btnFlipCropWH);
    user.press(place.btnFlipCropXY);
    user.pick(place.scCropPosition, 2);

    EXPECT_EQ(box.tfScaleFixWidth.stringValue(), u"300"_s);
    EXPECT_EQ(size.tfCropWidth.stringValue(), u"300"_s);
    EXPECT_EQ(place.tfXcropOffset.stringValue(), u"300"_s);
    EXPECT_EQ(watermarks, 0);
    EXPECT_FALSE(showsOverlay());
}

TEST_F(LivePreview, IsDrawnAnewWhenItsBoxIsTicked)
{
    int calls = 0;
    row("textWM").preview = countingPreview(calls);
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});

    user.tick(panels.vwShowPreview.cbShowPreview, 1);
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(showsOverlay());

    user.tick(panels.vwShowPreview.cbShowPreview, 0);
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(showsOverlay());
    EXPECT_TRUE(showsPhoto());
}

TEST_F(LivePreview, ClearsTheOverlayForThePictureOfATemplate)
{
    const auto picture = platform::graphics::Image::fromQImage(QImage(2, 2, QImage::Format_RGB32));
    neighbours.imageNamed = [&picture](const QString&) { return picture; };
    panels.window.myTemplateOverlayPreview.setImage(picture);

    collectionView.callForHTMLTemplatePreview(u"Ex02XL.png"_s);
    EXPECT_TRUE(showsPhoto());
    EXPECT_FALSE(showsOverlay());

    panels.window.myTemplateOverlayPreview.setImage(picture);
    collectionView.callForTemplatePreview();
    EXPECT_FALSE(showsOverlay());
}

TEST_F(LivePreview, ClearsTheOverlayAtACropPositionWhileItIsOff)
{
    int watermarks = 0;
    row("textWM").preview = countingPreview(watermarks);
    addPhotoWithPreview();
    user.pick(panels.vwCropPhotos.dvVCUiCropPositionView.scCropPosition, 2);
    ASSERT_TRUE(showsOverlay());
    panels.vwShowPreview.cbShowPreview.setState(0);

    user.pick(panels.vwCropPhotos.dvVCUiCropPositionView.scCropPosition, 3);

    EXPECT_EQ(watermarks, 1);
    EXPECT_FALSE(showsOverlay());
}
