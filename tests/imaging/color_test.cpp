// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/color_well_handling.h>
#include <imaging/dv_color_conversions.h>
#include <imaging/ns_color_handling.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::imaging;
using brenvaldo::controls::ActionRegistry;
using brenvaldo::controls::ColorWell;
using brenvaldo::controls::TextField;
using brenvaldo::panels::Panels;
using brenvaldo::platform::graphics::Color;
using brenvaldo::test::CaseName;

namespace {

constexpr Color red{.red = 1};
constexpr Color black{};
constexpr Color grey{.red = 0.5, .green = 0.5, .blue = 0.5};

struct HexCase
{
    const char* name;
    QString text;
    QString expected;
};

void PrintTo(const HexCase& hexCase, std::ostream* out) { *out << hexCase.name; }

class ColorFromHex : public testing::TestWithParam<HexCase>
{
};

const HexCase hexCases[] = {
    {"Red", u"FF0000"_qs, u"FF0000"_qs},
    {"LowerCase", u"00ff00"_qs, u"00FF00"_qs},
    {"Hash", u"#FF0000"_qs, u"000000"_qs},
    {"Missing", {}, u"000000"_qs},
    {"NoDigit", u"zz"_qs, u"000000"_qs},
    {"ThreeDigits", u"FFF"_qs, u"000FFF"_qs},
    {"TextBehind", u"0000FFzz"_qs, u"0000FF"_qs},
    {"EightDigits", u"12FF0000"_qs, u"FF0000"_qs},
    {"MoreThan32Bits", u"123456789"_qs, u"FFFFFF"_qs},
};

struct AcceptedCase
{
    const char* name;
    QString text;
    QString expected; ///< "" when the text is refused
};

void PrintTo(const AcceptedCase& acceptedCase, std::ostream* out) { *out << acceptedCase.name; }

class SetHexValue : public testing::TestWithParam<AcceptedCase>
{
};

const AcceptedCase acceptedCases[] = {
    {"SixDigits", u"FF0000"_qs, u"FF0000"_qs},
    {"Hash", u"#FF0000"_qs, u"FF0000"_qs},
    {"LowerCase", u"a1b2c3"_qs, u"A1B2C3"_qs},
    {"TextBehind", u"FF0000zz"_qs, u"FF0000"_qs},
    {"BlanksInFront", u"  FF0000"_qs, u"FF0000"_qs},
    {"ThreeDigits", u"FFF"_qs, {}},
    {"SevenDigits", u"FF00001"_qs, {}},
    {"TwoHashes", u"##FF0000"_qs, {}},
    {"Prefix", u"0xFF00"_qs, {}},
    {"Nothing", u""_qs, {}},
};

} // namespace

TEST_P(ColorFromHex, ReadsTheDigitsAtTheStart)
{
    const HexCase& row = GetParam();

    const Color color = cNSColorHandling::colorFromHexRGB(row.text);

    EXPECT_EQ(cNSColorHandling::hGetHexFromRGB(color), row.expected);
    EXPECT_EQ(cNSColorHandling::colorFromHexToRGB(row.text), color);
    EXPECT_EQ(color.alpha, 1.0);
}

INSTANTIATE_TEST_SUITE_P(Rows, ColorFromHex, testing::ValuesIn(hexCases), CaseName());

TEST(ColorFromHex, DividesInSinglePrecision)
{
    const Color color = cNSColorHandling::colorFromHexRGB(u"330000"_qs);

    EXPECT_EQ(color.red, static_cast<double>(51.0F / 255.0F));
    EXPECT_NE(color.red, 51 / 255.0);
}

TEST(HexValue, TruncatesComponents)
{
    EXPECT_EQ(cColorWellHandling::getHEXValue(grey), u"7F7F7F"_qs);
    EXPECT_EQ(cNSColorHandling::hGetHexFromRGB(grey), u"7F7F7F"_qs);
}

TEST(HexValue, IsWrittenInUpperCaseAndTwoDigitsAComponent)
{
    EXPECT_EQ(
        cColorWellHandling::getHEXValue({.red = 10.5 / 255, .green = 0, .blue = 171.5 / 255}),
        u"0A00AB"_qs
    );
}

TEST_P(SetHexValue, TakesExactlySixDigits)
{
    const AcceptedCase& row = GetParam();
    ColorWell well(u"cwTest"_qs, grey);

    const auto color = cColorWellHandling::setHEXValue(row.text, well);

    ASSERT_EQ(color.has_value(), !row.expected.isEmpty());
    EXPECT_EQ(well.color(), color.value_or(grey));
    if (!color)
        return;
    EXPECT_EQ(cColorWellHandling::getHEXValue(*color), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, SetHexValue, testing::ValuesIn(acceptedCases), CaseName());

TEST(SetHexValue, TellsAHashApartFromTheFieldReader)
{
    ColorWell well(u"cwTest"_qs);

    EXPECT_EQ(cColorWellHandling::setHEXValue(u"#FF0000"_qs, well), red);
    EXPECT_EQ(cNSColorHandling::colorFromHexRGB(u"#FF0000"_qs), black);
}

TEST(ColorWellTags, NameAWellForAHexField)
{
    const QStringList expected{
        u"ascNSColorWellObjBGCt"_qs,
        u"ascNSColorWellObjTCt"_qs,
        u"ascNSColorWellObjBGCc"_qs,
        u""_qs,
        u"ascNSColorWellObjBsImage"_qs,
        u"ascNSColorWellObjBbImage"_qs,
        u"ascNSColorWellObjPhotoNameCt"_qs,
        u"ascNSColorWellAddTint"_qs,
        u"myNSColorWellObjFraming"_qs,
        u"ascNSColorWellObjRCbackground"_qs,
        u"ascNSColorWellObjRCborder"_qs,
        u"ascNSColorWellObjThumbnail"_qs,
        u"ascNSColorWellObjThumbnailShadow"_qs,
        u"ascNSColorWellObjSsDescriptionTextColor"_qs,
        u"ascNSColorWellObjSsCaptionTextColor"_qs,
        u"ascNSColorWellObjSsBackgroundColor"_qs,
        u"ascNSColorWellObjRGBackgroundColor"_qs,
        u"ascNSColorWellObjRGDescriptionColor"_qs,
        u"ascNSColorWellObjRgMetaDataColor"_qs,
        u"ascNSColorWellObjSsDotColor"_qs,
        u"ascNSColorWellObjRDLightboxBgColor"_qs,
        u"ascNSColorWellObjRGLightboxBgColor"_qs,
        u"ascNSColorWellObjMonochrome"_qs,
        u"cwRotationBackgroundColor"_qs,
        u""_qs,
    };

    QStringList names;
    for (int tag = 0; tag < expected.size(); ++tag)
        names.append(colorWellOfHexField(tag));

    EXPECT_EQ(names, expected);
    EXPECT_EQ(colorWellOfHexField(-1), QString());
}

TEST(ColorWellTags, NameAHexFieldForAWell)
{
    const QStringList expected{
        u"tfNSColorWellObjBGCt"_qs,
        u"tfNSColorWellObjBGCc"_qs,
        u"tfNSColorWellObjBCc"_qs,
        u"tfNSColorWellObjTCt"_qs,
        u"tfNSColorWellObjPhotoNameCt"_qs,
        u"tfNSColorWellObjUserExifCommentCt"_qs,
        u"tfNSColorWellObjBsImage"_qs,
        u"tfNSColorWellObjThumbnail"_qs,
        u"tfNSColorWellObjThumbnailShadow"_qs,
        u"tfNSColorWellObjBbImage"_qs,
        u"tfNSColorWellObjLightBox"_qs,
        u"tfNSColorWellObjLightBoxShadow"_qs,
        u"tfNSColorWellObjRDLightboxBgColor"_qs,
        u"tfNSColorWellObjRGLightboxBgColor"_qs,
        u"tfRotationBackgroundHexColor"_qs,
        u"tfRCBackgroundHexColor"_qs,
        u""_qs,
    };

    QStringList names;
    for (int tag = 0; tag < expected.size(); ++tag)
        names.append(hexFieldOfColorWell(tag));

    EXPECT_EQ(names, expected);
    EXPECT_EQ(hexFieldOfColorWell(-1), QString());
}

TEST(ColorWellTags, LeaveControlsAloneThatNoPanelHas)
{
    const Panels panels;
    const cColorWellHandling handling(panels);
    TextField field(u"tfTest"_qs, u"FF0000"_qs);
    field.setTag(3);
    ColorWell well(u"cwTest"_qs);
    well.setTag(99);

    EXPECT_NO_THROW(handling.controlTextDidEndEditing(field));
    EXPECT_NO_THROW(handling.hCallHEXfromColorwell(well));
}

TEST(ColorWellTags, LetTheWellFollowItsHexField)
{
    const Panels panels;
    const cColorWellHandling handling(panels);
    auto* well = dynamic_cast<ColorWell*>(panels.control(u"ascNSColorWellAddTint"_qs));
    ASSERT_TRUE(well);
    TextField field(u"tfTest"_qs, u"FF0000"_qs);
    field.setTag(7);

    handling.controlTextDidEndEditing(field);

    EXPECT_EQ(well->color(), red);
}

TEST(ColorWellTags, LetTheHexFieldFollowItsWell)
{
    const Panels panels;
    const cColorWellHandling handling(panels);
    auto* field = dynamic_cast<TextField*>(panels.control(u"tfRotationBackgroundHexColor"_qs));
    ASSERT_TRUE(field);
    ColorWell well(u"cwTest"_qs, grey);
    well.setTag(14);

    handling.hCallHEXfromColorwell(well);

    EXPECT_EQ(field->stringValue(), u"7F7F7F"_qs);
}

TEST(ColorWellTags, AreReadByTheActionsOfFieldsAndWells)
{
    const Panels panels;
    const cColorWellHandling handling(panels);
    ActionRegistry actions;
    handling.registerActions(actions);
    auto* well = dynamic_cast<ColorWell*>(panels.control(u"cwRotationBackgroundColor"_qs));
    auto* hexField = dynamic_cast<TextField*>(panels.control(u"tfRotationBackgroundHexColor"_qs));
    ASSERT_TRUE(well && hexField);
    TextField field(u"tfTest"_qs, u"FF0000"_qs);
    field.setTag(23);
    ColorWell changed(u"cwTest"_qs, grey);
    changed.setTag(14);

    const auto edited
        = actions.send(u"controlTextDidEndEditing"_qs, {.tag = 23, .control = &field});
    const auto chosen = actions.send(u"hCallHEXfromColorwell"_qs, {.tag = 14, .control = &changed});

    EXPECT_EQ(edited, ActionRegistry::Sent::Done);
    EXPECT_EQ(chosen, ActionRegistry::Sent::Done);
    EXPECT_EQ(well->color(), red);
    EXPECT_EQ(hexField->stringValue(), u"7F7F7F"_qs);
}

TEST(DrawingColor, KeepsComponentsAndSpace)
{
    EXPECT_EQ(DVColorConversions::NSColorToCGColor(red.withAlpha(0.25)), red.withAlpha(0.25));
}
