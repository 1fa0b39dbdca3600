// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets_bench.h"

#include <platform/archives/color_archive.h>

#include "support/case_name.h"
#include "support/photo_builder.h"
#include "support/text_printing.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace brenvaldo;
using test::PresetsBench;

namespace {

constexpr platform::graphics::Color orange = {.red = 1, .green = 0.5, .blue = 0.25};

/// A bench on which one of the image functions is selected.
struct Bench : PresetsBench
{
    explicit Bench(const QString& selected) { function = selected; }
};

/// Every function with a record, and the process that its rows carry.
struct KeptFunction
{
    std::string name;
    QString id;
    QString process;
    QString action;

    friend void PrintTo(const KeptFunction& kept, std::ostream* out) { *out << kept.name; }
};

class KeptFunctions : public testing::TestWithParam<KeptFunction>
{
};

} // namespace

TEST_P(KeptFunctions, AreSavedAppliedAndRemoved)
{
    Bench bench(GetParam().id);
    auto& files = bench.panels.vwFileType;
    files.pubFileType.selectItemAtIndex(3);

    bench.save(u"A"_qs);
    bench.apply(0);

    EXPECT_EQ(bench.listed(u"nmProces"_qs), QStringList(GetParam().process));
    EXPECT_EQ(bench.file.rows("select Action from Presets"), QStringList(GetParam().action));
    EXPECT_EQ(files.pubFileType.indexOfSelectedItem(), GetParam().id == u"addTint"_qs ? 0 : 3);

    bench.press("hRemovePreset");
    EXPECT_TRUE(bench.listed().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    ,
    KeptFunctions,
    testing::Values(
        KeptFunction{"TextWatermark", u"textWM"_qs, u"TextWM"_qs, u"Watermark"_qs},
        KeptFunction{"ImageWatermark", u"imageWM"_qs, u"ImageWM"_qs, u"Watermark"_qs},
        KeptFunction{"Tint", u"addTint"_qs, u"addTint"_qs, u"Edit"_qs},
        KeptFunction{"Framing", u"framing"_qs, u"framing"_qs, u"Edit"_qs},
        KeptFunction{"Roundings", u"roundings"_qs, u"roundings"_qs, u"Edit"_qs},
        KeptFunction{"Profile", u"profileConversion"_qs, u"profileConversion"_qs, u"Edit"_qs},
        KeptFunction{"Rotation", u"rotatePhotos"_qs, u"rotatePhotos"_qs, u"Edit"_qs},
        KeptFunction{"Resize", u"resizePhotos"_qs, u"resizePhotos"_qs, u"Edit"_qs},
        KeptFunction{"Crop", u"cropPhotos"_qs, u"cropPhotos"_qs, u"Edit"_qs},
        KeptFunction{"Filters", u"filters"_qs, u"filters"_qs, u"Edit"_qs}
    ),
    test::CaseName()
);

TEST(ImageWatermarkRecord, PlacesTypeAndQualityOnePositionFurtherThanTheText)
{
    Bench bench(u"imageWM"_qs);
    bench.panels.vwFileType.pubFileType.selectItemAtIndex(5);
    bench.panels.vwFileType.pubJPEGCompressionLevel.selectItemAtIndex(7);
    bench.save(u"A"_qs);
    ASSERT_EQ(bench.stored(u"A"_qs, 35), u"5"_qs);
    ASSERT_EQ(bench.stored(u"A"_qs, 36), u"7"_qs);

    bench.function = u"textWM"_qs;
    bench.apply(0);

    EXPECT_EQ(bench.panels.vwFileType.pubFileType.indexOfSelectedItem(), 0);
    EXPECT_EQ(bench.panels.vwFileType.pubJPEGCompressionLevel.indexOfSelectedItem(), 5);
}

TEST(ImageWatermarkRecord, ShowsTheImageAtTheStoredPath)
{
    Bench bench(u"imageWM"_qs);
    auto& image = bench.panels.vwWatermark;
    const QString logo
        = test::PhotoBuilder().size(31, 17).write(bench.file.folder().path(u"logo.png"_qs));
    image.tfWaterMarkImageFilePath.setStringValue(logo);
    bench.save(u"A"_qs);
    image.tfWaterMarkImageFilePath.setStringValue(QString());

    bench.apply(0);

    EXPECT_EQ(image.tfWaterMarkImageFilePath.stringValue(), logo);
    ASSERT_TRUE(image.iwWaterMarkImage.image());
    EXPECT_EQ(image.iwWaterMarkImage.image()->width(), 31);
}

TEST(ImageWatermarkRecord, LeavesTheStoredTextInTheFieldWhenTheImageIsGone)
{
    Bench bench(u"imageWM"_qs);
    auto& image = bench.panels.vwWatermark;
    const QString logo = bench.file.folder().write(u"logo.png"_qs, "gone soon");
    image.tfWaterMarkImageFilePath.setStringValue(logo);
    bench.save(u"A"_qs);
    ASSERT_TRUE(QFile::remove(logo));

    bench.apply(0);

    EXPECT_EQ(image.tfWaterMarkImageFilePath.stringValue(), bench.stored(u"A"_qs, 13));
    EXPECT_FALSE(image.tfWaterMarkImageFilePath.stringValue().isEmpty());
}

TEST(ImageWatermarkRecord, NeverSwitchesTheSimulationOn)
{
    Bench bench(u"imageWM"_qs);
    bench.panels.vwWatermark.cbWMSimulationMode.setState(1);
    bench.save(u"A"_qs);

    bench.apply(0);

    EXPECT_EQ(bench.stored(u"A"_qs, 25), u"1"_qs);
    EXPECT_EQ(bench.panels.vwWatermark.cbWMSimulationMode.state(), 0);
}

TEST(TintRecord, AlwaysComesBackWithTheFirstOutputChoices)
{
    Bench bench(u"addTint"_qs);
    bench.panels.vwApplyOn.pubPhotoOrientation.selectItemAtIndex(2);
    bench.panels.vwFileType.pubFileType.selectItemAtIndex(3);
    bench.panels.vwFileType.pubJPEGCompressionLevel.selectItemAtIndex(4);
    bench.save(u"A"_qs);
    ASSERT_EQ(bench.stored(u"A"_qs, 21), u"2"_qs);
    ASSERT_EQ(bench.stored(u"A"_qs, 33), u""_qs);

    bench.apply(0);

    EXPECT_EQ(bench.panels.vwApplyOn.pubPhotoOrientation.indexOfSelectedItem(), 0);
    EXPECT_EQ(bench.panels.vwFileType.pubFileType.indexOfSelectedItem(), 0);
    EXPECT_EQ(bench.panels.vwFileType.pubJPEGCompressionLevel.indexOfSelectedItem(), 0);
}

TEST(TintRecord, ReadsTheOutputChoicesWhereAnImageWatermarkHasThem)
{
    Bench bench(u"addTint"_qs);
    bench.save(u"A"_qs);
    (void)bench.file.rows("update Presets set StrField33 = '2', StrField35 = '3', StrField36 = '4'"
    );

    bench.apply(0);

    EXPECT_EQ(bench.panels.vwApplyOn.pubPhotoOrientation.indexOfSelectedItem(), 2);
    EXPECT_EQ(bench.panels.vwFileType.pubFileType.indexOfSelectedItem(), 3);
    EXPECT_EQ(bench.panels.vwFileType.pubJPEGCompressionLevel.indexOfSelectedItem(), 4);
}

TEST(TintRecord, KeepsTheTabByItsLabelAndLeavesItForAnother)
{
    Bench bench(u"addTint"_qs);
    auto& tint = bench.panels.vwAddTint;
    tint.tbvFrameType.selectIndex(2);
    tint.cwAddTint.setColor(orange);
    bench.save(u"A"_qs);
    ASSERT_EQ(bench.stored(u"A"_qs, 19), u"px"_qs);
    tint.tbvFrameType.selectIndex(0);
    tint.cwAddTint.setColor({});

    bench.apply(0);
    EXPECT_EQ(tint.tbvFrameType.selectedIndex(), 2);
    EXPECT_EQ(tint.cwAddTint.color(), orange);

    (void)bench.file.rows("update Presets set StrField19 = 'em'");
    bench.apply(0);
    EXPECT_EQ(tint.tbvFrameType.selectedIndex(), 2);
}

TEST(TintRecord, EnablesTheSizeFieldsUnlessTheWholePhotoIsTinted)
{
    Bench bench(u"addTint"_qs);
    auto& tint = bench.panels.vwAddTint;
    tint.cbAddTintOrigSize.setState(0);
    tint.cbAddTintGradient.setState(1);
    bench.save(u"part"_qs);
    tint.cbAddTintOrigSize.setState(1);
    tint.cbAddTintGradient.setState(0);
    bench.save(u"whole"_qs);

    bench.apply(0);
    EXPECT_TRUE(tint.tfAddTintWidth.isEnabled());
    EXPECT_TRUE(tint.pubAddTintAngle.isEnabled());

    bench.apply(1);
    EXPECT_FALSE(tint.tfAddTintWidth.isEnabled());
    EXPECT_FALSE(tint.pubAddTintAngle.isEnabled());
}

TEST(FramingRecord, LeavesTheColorsArchiveInTheTintPanel)
{
    Bench bench(u"framing"_qs);
    bench.panels.vwFraming.myNSColorWellObjFraming.setColor(orange);
    bench.save(u"A"_qs);

    bench.apply(0);

    EXPECT_EQ(
        bench.panels.vwAddTint.tfAddTintPosY.stringValue(),
        platform::archives::colorArchive({1.0F, 0.5F, 0.25F})
    );
    EXPECT_EQ(bench.panels.vwFraming.myNSColorWellObjFraming.color(), orange);
}

TEST(RoundingsRecord, EnablesTheFieldsOfTheBoxesAndPutsZeroForAnEmptyCanvas)
{
    Bench bench(u"roundings"_qs);
    auto& roundings = bench.panels.vwRoundings;
    roundings.pubRCType.selectItemAtIndex(0);
    roundings.cbRCBackgroundColor.setState(1);
    roundings.cbRCBorderColor.setState(0);
    roundings.tfRCEnlargeCanvas.setStringValue(QString());
    bench.save(u"A"_qs);

    bench.apply(0);

    EXPECT_TRUE(roundings.tfRCDiameter.isEnabled());
    EXPECT_TRUE(roundings.tfRCBackgroundHexColor.isEnabled());
    EXPECT_FALSE(roundings.pubRCBorderPos.isEnabled());
    EXPECT_EQ(roundings.tfRCEnlargeCanvas.stringValue(), u"0"_qs);
}

TEST(ProfileRecord, FollowsTheOrderOfTheListAndNotTheName)
{
    Bench bench(u"profileConversion"_qs);
    auto& profiles = bench.panels.vwProfileConversion.pubInstalledICCProfiles;
    profiles.setTitles({u"Adobe RGB"_qs, u"sRGB"_qs});
    profiles.selectItemAtIndex(1);
    bench.save(u"A"_qs);
    profiles.setTitles({u"Adobe RGB"_qs, u"Grey"_qs, u"sRGB"_qs});

    bench.apply(0);

    EXPECT_EQ(profiles.objectValueOfSelectedItem(), u"Grey"_qs);
}

TEST(RotationRecord, TakesTheColorFromTheHexField)
{
    Bench bench(u"rotatePhotos"_qs);
    auto& rotation = bench.panels.vwRotatePhotos;
    rotation.tfRotationBackgroundHexColor.setStringValue(u"FF0000"_qs);
    rotation.cwRotationBackgroundColor.setColor(orange);
    bench.save(u"A"_qs);

    bench.apply(0);

    EXPECT_EQ(rotation.cwRotationBackgroundColor.color(), (platform::graphics::Color{.red = 1}));
}

TEST(CropRecord, LosesTheCutOffAndShowsItsView)
{
    Bench bench(u"cropPhotos"_qs);
    auto& crop = bench.panels.vwCropPhotos;
    crop.pubCropType.selectItemAtIndex(1);
    crop.dvVCUiCropMinusView.tfCropCutOff.setStringValue(u"12"_qs);
    crop.dvVCUiCropWxHView.tfCropWidth.setStringValue(u"640"_qs);
    bench.save(u"A"_qs);
    ASSERT_EQ(bench.stored(u"A"_qs, 9), u"12"_qs);
    ASSERT_EQ(bench.stored(u"A"_qs, 7), u""_qs);
    crop.pubCropType.selectItemAtIndex(0);
    crop.dvVCUiCropMinusView.tfCropCutOff.setStringValue(u"99"_qs);

    bench.apply(0);

    EXPECT_EQ(crop.dvVCUiCropTypeView.views(), QStringList(u"dvVCUiCropMinusView"_qs));
    EXPECT_EQ(crop.pubCropType.indexOfSelectedItem(), 1);
    EXPECT_EQ(crop.dvVCUiCropMinusView.tfCropCutOff.stringValue(), u"99"_qs);
    EXPECT_EQ(crop.dvVCUiCropWxHView.tfCropWidth.stringValue(), u"640"_qs);
}

TEST(FilterRecord, ShowsTheBlurButKeepsItsRadius)
{
    Bench bench(u"filters"_qs);
    auto& filters = bench.panels.vwFilterPhotos;
    filters.pubFilterSelection.selectItemAtIndex(11);
    filters.vwFiltersGaussianView.tfFilterBlurRadiusVal.setStringValue(u"5"_qs);
    bench.save(u"A"_qs);
    ASSERT_EQ(bench.stored(u"A"_qs, 4), u"5"_qs);
    filters.vwFiltersGaussianView.tfFilterBlurRadiusVal.setStringValue(u"9"_qs);

    bench.apply(0);

    EXPECT_EQ(filters.vwFiltersMainView.views(), QStringList(u"vwFiltersGaussianView"_qs));
    EXPECT_EQ(filters.vwFiltersGaussianView.tfFilterBlurRadiusVal.stringValue(), u"9"_qs);
}

TEST(FilterRecord, ReadsTheColorOfTheSquareCanvasAsHexadecimal)
{
    Bench bench(u"filters"_qs);
    auto& view = bench.panels.vwFilterPhotos.vwFiltersMonochromeView;
    bench.panels.vwFilterPhotos.pubFilterSelection.selectItemAtIndex(12);
    view.cwFilterMonochromeColor.setColor(orange);
    view.tfFilterMonochromeHexColor.setStringValue(u"FF7F3F"_qs);
    bench.save(u"A"_qs);
    ASSERT_EQ(bench.stored(u"A"_qs, 4), platform::archives::colorArchive({1.0F, 0.5F, 0.25F}));

    bench.apply(0);

    // "BA" opens every archive: two hexadecimal digits, blue.
    EXPECT_EQ(
        view.cwFilterMonochromeColor.color(),
        (platform::graphics::Color{.blue = static_cast<double>(0xBA / 255.0F)})
    );
    EXPECT_EQ(view.tfFilterMonochromeHexColor.stringValue(), u"FF7F3F"_qs);
    EXPECT_FALSE(view.pubFilterMonochromeIntensity.isEnabled());
}

TEST(FilterRecord, GivesTheMonochromeColorBack)
{
    Bench bench(u"filters"_qs);
    auto& view = bench.panels.vwFilterPhotos.vwFiltersMonochromeView;
    bench.panels.vwFilterPhotos.pubFilterSelection.selectItemAtIndex(15);
    view.cwFilterMonochromeColor.setColor(orange);
    bench.save(u"A"_qs);
    view.cwFilterMonochromeColor.setColor({});

    bench.apply(0);

    EXPECT_EQ(view.cwFilterMonochromeColor.color(), orange);
    EXPECT_TRUE(view.pubFilterMonochromeIntensity.isEnabled());
}

TEST(FilterRecord, KeepsTheScreenFieldsAndTheirStates)
{
    Bench bench(u"filters"_qs);
    auto& filters = bench.panels.vwFilterPhotos;
    auto& screen = filters.vwFiltersScreenView;
    filters.pubFilterSelection.selectItemAtIndex(3);
    screen.tfFilterColorConvWidth.setStringValue(u"6"_qs);
    screen.tfFilterLineScreenAngle.setStringValue(u"45"_qs);
    bench.save(u"circles"_qs);
    filters.pubFilterSelection.selectItemAtIndex(14);
    bench.save(u"lines"_qs);
    screen.tfFilterColorConvWidth.setStringValue(u"1"_qs);

    bench.apply(0);
    EXPECT_EQ(screen.tfFilterColorConvWidth.stringValue(), u"6"_qs);
    EXPECT_TRUE(screen.tfFilterCenterCircularWidth.isEnabled());
    EXPECT_FALSE(screen.tfFilterLineScreenAngle.isEnabled());

    bench.apply(1);
    EXPECT_FALSE(screen.tfFilterCenterCircularWidth.isEnabled());
    EXPECT_TRUE(screen.tfFilterLineScreenAngle.isEnabled());
}

TEST(FilterRecord, LeavesTheShownViewForAFilterWithoutSettings)
{
    Bench bench(u"filters"_qs);
    auto& filters = bench.panels.vwFilterPhotos;
    filters.pubFilterSelection.selectItemAtIndex(1);
    bench.save(u"A"_qs);
    filters.vwFiltersMainView.replaceViews(u"vwFiltersSepiaView"_qs);

    bench.apply(0);

    EXPECT_EQ(bench.stored(u"A"_qs, 4), u""_qs);
    EXPECT_EQ(filters.vwFiltersMainView.views(), QStringList(u"vwFiltersSepiaView"_qs));
}
