// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/case_name.h>

using namespace brenvaldo;

namespace {

class PanelActions : public test::ControllerTest
{
protected:
    PanelActions()
    {
        select("addTint");
        row("addTint").preview = [this](const auto&, const QString&) {
            hexAtPreview = panels.vwAddTint.tfAddTintHexValue.stringValue();
            ++previews;
            return std::nullopt;
        };
        collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
        panels.vwShowPreview.cbShowPreview.setState(1);
    }

    int previews = 0;
    QString hexAtPreview;
};

class PlainPreviewActions : public PanelActions, public testing::WithParamInterface<const char*>
{
};

struct ColorPair
{
    const char* name; ///< the action
    const char* well;
    const char* hexField;
};

void PrintTo(const ColorPair& pair, std::ostream* out) { *out << pair.name; }

class ColorWells : public PanelActions, public testing::WithParamInterface<ColorPair>
{
};

} // namespace

TEST_P(PlainPreviewActions, DrawThePreviewAnew)
{
    actions.send(u"cGUIcontrols."_s + QString::fromLatin1(GetParam()));

    EXPECT_EQ(previews, 1);
}

INSTANTIATE_TEST_SUITE_P(
    PanelActions,
    PlainPreviewActions,
    testing::Values(
        "hAddTintGradient",
        "hAddTintAngle",
        "hAddTintDuoTone",
        "hAddTintPosition",
        "hAddTintRenderMethod",
        "hAddTintPercWidth",
        "hAddTintActivePhotoSize",
        "hAddTintColorWell",
        "hAddFramePositionCallsForPreview",
        "hAddFrameRenderMethodCallsForPreview",
        "hAddRoundedCornersPositionCallsForPreview",
        "hAddRoundedCornersTypeCallsForPreview",
        "hAddRoundedCornersBackGroundCallsForPreview",
        "hAddRoundedCornersBorderCallsForPreview",
        "hAddRotationBackGroundCallsForPreview",
        "hAddFramingPosition",
        "hCtPSelectICCProfileCallPreview",
        "hCtPRenderIntentCallPreview",
        "hSepiaCallsForPreview",
        "hScreenSharpnessCallsForPreview",
        "hScreenMaskCallsForPreview",
        "hScreenInvertCallsForPreview",
        "hUnsharpMaskIntensityCallsForPreview",
        "hMonochromeIntensityCallsForPreview",
        "onClickPubFilterType"
    ),
    [](const auto& row) { return std::string(row.param); }
);

TEST_P(ColorWells, WriteTheirColorAndDrawThePreview)
{
    auto* well
        = dynamic_cast<controls::ColorWell*>(panels.control(QString::fromLatin1(GetParam().well)));
    auto* hexField
        = dynamic_cast<controls::TextField*>(panels.control(QString::fromLatin1(GetParam().hexField)
        ));
    ASSERT_TRUE(well && hexField);

    user.choose(*well, {.red = 1, .green = 0.5, .blue = 0});

    EXPECT_EQ(hexField->stringValue(), u"FF7F00"_s);
    EXPECT_EQ(previews, 1);
}

INSTANTIATE_TEST_SUITE_P(
    PanelActions,
    ColorWells,
    testing::Values(
        ColorPair{"hAddTintColorWell", "cwAddTint", "tfAddTintHexValue"},
        ColorPair{"hAddFrameColorWellSelected", "myNSColorWellObjFraming", "tfFramingHEXvalue"},
        ColorPair{
            "hAddRCBackgroundColorWellSelected", "cwRCBackgroundColor", "tfRCBackgroundHexColor"},
        ColorPair{"hAddRCBorderColorWellSelected", "cwRCBorderColor", "tfRCBorderHexColor"},
        ColorPair{
            "hAddRotationBackgroundColorWellSelected",
            "cwRotationBackgroundColor",
            "tfRotationBackgroundHexColor"},
        ColorPair{
            "hMonochromeColorWellSelected", "cwFilterMonochromeColor", "tfFilterMonochromeHexColor"}
    ),
    test::CaseName{}
);

TEST_F(PanelActions, DrawTheTintBeforeItsColorIsWritten)
{
    user.choose(panels.vwAddTint.cwAddTint, {.red = 1, .green = 1, .blue = 1});

    EXPECT_EQ(hexAtPreview, u"000000"_s);
    EXPECT_EQ(panels.vwAddTint.tfAddTintHexValue.stringValue(), u"FFFFFF"_s);
}

TEST_F(PanelActions, ShowThePlainPhotoWhileThePreviewIsOff)
{
    panels.vwShowPreview.cbShowPreview.setState(0);

    user.pick(panels.vwAddTint.pubAddTintRenderMethod, 2);

    EXPECT_EQ(previews, 0);
    EXPECT_TRUE(showsPhoto());
    EXPECT_FALSE(showsOverlay());
}

TEST_F(PanelActions, EnableTheFieldsThatDependOnATint)
{
    panels::TintPanel& panel = panels.vwAddTint;

    user.tick(panel.cbAddTintGradient, 1);
    EXPECT_TRUE(panel.pubAddTintAngle.isEnabled());
    user.tick(panel.cbAddTintGradient, 0);
    EXPECT_FALSE(panel.pubAddTintAngle.isEnabled());

    user.tick(panel.cbAddTintOrigSize, 0);
    EXPECT_TRUE(panel.tfAddTintWidth.isEnabled());
    EXPECT_TRUE(panel.tfAddTintHeight.isEnabled());
    user.tick(panel.cbAddTintOrigSize, 1);
    EXPECT_FALSE(panel.tfAddTintWidth.isEnabled());
    EXPECT_FALSE(panel.tfAddTintHeight.isEnabled());
}

TEST_F(PanelActions, EnableTheDiameterForPlainRoundedCornersOnly)
{
    panels::RoundingsPanel& panel = panels.vwRoundings;

    user.pick(panel.pubRCType, 1);
    EXPECT_FALSE(panel.tfRCDiameter.isEnabled());
    user.pick(panel.pubRCType, 0);
    EXPECT_TRUE(panel.tfRCDiameter.isEnabled());
}

TEST_F(PanelActions, EnableTheFieldsOfTheBackgroundOfRoundedCornersWithTheirBox)
{
    panels::RoundingsPanel& panel = panels.vwRoundings;
    for (const int state : {1, 0}) {
        user.tick(panel.cbRCBackgroundColor, state);

        EXPECT_EQ(panel.cwRCBackgroundColor.isEnabled(), state == 1);
        EXPECT_EQ(panel.tfRCBackgroundHexColor.isEnabled(), state == 1);
        EXPECT_EQ(panel.tfRCEnlargeCanvas.isEnabled(), state == 1);
    }
}

TEST_F(PanelActions, EnableTheFieldsOfTheBorderOfRoundedCornersWithTheirBox)
{
    panels::RoundingsPanel& panel = panels.vwRoundings;
    for (const int state : {1, 0}) {
        user.tick(panel.cbRCBorderColor, state);

        EXPECT_EQ(panel.cwRCBorderColor.isEnabled(), state == 1);
        EXPECT_EQ(panel.tfRCBorderHexColor.isEnabled(), state == 1);
        EXPECT_EQ(panel.tfRCBorderWidth.isEnabled(), state == 1);
        EXPECT_EQ(panel.pubRCBorderPos.isEnabled(), state == 1);
        EXPECT_FALSE(panel.pubRCGradientAngle.isEnabled());
    }

    user.tick(panel.cbRCGradient, 1);
    EXPECT_TRUE(panel.pubRCGradientAngle.isEnabled());
    user.tick(panel.cbRCGradient, 0);
    EXPECT_FALSE(panel.pubRCGradientAngle.isEnabled());
}

TEST_F(PanelActions, EnableTheFieldsOfTheBackgroundOfARotationWithTheirBox)
{
    panels::RotatePanel& rotate = panels.vwRotatePhotos;
    for (const int state : {1, 0}) {
        user.tick(rotate.cbRotationBackgroundColor, state);

        EXPECT_EQ(rotate.cwRotationBackgroundColor.isEnabled(), state == 1);
        EXPECT_EQ(rotate.tfRotationBackgroundHexColor.isEnabled(), state == 1);
        EXPECT_EQ(rotate.tfRotationEnlargeCanvas.isEnabled(), state == 1);
    }
}

TEST_F(PanelActions, EnableTheInsetForAFrameInsideOnly)
{
    user.pick(panels.vwFraming.pubFramingType, 1);
    EXPECT_FALSE(panels.vwFraming.tfFramingInset.isEnabled());
    user.pick(panels.vwFraming.pubFramingType, 0);
    EXPECT_TRUE(panels.vwFraming.tfFramingInset.isEnabled());
}

TEST_F(PanelActions, ShowTheSettingsOfAFilter)
{
    panels::FilterPanel& panel = panels.vwFilterPhotos;

    user.pick(panel.pubFilterSelection, 3);
    EXPECT_EQ(panel.vwFiltersMainView.views(), QStringList{u"vwFiltersScreenView"_s});
    EXPECT_TRUE(panel.vwFiltersScreenView.tfFilterCenterCircularWidth.isEnabled());
    EXPECT_FALSE(panel.vwFiltersScreenView.tfFilterLineScreenAngle.isEnabled());

    user.pick(panel.pubFilterSelection, 14);
    EXPECT_FALSE(panel.vwFiltersScreenView.tfFilterCenterCircularWidth.isEnabled());
    EXPECT_TRUE(panel.vwFiltersScreenView.tfFilterLineScreenAngle.isEnabled());

    user.pick(panel.pubFilterSelection, 21);
    EXPECT_EQ(panel.vwFiltersMainView.views(), QStringList{u"vwFiltersUnsharpView"_s});

    user.pick(panel.pubFilterSelection, 0);
    EXPECT_TRUE(panel.vwFiltersMainView.isEmpty());
}

TEST_F(PanelActions, TurnTheSimulationOffAtOnce)
{
    controls::CheckBox& simulation = panels.vwWatermark.cbWMSimulationMode;

    user.tick(simulation, 1);
    EXPECT_FALSE(simulation.isOn());

    simulation.setState(1);
    actions.send(u"hTxtSimulationModePressed"_s);
    EXPECT_FALSE(simulation.isOn());
}

TEST_F(PanelActions, AppendTheTokensOfTheSizeToTheFileNameText)
{
    int posted = 0;
    const auto subscription
        = notifications.addObserver(u"cbTextWatermarkMetaDataEntred"_s, [&](const QString&) {
              ++posted;
          });
    panels::WatermarkPanel& panel = panels.vwWatermark;
    panel.tvFileName.setStringValue(u"thumb_"_s);

    user.pick(panel.pubFileNamePhotoProperties, 0);
    user.pick(panel.pubFileNamePhotoProperties, 1);

    EXPECT_EQ(panel.tvFileName.stringValue(), u"thumb_<[IMGW]><[IMGH]>"_s);
    EXPECT_EQ(posted, 2);

    panel.pubFileNamePhotoProperties.selectItemAtIndex(-1);
    actions.send(u"cGUIcontrols.hInsertPhotoProperty"_s);
    EXPECT_EQ(panel.tvFileName.stringValue(), u"thumb_<[IMGW]><[IMGH]>"_s);
}

TEST_F(PanelActions, PrintThePhotoThatIsNamed)
{
    QStringList printed;
    neighbours.printService = [&](const QString& path) { printed.append(path); };

    panels.window.tfOriginalPictureStrRef.setStringValue({});
    actions.send(u"hPrintOrigPicture"_s);
    panels.window.tfOriginalPictureStrRef.setStringValue(u"/in/a.jpg"_s);
    actions.send(u"hPrintOrigPicture"_s);

    EXPECT_EQ(printed, QStringList{u"/in/a.jpg"_s});
}
