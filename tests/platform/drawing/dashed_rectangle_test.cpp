// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/dashed_rectangle.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform;
using drawing::DashedRectangle;

namespace {

/// Pixels of a line across a picture: "#" opaque, "+" half, "." transparent.
std::string row(const QImage& image, int y)
{
    std::string text;
    for (int x = 0; x < image.width(); ++x) {
        const int alpha = qAlpha(image.pixel(x, y));
        text += alpha > 250 ? '#' : alpha > 0 ? '+' : '.';
    }
    return text;
}

std::string column(const QImage& image, int x)
{
    return row(image.transformed(QTransform().rotate(90)).mirrored(true, false), x);
}

constexpr graphics::Color blue = {.blue = 1};

} // namespace

TEST(DashedRectangle, HasDashesWithSquareCapsFromTheLeftAndFromBelow)
{
    const QImage image
        = drawing::pictureOf(
              {.sides = {4, 4, 20, 17}, .lineWidth = 2, .dashLength = 5, .color = blue}, {30, 25}
        )
              .toQImage();

    EXPECT_EQ(row(image, 4), "...#######...#######...##.....");
    EXPECT_EQ(row(image, 3), row(image, 4));
    EXPECT_EQ(row(image, 20), "...#######...#######...##.....");
    EXPECT_EQ(column(image, 4), "...#########...#######...");
    EXPECT_EQ(column(image, 24), "...#########...#######...");
    EXPECT_EQ(row(image, 2), "..............................");
    EXPECT_EQ(image.pixelColor(4, 4), QColor(0, 0, 255));
}

TEST(DashedRectangle, IsSoftWhereALineCoversHalfAPixel)
{
    const QImage image
        = drawing::pictureOf(
              {.sides = {4, 4, 3, 3}, .lineWidth = 3, .dashLength = 15, .color = blue}, {11, 11}
        )
              .toQImage();

    EXPECT_EQ(row(image, 2), "..+++++++..");
    EXPECT_EQ(row(image, 3), "..+#####+..");
}

TEST(DashedRectangle, ShowsThePartThatLiesInThePicture)
{
    const DashedRectangle huge
        = {.sides = {-2e9, 2, 4e9, 4e9}, .lineWidth = 2, .dashLength = 5, .color = blue};

    const QImage image = drawing::pictureOf(huge, {20, 6}).toQImage();

    EXPECT_EQ(row(image, 2), "######...#######...#");
    EXPECT_EQ(row(image, 5), "....................");
}

TEST(DashedRectangle, LeavesAPictureTransparentThatItMisses)
{
    const QImage image
        = drawing::pictureOf(
              {.sides = {40, 4, 20, 20}, .lineWidth = 2, .dashLength = 5, .color = blue}, {9, 7}
        )
              .toQImage();

    ASSERT_EQ(image.size(), QSize(9, 7));
    for (int y = 0; y < 7; ++y)
        EXPECT_EQ(row(image, y), ".........");
}
