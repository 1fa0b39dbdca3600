// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/tint_rules.h>
#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/geometry_printing.h>

#include <gtest/gtest.h>

#include <limits>

namespace brenvaldo {
namespace {

using namespace imaging;
using platform::drawing::BlendMode;
using platform::graphics::PixelRect;
using platform::graphics::PixelSize;

constexpr PixelSize photo = {1000, 800};

TintSettings percent(int mode, std::int64_t percentage)
{
    return {.color = {}, .sizeMode = u"%"_s, .percentage = percentage, .percentageMode = mode};
}

void expectSize(const TintSettings& settings, int width, int height)
{
    const TintArea area = tintArea(settings, photo, {});
    EXPECT_EQ(area.width, width);
    EXPECT_EQ(area.height, height);
}

TEST(TintOpacity, IsFullForNothingAndForTooMuch)
{
    EXPECT_EQ(tintOpacity(0), 1.0);
    EXPECT_EQ(tintOpacity(1), 0.01);
    EXPECT_EQ(tintOpacity(50), 0.5);
    EXPECT_EQ(tintOpacity(100), 1.0);
    EXPECT_EQ(tintOpacity(101), 1.0);
    EXPECT_EQ(tintOpacity(150), 1.0);
    EXPECT_EQ(tintOpacity(-1), 0.1);
}

TEST(TintBlendMode, FollowsItsOwnTable)
{
    EXPECT_EQ(tintBlendMode(0), BlendMode::Normal);
    EXPECT_EQ(tintBlendMode(1), BlendMode::PlusDarker);
    EXPECT_EQ(tintBlendMode(2), BlendMode::PlusLighter);
    EXPECT_EQ(tintBlendMode(3), BlendMode::Multiply);
    EXPECT_EQ(tintBlendMode(4), BlendMode::Overlay);
    EXPECT_EQ(tintBlendMode(5), BlendMode::Color);
    EXPECT_EQ(tintBlendMode(6), BlendMode::Normal);
    EXPECT_EQ(tintBlendMode(-1), BlendMode::Normal);
}

TEST(TintSize, IsThatOfTheFieldsAtMostThePhoto)
{
    TintSettings settings = {.color = {}, .sizeMode = u"W x H"_s, .width = 300, .height = 200};
    expectSize(settings, 300, 200);
    settings.width = 5000;
    settings.height = 5000;
    expectSize(settings, 1000, 800);
    settings.width = 40;
    settings.originalSizeState = 1;
    expectSize(settings, 1000, 800);
}

TEST(TintSize, CountsThePercentageByItsMode)
{
    expectSize(percent(0, 50), 500, 800);
    expectSize(percent(1, 50), 1000, 400);
    expectSize(percent(2, 50), 500, 300);
    expectSize(percent(3, 50), 600, 400);
    expectSize(percent(4, 50), 500, 400);
}

TEST(TintSize, IsThatOfTheFieldsInAModeThatIsNone)
{
    TintSettings settings = percent(5, 50);
    settings.width = 5000;
    settings.height = 7;
    expectSize(settings, 5000, 7);
    settings.originalSizeState = 1;
    expectSize(settings, 1000, 800);
}

TEST(TintSize, IsThePercentageThoughTheWholePhotoIsTicked)
{
    TintSettings settings = percent(4, 10);
    settings.originalSizeState = 1;
    expectSize(settings, 100, 80);
}

TEST(TintSize, TruncatesAPercentageTowardZero)
{
    const TintArea area = tintArea(percent(4, 50), {7, 9}, {});
    EXPECT_EQ(area.width, 3);
    EXPECT_EQ(area.height, 4);
    EXPECT_EQ(tintArea(percent(4, -50), {7, 9}, {}).width, -3);
}

TEST(TintSize, WrapsLikeNumbersOf32Bits)
{
    expectSize(percent(4, 4294967296 + 20), 200, 160);
    expectSize(percent(0, 5'000'000), 7050327, 800);
}

TEST(TintSize, LeavesPixelsFree)
{
    TintSettings settings = {.color = {}, .sizeMode = u"px"_s, .pixels = 120};
    expectSize(settings, 880, 680);
    settings.sizeMode = u"any other"_s;
    expectSize(settings, 880, 680);
    settings.pixels = 1200;
    expectSize(settings, -200, -400);
}

struct Anchor
{
    const char* name;
    int anchor;
    QPoint origin;
};

class TintAnchor : public testing::TestWithParam<Anchor>
{
};

/// An area of 301 x 201 pixels, moved by 10 and 20.
TEST_P(TintAnchor, PlacesTheArea)
{
    const TintSettings settings
        = {.color = {},
           .anchor = GetParam().anchor,
           .xOffset = 10,
           .yOffset = 20,
           .sizeMode = u"W x H"_s,
           .width = 301,
           .height = 201};

    EXPECT_EQ(tintArea(settings, photo, QPoint(77, 88)).origin, GetParam().origin);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    TintAnchor,
    testing::Values(
        Anchor{"TopLeft", 0, {10, 619}},
        Anchor{"Top", 1, {359, 619}},
        Anchor{"TopRight", 2, {709, 619}},
        Anchor{"Left", 3, {10, 319}},
        Anchor{"Middle", 4, {359, 319}},
        Anchor{"Right", 5, {709, 319}},
        Anchor{"BottomLeft", 6, {10, 20}},
        Anchor{"Bottom", 7, {359, 20}},
        Anchor{"BottomRight", 8, {709, 20}},
        Anchor{"AboveTheLastKeepsTheOrigin", 9, {77, 88}},
        Anchor{"NoneKeepsTheOrigin", -1, {77, 88}}
    ),
    test::CaseName()
);

TEST(TintAnchor, HalvesTowardZero)
{
    const TintSettings settings = {.color = {}, .anchor = 4, .sizeMode = u"px"_s, .pixels = -3};

    EXPECT_EQ(tintArea(settings, photo, {}).origin, QPoint(-1, -1));
}

TEST(VisiblePart, CountsFromTheTop)
{
    EXPECT_EQ(
        visiblePart({.origin = {10, 20}, .width = 300, .height = 200}, photo),
        (PixelRect{10, 580, 300, 200})
    );
}

TEST(VisiblePart, EndsWithThePhoto)
{
    EXPECT_EQ(
        visiblePart({.origin = {900, -50}, .width = 300, .height = 200}, photo),
        (PixelRect{900, 650, 100, 150})
    );
    EXPECT_EQ(visiblePart({.origin = {1000, 0}, .width = 5, .height = 5}, photo).width, 0);
    EXPECT_EQ(visiblePart({.origin = {0, -9}, .width = 5, .height = 5}, photo).height, 0);
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_EQ(visiblePart({.origin = {most, 0}, .width = most, .height = most}, photo).width, 0);
}

TEST(VisiblePart, LiesLeftOfAndBelowTheOriginOfANegativeArea)
{
    EXPECT_EQ(
        visiblePart({.origin = {600, 600}, .width = -200, .height = -400}, photo),
        (PixelRect{400, 200, 200, 400})
    );
}

TEST(FadeLine, CrossesTheAreaInFourDirections)
{
    const TintArea area = {.origin = {100, 50}, .width = 300, .height = 201};

    EXPECT_EQ(fadeLine(area, 0), (QLineF{{100, 150.5}, {400, 150.5}}));
    EXPECT_EQ(fadeLine(area, 1), (QLineF{{250, 50}, {250, 251}}));
    EXPECT_EQ(fadeLine(area, 2), (QLineF{{400, 150.5}, {100, 150.5}}));
    EXPECT_EQ(fadeLine(area, 3), (QLineF{{250, 251}, {250, 50}}));
    EXPECT_EQ(fadeLine(area, -1), (QLineF{{250, 251}, {250, 50}}));
}

TEST(FadeLine, BeginsAtTheRightOfANegativeArea)
{
    const TintArea area = {.origin = {600, 600}, .width = -200, .height = -400};

    EXPECT_EQ(fadeLine(area, 0), (QLineF{{600, 400}, {400, 400}}));
}

} // namespace
} // namespace brenvaldo
