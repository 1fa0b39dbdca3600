// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <watermark/image_mark_rules.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::watermark;
using platform::drawing::BlendMode;
using platform::drawing::FadeAlong;
using platform::drawing::FadeInward;
using platform::drawing::FadeOutward;
using platform::graphics::PixelSize;

namespace {

struct InsetCase
{
    const char* name;
    int anchor;
    QPoint origin;

    friend void PrintTo(const InsetCase& row, std::ostream* out) { *out << row.name; }
};

class InsetOrigin : public testing::TestWithParam<InsetCase>
{
};

} // namespace

TEST_P(InsetOrigin, PointsIntoThePhotoFromTheEdgeOfTheAnchor)
{
    const Inset inset{.anchor = GetParam().anchor, .xOffset = 6, .yOffset = 4};

    EXPECT_EQ(insetOrigin(inset, {101, 61}, {20, 10}), GetParam().origin);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    InsetOrigin,
    testing::Values(
        InsetCase{"TopLeft", 0, {6, 47}},
        InsetCase{"TopCentre", 1, {37, 47}},
        InsetCase{"TopRight", 2, {75, 47}},
        InsetCase{"MiddleLeft", 3, {6, 23}},
        InsetCase{"Centre", 4, {46, 29}},
        InsetCase{"MiddleRight", 5, {75, 23}},
        InsetCase{"BottomLeft", 6, {6, 4}},
        InsetCase{"BottomCentre", 7, {37, 4}},
        InsetCase{"BottomRight", 8, {75, 4}}
    ),
    test::CaseName()
);

TEST(InsetOrigin, CutsFractionsOffTowardZero)
{
    const PixelSize photo{.width = 10, .height = 10};
    const PixelSize image{.width = 21, .height = 25};

    EXPECT_EQ(insetOrigin({.anchor = 4}, photo, image), QPoint(-5, -7));
    EXPECT_EQ(insetOrigin({.anchor = 1}, photo, image), QPoint(-5, -15));
    EXPECT_EQ(insetOrigin({.anchor = 3}, photo, image), QPoint(0, -7));
}

TEST(InsetOrigin, IsNotThereForAnAnchorThatIsNone)
{
    EXPECT_EQ(insetOrigin({.anchor = 9}, {10, 10}, {2, 2}), std::nullopt);
    EXPECT_EQ(insetOrigin({.anchor = -1}, {10, 10}, {2, 2}), std::nullopt);
}

namespace {

struct ScaleCase
{
    const char* name;
    ScaleRule rule;
    QString text;
    std::optional<float> scaling;

    friend void PrintTo(const ScaleCase& row, std::ostream* out) { *out << row.name; }
};

class ScaleFactor : public testing::TestWithParam<ScaleCase>
{
};

} // namespace

TEST_P(ScaleFactor, IsATextOfSixDecimals)
{
    const ScaleCase& row = GetParam();

    const QString text = scaleFactorText(row.rule, {1200, 900}, {400, 500});

    EXPECT_EQ(text, row.text);
    EXPECT_EQ(scalingOf(text), row.scaling);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    ScaleFactor,
    testing::Values(
        ScaleCase{"Zero", {0, 0}, u"0.000000"_s, {}},
        ScaleCase{"ZeroOfTheWidth", {0, 1}, u"0.000000"_s, {}},
        ScaleCase{"ZeroOfItsOwnSize", {0, 3}, u"0.000000"_s, {}},
        ScaleCase{"HundredIsAFactorOfOne", {100, 0}, u"1.000000"_s, 1.0F},
        ScaleCase{"Third", {33, 0}, u"0.330000"_s, 0.33F},
        ScaleCase{"TenThousandStandsForAsItIs", {10000, 0}, u"100.000000"_s, {}},
        ScaleCase{"HalfOfTheWidth", {50, 1}, u"1.500000"_s, 1.5F},
        ScaleCase{"HalfOfTheHeight", {50, 2}, u"0.900000"_s, 0.9F},
        ScaleCase{"ThirdOfTheHeightIsNotTruncated", {33, 2}, u"0.594000"_s, 0.594F},
        ScaleCase{"OwnSize", {100, 3}, u"1000000.000000"_s, {}},
        ScaleCase{"NoRow", {40, -1}, u"1000000.000000"_s, {}},
        ScaleCase{"Negative", {-50, 0}, u"-0.500000"_s, -0.5F}
    ),
    test::CaseName()
);

TEST(ScaleFactor, OfTheWidthKeepsItsFractions)
{
    EXPECT_EQ(scaleFactorText({33, 1}, {101, 10}, {100, 100}), u"0.333300"_s);
}

TEST(BlendModeOfIndex, FollowsTheTable)
{
    EXPECT_EQ(blendModeOfIndex(0), BlendMode::Normal);
    EXPECT_EQ(blendModeOfIndex(1), BlendMode::PlusDarker);
    EXPECT_EQ(blendModeOfIndex(2), BlendMode::PlusLighter);
    EXPECT_EQ(blendModeOfIndex(3), BlendMode::Multiply);
    EXPECT_EQ(blendModeOfIndex(4), BlendMode::Difference);
    EXPECT_EQ(blendModeOfIndex(5), BlendMode::ColorDodge);
    EXPECT_EQ(blendModeOfIndex(6), BlendMode::Luminosity);
    EXPECT_EQ(blendModeOfIndex(7), BlendMode::Color);
    EXPECT_EQ(blendModeOfIndex(8), BlendMode::Exclusion);
    EXPECT_EQ(blendModeOfIndex(9), BlendMode::ColorBurn);
    EXPECT_EQ(blendModeOfIndex(10), BlendMode::SoftLight);
    EXPECT_EQ(blendModeOfIndex(11), std::nullopt);
    EXPECT_EQ(blendModeOfIndex(-1), std::nullopt);
}

TEST(FadeExtent, IsNeverZero)
{
    EXPECT_EQ(fadeExtentOf(0), 0.01F);
    EXPECT_EQ(fadeExtentOf(0.005F), 0.005F);
    EXPECT_EQ(fadeExtentOf(1), 1.0F);
}

TEST(FadeAngle, IsZeroBeyondAFullTurn)
{
    EXPECT_EQ(fadeAngleOf(400), 0);
    EXPECT_EQ(fadeAngleOf(361), 0);
    EXPECT_EQ(fadeAngleOf(360), 360);
    EXPECT_EQ(fadeAngleOf(45), 45);
    EXPECT_EQ(fadeAngleOf(-360), -360);
    EXPECT_EQ(fadeAngleOf(-361), 0);
}

namespace {

struct LinearCase
{
    const char* name;
    int angle;
    QPointF whole;
    QPointF gone;

    friend void PrintTo(const LinearCase& row, std::ostream* out) { *out << row.name; }
};

class LinearFade : public testing::TestWithParam<LinearCase>
{
};

} // namespace

TEST_P(LinearFade, RunsFromTheCornerOfItsAngle)
{
    const LinearCase& row = GetParam();

    const auto mask = fadeMask(
        {.shape = FadeShape::Linear, .extent = 0.5, .angle = row.angle}, {200, 100}, Lane::Single
    );

    EXPECT_EQ(mask.size, QSizeF(200, 100));
    const auto& fade = std::get<FadeAlong>(mask.shape);
    EXPECT_NEAR(fade.whole.x(), row.whole.x(), 1e-9);
    EXPECT_NEAR(fade.whole.y(), row.whole.y(), 1e-9);
    EXPECT_NEAR(fade.gone.x(), row.gone.x(), 1e-9);
    EXPECT_NEAR(fade.gone.y(), row.gone.y(), 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    LinearFade,
    testing::Values(
        LinearCase{"ToTheRight", 0, {0, 50}, {100, 50}},
        LinearCase{"Upward", 90, {100, 0}, {100, 50}},
        LinearCase{"ToTheLeft", 180, {200, 50}, {100, 50}},
        LinearCase{"Downward", -90, {100, 100}, {100, 50}},
        LinearCase{"Slanting", 45, {25, -25}, {100, 50}}
    ),
    test::CaseName()
);

TEST(RadialFade, EndsTwoPixelsBeforeTheShorterSide)
{
    const auto mask
        = fadeMask({.shape = FadeShape::Radial, .extent = 0.5}, {200, 100}, Lane::Single);

    const auto& fade = std::get<FadeOutward>(mask.shape);
    EXPECT_EQ(fade.centre, QPointF(100, 50));
    EXPECT_DOUBLE_EQ(fade.radius, 24);
    const auto upright
        = fadeMask({.shape = FadeShape::Radial, .extent = 0.5}, {60, 100}, Lane::Pattern);
    EXPECT_DOUBLE_EQ(std::get<FadeOutward>(upright.shape).radius, 14);
}

TEST(RadialFade, InvertedHasAWholeRim)
{
    const FadeRule rule{.shape = FadeShape::InvertedRadial, .extent = 0.5};

    const auto single = std::get<FadeInward>(fadeMask(rule, {200, 100}, Lane::Single).shape);
    EXPECT_EQ(single.centre, QPointF(100, 50));
    EXPECT_DOUBLE_EQ(single.outer, 50);
    EXPECT_DOUBLE_EQ(single.inner, 25);

    const auto pattern = std::get<FadeInward>(fadeMask(rule, {60, 100}, Lane::Pattern).shape);
    EXPECT_DOUBLE_EQ(pattern.outer, 30);
    EXPECT_DOUBLE_EQ(pattern.inner, 0.1);
}

TEST(TurnedPattern, IsASquareThatSurvivesTurning)
{
    EXPECT_EQ(sideThatSurvivesTurning(600, 800), 1002);
    EXPECT_EQ(sideThatSurvivesTurning(601, 801), 1002);
    EXPECT_EQ(sideThatSurvivesTurning(100, 60), 118);
}
