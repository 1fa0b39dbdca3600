// SPDX-License-Identifier: GPL-3.0-or-later
#include <watermark/panel_actions.h>

#include <controls/action_registry.h>
#include <panels/watermark_panel.h>
#include <platform/foundation/notification_center.h>
#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

namespace {

class WatermarkPanelActions : public testing::Test
{
protected:
    WatermarkPanelActions() { watermark::registerPanelActions(actions, panel, notifications); }

    void send(const char* action)
    {
        ASSERT_EQ(
            actions.send(QStringLiteral("DVWatermark.") + QString::fromLatin1(action)),
            controls::ActionRegistry::Sent::Done
        );
    }

    panels::WatermarkPanel panel;
    platform::NotificationCenter notifications;
    controls::ActionRegistry actions;
};

struct PostedCase
{
    const char* action;
    const char* notification;

    friend void PrintTo(const PostedCase& row, std::ostream* out) { *out << row.action; }
};

class WatermarkNotification : public WatermarkPanelActions,
                              public testing::WithParamInterface<PostedCase>
{
};

} // namespace

TEST_P(WatermarkNotification, IsPosted)
{
    int posted = 0;
    const auto subscription = notifications.addObserver(
        QString::fromLatin1(GetParam().notification), [&](const QString&) { ++posted; }
    );

    send(GetParam().action);

    EXPECT_EQ(posted, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    WatermarkNotification,
    testing::Values(
        PostedCase{"textDidChange", "cbTextEntred"},
        PostedCase{"hInsertPhotoProperty", "cbTextWatermarkMetaDataEntred"},
        PostedCase{"hChooseWatermarkFilterType", "pubWatermarkFilterTypeEntred"},
        PostedCase{"hCheckFadeOutBox", "cbCheckFadeOutBoxEntred"},
        PostedCase{"hCicularFadeOut", "cbCircularFadeOutEntred"},
        PostedCase{"hImageShadowCheckBox", "cbImageShadowCheckBoxEntred"},
        PostedCase{"hTextShadowCheckBox", "cbTextShadowCheckBoxEntred"},
        PostedCase{"hTextOutlineCheckBox", "cbTextOutlineCheckBoxEntred"},
        PostedCase{"hAddTextWatermarkEffect", "pubWatermarkTextEffectEntred"},
        PostedCase{"hTextAlignment", "cbTextWatermarkAlignment"},
        PostedCase{"hImageWatermarkSizeEntred", "mxImageWatermarkSizeEntred"},
        PostedCase{"hTextShadowColorEntred", "cbTextShadowColorEntred"},
        PostedCase{"hTextColorEntred", "cbTextColorEntred"},
        PostedCase{"hTextItalicCheckBox", "cbTextItalicCheckBoxEntred"},
        PostedCase{"hTextBoldCheckBox", "cbTextBoldCheckBoxEntred"},
        PostedCase{"hTextOutlineThicknessComboBox", "cbTextOutlineThicknessEntred"},
        PostedCase{"hUnderlineComboBox", "cbUnderlineComboBoxEntred"},
        PostedCase{"hTextWatermarkPositionSelector", "cbTextWatermarkPositionEntred"},
        PostedCase{"hTextFontFamilyComboBox", "cbTextFontFamilyEntred"},
        PostedCase{"hAddTextWatermarkEffectIntensity", "pubWatermarkTextEffectIntensityEntred"},
        PostedCase{"hImgPatternCheckBox", "cbImagePatternCheckBoxEntred"},
        PostedCase{"hTxtPatternCheckBox", "cbTxtPatternCheckBoxEntred"},
        PostedCase{"hImageWatermarkPositionSelector", "cbImageWatermarkPositionEntred"},
        PostedCase{"hOpacityRenderMethodSelector", "pubOpacityRenderMethodEntred"},
        PostedCase{"hSliderFadeOutImageSelector", "srSliderFadeOutImageEntred"},
        PostedCase{"hImageShadowColorEntred", "cwImageShadowColorEntred"},
        PostedCase{"hEmbossColorEntred", "cwEmbossColorEntred"},
        PostedCase{"hScreenSizeEntred", "tfScreenSizeEntred"},
        PostedCase{"hScreenSharpnessEntred", "pubScreenSharpnessEntred"}
    ),
    [](const auto& row) { return row.param.action; }
);

TEST_F(WatermarkPanelActions, InsertTheSelectedToken)
{
    panel.tvWaterMarkText.setStringValue(QStringLiteral("by "));
    panel.pubPhotoProperties.selectItemAtIndex(9);

    send("hInsertPhotoProperty");

    EXPECT_EQ(panel.tvWaterMarkText.stringValue(), QStringLiteral("by <[IPTCCREA]>"));
}

TEST_F(WatermarkPanelActions, InsertNothingWithoutASelectionAndStillPost)
{
    int posted = 0;
    const auto subscription = notifications.addObserver(
        QStringLiteral("cbTextWatermarkMetaDataEntred"), [&](const QString&) { ++posted; }
    );
    panel.tvWaterMarkText.setStringValue(QStringLiteral("by "));
    panel.pubPhotoProperties.selectItemAtIndex(-1);

    send("hInsertPhotoProperty");

    EXPECT_EQ(panel.tvWaterMarkText.stringValue(), QStringLiteral("by "));
    EXPECT_EQ(posted, 1);
}

TEST_F(WatermarkPanelActions, EnableTheThicknessWithTheOutline)
{
    panel.cbOutlineCheck.setState(1);
    send("hTextOutlineCheckBox");
    EXPECT_TRUE(panel.pubOutlineThickness.isEnabled());

    panel.cbOutlineCheck.setState(0);
    send("hTextOutlineCheckBox");
    EXPECT_FALSE(panel.pubOutlineThickness.isEnabled());
}

TEST_F(WatermarkPanelActions, EnableTheShadowFieldsWithTheirBox)
{
    panel.cbShadowCheck.setState(1);
    send("hTextShadowCheckBox");
    EXPECT_TRUE(panel.tfTextShadowXOffset.isEnabled());
    EXPECT_TRUE(panel.cwShadowColor.isEnabled());

    panel.cbShadowCheck.setState(0);
    send("hTextShadowCheckBox");
    EXPECT_FALSE(panel.tfTextShadowRadius.isEnabled());
}

TEST_F(WatermarkPanelActions, ShowTheReliefColourForItsEffectOnly)
{
    panel.pubWatermarkTextEffect.selectItemAtIndex(6);
    send("hAddTextWatermarkEffect");
    EXPECT_FALSE(panel.cwEmbossColor.isHidden());
    EXPECT_TRUE(panel.cwEmbossColor.isEnabled());

    panel.pubWatermarkTextEffect.selectItemAtIndex(5);
    send("hAddTextWatermarkEffect");
    EXPECT_TRUE(panel.cwEmbossColor.isHidden());
}

TEST_F(WatermarkPanelActions, AlignTheTextViewLikeTheMark)
{
    panel.scTxtAlign.setSelectedSegment(1);
    send("hTextAlignment");
    EXPECT_EQ(panel.tvWaterMarkText.alignment(), controls::TextView::Alignment::Center);
}

TEST_F(WatermarkPanelActions, FixTheScaleForTheOtherSizes)
{
    panel.tfImageScalePC.setStringValue(QStringLiteral("40"));
    panel.cbPatternCheck.setState(1);
    panel.mxImageScaleProperty.selectRow(3);

    send("hImageWatermarkSizeEntred");

    EXPECT_EQ(panel.tfImageScalePC.stringValue(), QStringLiteral("100"));
    EXPECT_FALSE(panel.tfImageScalePC.isEnabled());
    EXPECT_EQ(panel.cbPatternCheck.state(), 0);
}

TEST_F(WatermarkPanelActions, FollowTheFadeOutBoxes)
{
    panel.cbImageFadeOut.setState(1);
    send("hCheckFadeOutBox");
    EXPECT_TRUE(panel.tfImageFadeOutAngle.isEnabled());
    EXPECT_TRUE(panel.sliderFadeOutValue.isEnabled());

    panel.cbCircularFadeOut.setState(1);
    send("hCicularFadeOut");
    EXPECT_FALSE(panel.tfImageFadeOutAngle.isEnabled());
    EXPECT_TRUE(panel.cbCircularInvertFadeOut.isEnabled());

    panel.cbImageFadeOut.setState(0);
    send("hCheckFadeOutBox");
    EXPECT_FALSE(panel.cbCircularFadeOut.isEnabled());
}

namespace {

struct FilterCase
{
    const char* name;
    int type;
    bool size;
    bool centre;
    bool angle;

    friend void PrintTo(const FilterCase& row, std::ostream* out) { *out << row.name; }
};

class WatermarkFilterType : public WatermarkPanelActions,
                            public testing::WithParamInterface<FilterCase>
{
};

} // namespace

TEST_P(WatermarkFilterType, EnablesItsFields)
{
    panel.pubWatermarkFilterType.selectItemAtIndex(GetParam().type);

    send("hChooseWatermarkFilterType");

    EXPECT_EQ(panel.tfWatermarkFilterSize.isEnabled(), GetParam().size);
    EXPECT_EQ(panel.pubWatermarkFilterSharpness.isEnabled(), GetParam().size);
    EXPECT_EQ(panel.tfCenterCircularWidth.isEnabled(), GetParam().centre);
    EXPECT_EQ(panel.tfCenterCircularHeight.isEnabled(), GetParam().centre);
    EXPECT_EQ(panel.tfLineScreenAngle.isEnabled(), GetParam().angle);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    WatermarkFilterType,
    testing::Values(
        FilterCase{"None", 0, false, false, false},
        FilterCase{"Second", 1, false, false, false},
        FilterCase{"Third", 2, false, false, false},
        FilterCase{"FirstScreen", 3, true, false, true},
        FilterCase{"SecondScreen", 4, true, false, true},
        FilterCase{"CircularScreen", 5, true, true, false}
    ),
    brenvaldo::test::CaseName()
);
