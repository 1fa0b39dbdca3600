// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets_bench.h"

#include <platform/archives/color_archive.h>
#include <platform/foundation/literals.h>

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

    bench.save(u"A"_s);
    bench.apply(0);

    EXPECT_EQ(bench.listed(u"nmProces"_s), QStringList(GetParam().process));
    EXPECT_EQ(bench.file.rows("select Action from Presets"), QStringList(GetParam().action));
    EXPECT_EQ(files.pubFileType.indexOfSelectedItem(), GetParam().id == u"addTint"_s ? 0 : 3);

    bench.press("hRemovePreset");
    EXPECT_TRUE(bench.listed().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    ,
    KeptFunctions,
    testing::Values(
        KeptFunction{"TextWatermark", u"textWM"_s, u"TextWM"_s, u"Watermark"_s},
        KeptFunction{"ImageWatermark", u"imageWM"_s, u"ImageWM"_s, u"Watermark"_s},
        KeptFunction{"Tint", u"addTint"_s, u"addTint"_s, u"Edit"_s},
        KeptFunction{"Framing", u"framing"_s, u"framing"_s, u"Edit"_s},
        KeptFunction{"Roundings", u"roundings"_s, u"roundings"_s, u"Edit"_s},
        KeptFunction{"Profile", u"profileConversion"_s, u"profileConversion"_s, u"Edit"_s},
        KeptFunction{"Rotation", u"rotatePhotos"_s, u"rotatePhotos"_s, u"Edit"_s},
        KeptFunction{"Resize", u"resizePhotos"_s, u"resizePhotos"_s, u"Edit"_s},
        KeptFunction{"Crop", u"cropPhotos"_s, u"cropPhotos"_s, u"Edit"_s},
        KeptFunction{"Filters", u"filters"_s, u"filters"_s, u"Edit"_s}
    ),
    test::CaseName()
);

TEST(ImageWatermarkRecord, PlacesTypeAndQualityOnePositionFurtherThanTheText)
{
    Bench bench(u"imageWM"_s);
    bench.panels.vwFileType.pubFileType.selectItemAtIndex(5);
    bench.panels.vwFileType.pubJPEGCompressionLevel.selectItemAtIndex(7);
    bench.save(u"A"_s);
    ASSERT_EQ(bench.stored(u"A"_s, 35), u"5"_s);
    ASSERT_EQ(bench.stored(u"A"_s, 36), u"7"_s);

    bench.function = u"textWM"_s;
    bench.apply(0);

    EXPECT_EQ(bench.panels.vwFileType.pubFileType.indexOfSelectedItem(), 0);
    EXPECT_EQ(bench.panels.vwFileType.pubJPEGCompressionLevel.indexOfSelectedItem(), 5);
}

TEST(ImageWatermarkRecord, ShowsTheImageAtTheStoredPath)
{
    Bench bench(u"imageWM"_s);
    auto& image = bench.panels.vwWatermark;
    const QString logo
        = test::PhotoBuilder().size(31, 17).write(bench.file.folder().path(u"logo.png"_s));
    image.tfWaterMarkImageFilePath.setStringValue(logo);
    bench.save(u"A"_s);
    image.tfWaterMarkImageFilePath.setStringValue(QString());

    bench.apply(0);

    EXPECT_EQ(image.tfWaterMarkImageFilePath.stringValue(), logo);
    ASSERT_TRUE(image.iwWaterMarkImage.image());
    EXPECT_EQ(image.iwWaterMarkImage.image()->width(), 31);
}

TEST(ImageWatermarkRecord, LeavesTheStoredTextInTheFieldWhenTheImageIsGone)
{
    Bench bench(u"imageWM"_s);
    auto& image = bench.panels.vwWatermark;
    const QString logo = bench.file.folder().write(u"logo.png"_s, "gone soon");
    image.tfWaterMarkImageFilePath.setStringValue(logo);
    bench.save(u"A"_s);
    ASSERT_TRUE(QFile::remove(logo));

    bench.apply(0);

    EXPECT_EQ(image.tfWaterMarkImageFilePath.stringValue(), bench.stored(u"A"_s, 13));
    EXPECT_FALSE(image.tfWaterMarkImageFilePath.stringValue().isEmpty());
}

TEST(ImageWatermarkRecord, DoesNotFollowAnImageThatHasMoved)
{
    Bench bench(u"imageWM"_s);
    auto& image = bench.panels.vwWatermark;
    const test::TemporaryFolder& folder = bench.file.folder();
    const QString logo = test::PhotoBuilder().size(31, 17).write(folder.path(u"logo.png"_s));
    image.tfWaterMarkImageFilePath.setStringValue(logo);
    bench.save(u"A"_s);
    ASSERT_TRUE(QFile::rename(logo, folder.path(u"sign.png"_s)));

    bench.apply(0);
    EXPECT_EQ(image.tfWaterMarkImageFilePath.stringValue(), bench.stored(u"A"_s, 13));
    EXPECT_FALSE(image.iwWaterMarkImage.image());

    ASSERT_TRUE(QFile::rename(folder.path(u"sign.png"_s), logo));
    bench.apply(0);
    EXPECT_EQ(image.tfWaterMarkImageFilePath.stringValue(), logo);
    EXPECT_TRUE(image.iwWaterMarkImage.image());
}

TEST(ImageWatermarkRecord, KeepsThePathOfAFileThatIsNoImageAnyMore)
{
    Bench bench(u"imageWM"_s);
    auto& image = bench.panels.vwWatermark;
    const QString logo = bench.file.folder().write(u"logo.png"_s, "no image");
    image.tfWaterMarkImageFilePath.setStringValue(logo);
    bench.save(u"A"_s);
    image.tfWaterMarkImageFilePath.setStringValue(QString());

    bench.apply(0);

    EXPECT_EQ(image.tfWaterMarkImageFilePath.stringValue(), logo);
    EXPECT_FALSE(image.iwWaterMarkImage.image());
}

TEST(ImageWatermarkRecord, NeverSwitchesTheSimulationOn)
{
    Bench bench(u"imageWM"_s);
    bench.panels.vwWatermark.cbWMSimulationMode.setState(1);
    bench.save(u"A"_s);

    bench.apply(0);

    EXPECT_EQ(bench.stored(u"A"_s, 25), u"1"_s);
    EXPECT_EQ(bench.panels.vwWatermark.cbWMSimulationMode.state(), 0);
}

TEST(TintRecord, AlwaysComesBackWithTheFirstOutputChoices)
{
    Bench bench(u"addTint"_s);
    bench.panels.vwApplyOn.pubPhotoOrientation.selectItemAtIndex(2);
    bench.panels.vwFileType.pubFileType.selectItemAtIndex(3);
    bench.panels.vwFileType.pubJPEGCompressionLevel.selectItemAtIndex(4);
    bench.save(u"A"_s);
    ASSERT_EQ(bench.stored(u"A"_s, 21), u"2"_s);
    ASSERT_EQ(bench.stored(u"A"_s, 33), u""_s);

    bench.apply(0);

    EXPECT_EQ(bench.panels.vwApplyOn.pubPhotoOrientation.indexOfSelectedItem(), 0);
    EXPECT_EQ(bench.panels.vwFileType.pubFileType.indexOfSelectedItem(), 0);
    EXPECT_EQ(bench.panels.vwFileType.pubJPEGCompressionLevel.indexOfSelectedItem(), 0);
}

TEST(TintRecord, ReadsTheOutputChoicesWhereAnImageWatermarkHasThem)
{
    Bench bench(u"addTint"_s);
    bench.save(u"A"_s);
    (void)bench.file.rows("update Presets set StrField33 = '2', StrField35 = '3', StrField36 = '4'"
    );

    bench.apply(0);

    EXPECT_EQ(bench.panels.vwApplyOn.pubPhotoOrientation.indexOfSelectedItem(), 2);
    EXPECT_EQ(bench.panels.vwFileType.pubFileType.indexOfSelectedItem(), 3);
    EXPECT_EQ(bench.panels.vwFileType.pubJPEGCompressionLevel.indexOfSelectedItem(), 4);
}

TEST(TintRecord, KeepsTheTabByItsLabelAndLeavesItForAnother)
{
    Bench bench(u"addTint"_s);
    auto& tint = bench.panels.vwAddTint;
    tint.tbvFrameType.selectIndex(2);
    tint.cwAddTint.setColor(orange);
    bench.save(u"A"_s);
    ASSERT_EQ(bench.stored(u"A"_s, 19), u"px"_s);
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
    Bench bench(u"addTint"_s);
    auto& tint = bench.panels.vwAddTint;
    tint.cbAddTintOrigSize.setState(0);
    tint.cbAddTintGradient.setState(1);
    bench.save(u"part"_s);
    tint.cbAddTintOrigSize.setState(1);
    tint.cbAddTintGradient.setState(0);
    bench.save(u"whole"_s);

    bench.apply(0);
    EXPECT_TRUE(tint.tfAddTintWidth.isEnabled());
    EXPECT_TRUE(tint.pubAddTintAngle.isEnabled());

    bench.apply(1);
    EXPECT_FALSE(tint.tfAddTintWidth.isEnabled());
    EXPECT_FALSE(tint.pubAddTintAngle.isEnabled());
}

TEST(FramingRecord, LeavesTheColorsArchiveInTheTintPanel)
{
    Bench bench(u"framing"_s);
    bench.panels.vwFraming.myNSColorWellObjFraming.setColor(orange);
    bench.save(u"A"_s);

    bench.apply(0);

    EXPECT_EQ(
        bench.panels.vwAddTint.tfAddTintPosY.stringValue(),
        platform::archives::colorArchive({1.0F, 0.5F, 0.25F})
    );
    EXPECT_EQ(bench.panels.vwFraming.myNSColorWellObjFraming.color(), orange);
}

TEST(RoundingsRecord, EnablesTheFieldsOfTheBoxesAndPutsZeroForAnEmptyCanvas)
{
    Bench bench(u"roundings"_s);
    auto& roundings = bench.panels.vwRoundings;
    roundings.pubRCType.selectItemAtIndex(0);
    roundings.cbRCBackgroundColor.setState(1);
    roundings.cbRCBorderColor.setState(0);
    roundings.tfRCEnlargeCanvas.setStringValue(QString());
    bench.save(u"A"_s);

    bench.apply(0);

    EXPECT_TRUE(roundings.tfRCDiameter.isEnabled());
    EXPECT_TRUE(roundings.tfRCBackgroundHexColor.isEnabled());
    EXPECT_FALSE(roundings.pubRCBorderPos.isEnabled());
    EXPECT_EQ(roundings.tfRCEnlargeCanvas.stringValue(), u"0"_s);
}

TEST(ProfileRecord, FollowsTheOrderOfTheListAndNotTheName)
{
    Bench bench(u"profileConversion"_s);
    auto& profiles = bench.panels.vwProfileConversion.pubInstalledICCProfiles;
    profiles.setTitles({u"Adobe RGB"_s, u"sRGB"_s});
    profiles.selectItemAtIndex(1);
    bench.save(u"A"_s);
    profiles.setTitles({u"Adobe RGB"_s, u"Grey"_s, u"sRGB"_s});

    bench.apply(0);

    EXPECT_EQ(profiles.objectValueOfSelectedItem(), u"Grey"_s);
}

TEST(RotationRecord, TakesTheColorFromTheHexField)
{
    Bench bench(u"rotatePhotos"_s);
    auto& rotation = bench.panels.vwRotatePhotos;
    rotation.tfRotationBackgroundHexColor.setStringValue(u"FF0000"_s);
    rotation.cwRotationBackgroundColor.setColor(orange);
    bench.save(u"A"_s);

    bench.apply(0);

    EXPECT_EQ(rotation.cwRotationBackgroundColor.color(), (platform::graphics::Color{.red = 1}));
}

TEST(CropRecord, LosesTheCutOffAndShowsItsView)
{
    Bench bench(u"cropPhotos"_s);
    auto& crop = bench.panels.vwCropPhotos;
    crop.pubCropType.selectItemAtIndex(1);
    crop.dvVCUiCropMinusView.tfCropCutOff.setStringValue(u"12"_s);
    crop.dvVCUiCropWxHView.tfCropWidth.setStringValue(u"640"_s);
    bench.save(u"A"_s);
    ASSERT_EQ(bench.stored(u"A"_s, 9), u"12"_s);
    ASSERT_EQ(bench.stored(u"A"_s, 7), u""_s);
    crop.pubCropType.selectItemAtIndex(0);
    crop.dvVCUiCropMinusView.tfCropCutOff.setStringValue(u"99"_s);

    bench.apply(0);

    EXPECT_EQ(crop.dvVCUiCropTypeView.views(), QStringList(u"dvVCUiCropMinusView"_s));
    EXPECT_EQ(crop.pubCropType.indexOfSelectedItem(), 1);
    EXPECT_EQ(crop.dvVCUiCropMinusView.tfCropCutOff.stringValue(), u"99"_s);
    EXPECT_EQ(crop.dvVCUiCropWxHView.tfCropWidth.stringValue(), u"640"_s);
}

TEST(FilterRecord, ShowsTheBlurButKeepsItsRadius)
{
    Bench bench(u"filters"_s);
    auto& filters = bench.panels.vwFilterPhotos;
    filters.pubFilterSelection.selectItemAtIndex(11);
    filters.vwFiltersGaussianView.tfFilterBlurRadiusVal.setStringValue(u"5"_s);
    bench.save(u"A"_s);
    ASSERT_EQ(bench.stored(u"A"_s, 4), u"5"_s);
    filters.vwFiltersGaussianView.tfFilterBlurRadiusVal.setStringValue(u"9"_s);

    bench.apply(0);

    EXPECT_EQ(filters.vwFiltersMainView.views(), QStringList(u"vwFiltersGaussianView"_s));
    EXPECT_EQ(filters.vwFiltersGaussianView.tfFilterBlurRadiusVal.stringValue(), u"9"_s);
}

TEST(FilterRecord, ReadsTheColorOfTheSquareCanvasAsHexadecimal)
{
    Bench bench(u"filters"_s);
    auto& view = bench.panels.vwFilterPhotos.vwFiltersMonochromeView;
    bench.panels.vwFilterPhotos.pubFilterSelection.selectItemAtIndex(12);
    view.cwFilterMonochromeColor.setColor(orange);
    view.tfFilterMonochromeHexColor.setStringValue(u"FF7F3F"_s);
    bench.save(u"A"_s);
    ASSERT_EQ(bench.stored(u"A"_s, 4), platform::archives::colorArchive({1.0F, 0.5F, 0.25F}));

    bench.apply(0);

    // "BA" opens every archive: two hexadecimal digits, blue.
    EXPECT_EQ(
        view.cwFilterMonochromeColor.color(),
        (platform::graphics::Color{.blue = static_cast<double>(0xBA / 255.0F)})
    );
    EXPECT_EQ(view.tfFilterMonochromeHexColor.stringValue(), u"FF7F3F"_s);
    EXPECT_FALSE(view.pubFilterMonochromeIntensity.isEnabled());
}

TEST(FilterRecord, GivesTheMonochromeColorBack)
{
    Bench bench(u"filters"_s);
    auto& view = bench.panels.vwFilterPhotos.vwFiltersMonochromeView;
    bench.panels.vwFilterPhotos.pubFilterSelection.selectItemAtIndex(15);
    view.cwFilterMonochromeColor.setColor(orange);
    bench.save(u"A"_s);
    view.cwFilterMonochromeColor.setColor({});

    bench.apply(0);

    EXPECT_EQ(view.cwFilterMonochromeColor.color(), orange);
    EXPECT_TRUE(view.pubFilterMonochromeIntensity.isEnabled());
}

TEST(FilterRecord, KeepsTheScreenFieldsAndTheirStates)
{
    Bench bench(u"filters"_s);
    auto& filters = bench.panels.vwFilterPhotos;
    auto& screen = filters.vwFiltersScreenView;
    filters.pubFilterSelection.selectItemAtIndex(3);
    screen.tfFilterColorConvWidth.setStringValue(u"6"_s);
    screen.tfFilterLineScreenAngle.setStringValue(u"45"_s);
    bench.save(u"circles"_s);
    filters.pubFilterSelection.selectItemAtIndex(14);
    bench.save(u"lines"_s);
    screen.tfFilterColorConvWidth.setStringValue(u"1"_s);

    bench.apply(0);
    EXPECT_EQ(screen.tfFilterColorConvWidth.stringValue(), u"6"_s);
    EXPECT_TRUE(screen.tfFilterCenterCircularWidth.isEnabled());
    EXPECT_FALSE(screen.tfFilterLineScreenAngle.isEnabled());

    bench.apply(1);
    EXPECT_FALSE(screen.tfFilterCenterCircularWidth.isEnabled());
    EXPECT_TRUE(screen.tfFilterLineScreenAngle.isEnabled());
}

TEST(FilterRecord, LeavesTheShownViewForAFilterWithoutSettings)
{
    Bench bench(u"filters"_s);
    auto& filters = bench.panels.vwFilterPhotos;
    filters.pubFilterSelection.selectItemAtIndex(1);
    bench.save(u"A"_s);
    filters.vwFiltersMainView.replaceViews(u"vwFiltersSepiaView"_s);

    bench.apply(0);

    EXPECT_EQ(bench.stored(u"A"_s, 4), u""_s);
    EXPECT_EQ(filters.vwFiltersMainView.views(), QStringList(u"vwFiltersSepiaView"_s));
}
