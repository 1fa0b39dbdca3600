// SPDX-License-Identifier: GPL-3.0-or-later
#include "plain_colors.h"

#include <imaging/color_well_handling.h>
#include <imaging/dv_color_conversions.h>
#include <imaging/ns_color_handling.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::imaging;
using brenvaldo::controls::ActionRegistry;
using brenvaldo::controls::ColorWell;
using brenvaldo::controls::TextField;
using brenvaldo::panels::Panels;
using brenvaldo::platform::graphics::Color;
using brenvaldo::test::CaseName;
using brenvaldo::test::plainRed;

namespace {

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
    {"Red", u"FF0000"_s, u"FF0000"_s},
    {"LowerCase", u"00ff00"_s, u"00FF00"_s},
    {"Hash", u"#FF0000"_s, u"000000"_s},
    {"Missing", {}, u"000000"_s},
    {"NoDigit", u"zz"_s, u"000000"_s},
    {"ThreeDigits", u"FFF"_s, u"000FFF"_s},
    {"TextBehind", u"0000FFzz"_s, u"0000FF"_s},
    {"EightDigits", u"12FF0000"_s, u"FF0000"_s},
    {"MoreThan32Bits", u"123456789"_s, u"FFFFFF"_s},
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
    {"SixDigits", u"FF0000"_s, u"FF0000"_s},
    {"Hash", u"#FF0000"_s, u"FF0000"_s},
    {"LowerCase", u"a1b2c3"_s, u"A1B2C3"_s},
    {"TextBehind", u"FF0000zz"_s, u"FF0000"_s},
    {"BlanksInFront", u"  FF0000"_s, u"FF0000"_s},
    {"ThreeDigits", u"FFF"_s, {}},
    {"SevenDigits", u"FF00001"_s, {}},
    {"TwoHashes", u"##FF0000"_s, {}},
    {"Prefix", u"0xFF00"_s, {}},
    {"Nothing", u""_s, {}},
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
    const Color color = cNSColorHandling::colorFromHexRGB(u"330000"_s);

    EXPECT_EQ(color.red, static_cast<double>(51.0F / 255.0F));
    EXPECT_NE(color.red, 51 / 255.0);
}

TEST(HexValue, TruncatesComponents)
{
    EXPECT_EQ(cColorWellHandling::getHEXValue(grey), u"7F7F7F"_s);
    EXPECT_EQ(cNSColorHandling::hGetHexFromRGB(grey), u"7F7F7F"_s);
}

TEST(HexValue, IsWrittenInUpperCaseAndTwoDigitsAComponent)
{
    EXPECT_EQ(
        cColorWellHandling::getHEXValue({.red = 10.5 / 255, .green = 0, .blue = 171.5 / 255}),
        u"0A00AB"_s
    );
}

TEST_P(SetHexValue, TakesExactlySixDigits)
{
    const AcceptedCase& row = GetParam();
    ColorWell well(u"cwTest"_s, grey);

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
    ColorWell well(u"cwTest"_s);

    EXPECT_EQ(cColorWellHandling::setHEXValue(u"#FF0000"_s, well), plainRed);
    EXPECT_EQ(cNSColorHandling::colorFromHexRGB(u"#FF0000"_s), black);
}

TEST(ColorWellTags, NameAWellForAHexField)
{
    const QStringList expected{
        u"ascNSColorWellObjBGCt"_s,
        u"ascNSColorWellObjTCt"_s,
        u"ascNSColorWellObjBGCc"_s,
        u""_s,
        u"ascNSColorWellObjBsImage"_s,
        u"ascNSColorWellObjBbImage"_s,
        u"ascNSColorWellObjPhotoNameCt"_s,
        u"ascNSColorWellAddTint"_s,
        u"myNSColorWellObjFraming"_s,
        u"ascNSColorWellObjRCbackground"_s,
        u"ascNSColorWellObjRCborder"_s,
        u"ascNSColorWellObjThumbnail"_s,
        u"ascNSColorWellObjThumbnailShadow"_s,
        u"ascNSColorWellObjSsDescriptionTextColor"_s,
        u"ascNSColorWellObjSsCaptionTextColor"_s,
        u"ascNSColorWellObjSsBackgroundColor"_s,
        u"ascNSColorWellObjRGBackgroundColor"_s,
        u"ascNSColorWellObjRGDescriptionColor"_s,
        u"ascNSColorWellObjRgMetaDataColor"_s,
        u"ascNSColorWellObjSsDotColor"_s,
        u"ascNSColorWellObjRDLightboxBgColor"_s,
        u"ascNSColorWellObjRGLightboxBgColor"_s,
        u"ascNSColorWellObjMonochrome"_s,
        u"cwRotationBackgroundColor"_s,
        u""_s,
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
        u"tfNSColorWellObjBGCt"_s,
        u"tfNSColorWellObjBGCc"_s,
        u"tfNSColorWellObjBCc"_s,
        u"tfNSColorWellObjTCt"_s,
        u"tfNSColorWellObjPhotoNameCt"_s,
        u"tfNSColorWellObjUserExifCommentCt"_s,
        u"tfNSColorWellObjBsImage"_s,
        u"tfNSColorWellObjThumbnail"_s,
        u"tfNSColorWellObjThumbnailShadow"_s,
        u"tfNSColorWellObjBbImage"_s,
        u"tfNSColorWellObjLightBox"_s,
        u"tfNSColorWellObjLightBoxShadow"_s,
        u"tfNSColorWellObjRDLightboxBgColor"_s,
        u"tfNSColorWellObjRGLightboxBgColor"_s,
        u"tfRotationBackgroundHexColor"_s,
        u"tfRCBackgroundHexColor"_s,
        u""_s,
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
    TextField field(u"tfTest"_s, u"FF0000"_s);
    field.setTag(3);
    ColorWell well(u"cwTest"_s);
    well.setTag(99);

    EXPECT_NO_THROW(handling.controlTextDidEndEditing(field));
    EXPECT_NO_THROW(handling.hCallHEXfromColorwell(well));
}

TEST(ColorWellTags, LetTheWellFollowItsHexField)
{
    const Panels panels;
    const cColorWellHandling handling(panels);
    auto* well = dynamic_cast<ColorWell*>(panels.control(u"ascNSColorWellAddTint"_s));
    ASSERT_TRUE(well);
    TextField field(u"tfTest"_s, u"FF0000"_s);
    field.setTag(7);

    handling.controlTextDidEndEditing(field);

    EXPECT_EQ(well->color(), plainRed);
}

TEST(ColorWellTags, LetTheHexFieldFollowItsWell)
{
    const Panels panels;
    const cColorWellHandling handling(panels);
    auto* field = dynamic_cast<TextField*>(panels.control(u"tfRotationBackgroundHexColor"_s));
    ASSERT_TRUE(field);
    ColorWell well(u"cwTest"_s, grey);
    well.setTag(14);

    handling.hCallHEXfromColorwell(well);

    EXPECT_EQ(field->stringValue(), u"7F7F7F"_s);
}

TEST(ColorWellTags, AreReadByTheActionsOfFieldsAndWells)
{
    const Panels panels;
    const cColorWellHandling handling(panels);
    ActionRegistry actions;
    handling.registerActions(actions);
    auto* well = dynamic_cast<ColorWell*>(panels.control(u"cwRotationBackgroundColor"_s));
    auto* hexField = dynamic_cast<TextField*>(panels.control(u"tfRotationBackgroundHexColor"_s));
    ASSERT_TRUE(well && hexField);
    TextField field(u"tfTest"_s, u"FF0000"_s);
    field.setTag(23);
    ColorWell changed(u"cwTest"_s, grey);
    changed.setTag(14);

    const auto edited = actions.send(u"controlTextDidEndEditing"_s, {.tag = 23, .control = &field});
    const auto chosen = actions.send(u"hCallHEXfromColorwell"_s, {.tag = 14, .control = &changed});

    EXPECT_EQ(edited, ActionRegistry::Sent::Done);
    EXPECT_EQ(chosen, ActionRegistry::Sent::Done);
    EXPECT_EQ(well->color(), plainRed);
    EXPECT_EQ(hexField->stringValue(), u"7F7F7F"_s);
}

TEST(DrawingColor, KeepsComponentsAndSpace)
{
    EXPECT_EQ(
        DVColorConversions::NSColorToCGColor(plainRed.withAlpha(0.25)), plainRed.withAlpha(0.25)
    );
}
