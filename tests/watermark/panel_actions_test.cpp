// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
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
            actions.send(u"DVWatermark."_s + QString::fromLatin1(action)),
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
    panel.tvWaterMarkText.setStringValue(u"by "_s);
    panel.pubPhotoProperties.selectItemAtIndex(9);

    send("hInsertPhotoProperty");

    EXPECT_EQ(panel.tvWaterMarkText.stringValue(), u"by <[IPTCCREA]>"_s);
}

TEST_F(WatermarkPanelActions, InsertNothingWithoutASelectionAndStillPost)
{
    int posted = 0;
    const auto subscription
        = notifications.addObserver(u"cbTextWatermarkMetaDataEntred"_s, [&](const QString&) {
              ++posted;
          });
    panel.tvWaterMarkText.setStringValue(u"by "_s);
    panel.pubPhotoProperties.selectItemAtIndex(-1);

    send("hInsertPhotoProperty");

    EXPECT_EQ(panel.tvWaterMarkText.stringValue(), u"by "_s);
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

TEST_F(WatermarkPanelActions, EnableTheFieldsOfTheTextShadowWithTheirBox)
{
    const auto enabled = [this] {
        return QList<bool>{
            panel.tfTextShadowXOffset.isEnabled(),
            panel.tfTextShadowYOffset.isEnabled(),
            panel.tfTextShadowRadius.isEnabled(),
            panel.cwShadowColor.isEnabled()};
    };

    panel.cbShadowCheck.setState(1);
    send("hTextShadowCheckBox");
    EXPECT_EQ(enabled(), QList<bool>(4, true));

    panel.cbShadowCheck.setState(0);
    send("hTextShadowCheckBox");
    EXPECT_EQ(enabled(), QList<bool>(4, false));
}

TEST_F(WatermarkPanelActions, EnableTheFieldsOfTheImageShadowWithTheirBox)
{
    const auto enabled = [this] {
        return QList<bool>{
            panel.tfImageShadowXOffset.isEnabled(),
            panel.tfImageShadowYOffset.isEnabled(),
            panel.tfImageShadowRadius.isEnabled(),
            panel.cwImageShadowColor.isEnabled()};
    };

    panel.cbImageShadowCheck.setState(1);
    send("hImageShadowCheckBox");
    EXPECT_EQ(enabled(), QList<bool>(4, true));

    panel.cbImageShadowCheck.setState(0);
    send("hImageShadowCheckBox");
    EXPECT_EQ(enabled(), QList<bool>(4, false));
}

TEST_F(WatermarkPanelActions, ShowTheReliefColorForItsEffectOnly)
{
    for (int index = 0; index <= 9; ++index) {
        panel.cwEmbossColor.setHidden(index == 6);
        panel.cwEmbossColor.setEnabled(index != 6);
        panel.pubWatermarkTextEffect.selectItemAtIndex(index);

        send("hAddTextWatermarkEffect");

        EXPECT_EQ(panel.cwEmbossColor.isHidden(), index != 6) << index;
        EXPECT_EQ(panel.cwEmbossColor.isEnabled(), index == 6) << index;
    }
}

TEST_F(WatermarkPanelActions, AlignTheTextViewLikeTheMark)
{
    using Alignment = controls::TextView::Alignment;
    const auto aligned = [this](int segment) {
        panel.scTxtAlign.setSelectedSegment(segment);
        send("hTextAlignment");
        return panel.tvWaterMarkText.alignment();
    };

    EXPECT_EQ(aligned(1), Alignment::Center);
    EXPECT_EQ(aligned(0), Alignment::Left);
    EXPECT_EQ(aligned(2), Alignment::Right);
    EXPECT_EQ(aligned(-1), Alignment::Right);
}

TEST_F(WatermarkPanelActions, FixTheScaleForTheOtherSizes)
{
    for (const int row : {-1, 3, 4}) {
        panel.tfImageScalePC.setStringValue(u"40"_s);
        panel.tfImageScalePC.setEnabled(true);
        panel.cbPatternCheck.setState(1);
        panel.mxImageScaleProperty.selectRow(row);

        send("hImageWatermarkSizeEntred");

        EXPECT_EQ(panel.tfImageScalePC.stringValue(), u"100"_s) << row;
        EXPECT_FALSE(panel.tfImageScalePC.isEnabled()) << row;
        EXPECT_EQ(panel.cbPatternCheck.state(), 0) << row;
    }
}

TEST_F(WatermarkPanelActions, LeaveTheScaleToTheSizesThatHaveOne)
{
    for (const int row : {0, 1, 2}) {
        panel.tfImageScalePC.setStringValue(u"40"_s);
        panel.tfImageScalePC.setEnabled(false);
        panel.cbPatternCheck.setState(1);
        panel.mxImageScaleProperty.selectRow(row);

        send("hImageWatermarkSizeEntred");

        EXPECT_EQ(panel.tfImageScalePC.stringValue(), u"40"_s) << row;
        EXPECT_TRUE(panel.tfImageScalePC.isEnabled()) << row;
        EXPECT_EQ(panel.cbPatternCheck.state(), 1) << row;
    }
}

namespace {

struct FadeOutCase
{
    const char* name;
    int fades;
    int isCircular;
    bool angle;
    bool others; ///< the slider and both boxes of the circle

    friend void PrintTo(const FadeOutCase& row, std::ostream* out) { *out << row.name; }
};

class WatermarkFadeOut : public WatermarkPanelActions,
                         public testing::WithParamInterface<FadeOutCase>
{
};

} // namespace

TEST_P(WatermarkFadeOut, EnablesItsControls)
{
    const FadeOutCase& row = GetParam();
    panel.cbImageFadeOut.setState(row.fades);
    panel.cbCircularFadeOut.setState(row.isCircular);
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &panel.tfImageFadeOutAngle,
             &panel.sliderFadeOutValue,
             &panel.cbCircularFadeOut,
             &panel.cbCircularInvertFadeOut})
        control->setEnabled(!row.others);
    if (row.others)
        panel.tfImageFadeOutAngle.setEnabled(!row.angle);

    send("hCheckFadeOutBox");

    EXPECT_EQ(panel.tfImageFadeOutAngle.isEnabled(), row.angle);
    EXPECT_EQ(panel.sliderFadeOutValue.isEnabled(), row.others);
    EXPECT_EQ(panel.cbCircularFadeOut.isEnabled(), row.others);
    EXPECT_EQ(panel.cbCircularInvertFadeOut.isEnabled(), row.others);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    WatermarkFadeOut,
    testing::Values(
        FadeOutCase{"Straight", 1, 0, true, true},
        FadeOutCase{"CircularHasNoAngle", 1, 1, false, true},
        FadeOutCase{"Off", 0, 0, false, false},
        FadeOutCase{"OffWithTheCircleTicked", 0, 1, false, false}
    ),
    brenvaldo::test::CaseName()
);

TEST_F(WatermarkPanelActions, ExchangeTheAngleForTheCirclesInversion)
{
    panel.tfImageFadeOutAngle.setEnabled(true);
    panel.cbCircularInvertFadeOut.setEnabled(false);
    panel.pubOutlineThickness.setEnabled(false);
    panel.cbCircularFadeOut.setState(1);
    send("hCicularFadeOut");
    EXPECT_FALSE(panel.tfImageFadeOutAngle.isEnabled());
    EXPECT_TRUE(panel.cbCircularInvertFadeOut.isEnabled());
    EXPECT_FALSE(panel.pubOutlineThickness.isEnabled());

    panel.cbCircularFadeOut.setState(0);
    send("hCicularFadeOut");
    EXPECT_TRUE(panel.tfImageFadeOutAngle.isEnabled());
    EXPECT_FALSE(panel.cbCircularInvertFadeOut.isEnabled());
    EXPECT_TRUE(panel.pubOutlineThickness.isEnabled());
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
    panel.tfWatermarkFilterSize.setEnabled(!GetParam().size);
    panel.pubWatermarkFilterSharpness.setEnabled(!GetParam().size);
    panel.tfCenterCircularWidth.setEnabled(!GetParam().centre);
    panel.tfCenterCircularHeight.setEnabled(!GetParam().centre);
    panel.tfLineScreenAngle.setEnabled(!GetParam().angle);

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

TEST_F(WatermarkPanelActions, LeaveTheControlsAsTheyAreForAFilterThatIsNotKnown)
{
    QStringList titles;
    for (int index = 0; index < 8; ++index)
        titles.append(QString::number(index));
    panel.pubWatermarkFilterType.setTitles(titles);
    const std::initializer_list<controls::Control*> controls{
        &panel.tfWatermarkFilterSize,
        &panel.pubWatermarkFilterSharpness,
        &panel.tfCenterCircularWidth,
        &panel.tfCenterCircularHeight,
        &panel.tfLineScreenAngle};
    for (const int index : {-1, 6, 7}) {
        panel.pubWatermarkFilterType.selectItemAtIndex(index);
        for (const bool isEnabled : {true, false}) {
            for (controls::Control* control : controls)
                control->setEnabled(isEnabled);

            send("hChooseWatermarkFilterType");

            for (const controls::Control* control : controls)
                EXPECT_EQ(control->isEnabled(), isEnabled)
                    << index << control->name().toStdString();
        }
    }
}
