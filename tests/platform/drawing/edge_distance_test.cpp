// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/edge_distance.h>

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <cmath>
#include <numbers>

using namespace brenvaldo::platform::drawing;

namespace {

constexpr int side = 60;
constexpr int reach = 12;

/// The half plane on the right of a line through the middle, drawn with soft edges.
std::vector<float> halfPlane(double degrees, double shift)
{
    QImage image(side, side, QImage::Format_Grayscale8);
    image.fill(0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(side / 2.0, side / 2.0);
    painter.rotate(degrees);
    painter.fillRect(QRectF(shift, -100, 200, 200), Qt::white);
    painter.end();
    std::vector<float> coverage;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            coverage.push_back(static_cast<float>(qGray(image.pixel(x, y))) / 255);
    }
    return coverage;
}

class EdgeOfAHalfPlane : public testing::TestWithParam<int>
{
};

} // namespace

TEST_P(EdgeOfAHalfPlane, IsMeasuredToAFractionOfAPixel)
{
    const double radians = GetParam() * std::numbers::pi / 180;
    for (const double shift : {0.0, 0.25, 0.6}) {
        const std::vector<float> coverage = halfPlane(GetParam(), shift);
        const EdgeDistance edge({.width = side, .height = side, .samples = coverage.data()}, reach);
        for (int y = 20; y < 40; ++y) {
            const std::vector<float> distances = edge.ofRow(y);
            for (int x = 20; x < 40; ++x) {
                const double exact = (x + 0.5 - side / 2.0) * std::cos(radians)
                    + (y + 0.5 - side / 2.0) * std::sin(radians) - shift;
                if (exact < 0.8 || exact > reach - 2)
                    continue;
                EXPECT_NEAR(distances[static_cast<std::size_t>(x)], exact, 0.35)
                    << x << ", " << y << ", " << shift;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Angles, EdgeOfAHalfPlane, testing::Values(0, 3, 10, 20, 45, 70, 87, 90, 135, 180, 200, 270, 300)
);

TEST(EdgeDistance, IsHalfAPixelInTheFirstPixelOfAHardEdge)
{
    const std::vector<float> row{0, 0, 1, 1, 1, 1, 1, 1};
    const EdgeDistance edge({.width = 8, .height = 1, .samples = row.data()}, reach);

    // A single row: what lies above and below is outside.
    for (std::size_t x = 2; x < row.size(); ++x)
        EXPECT_FLOAT_EQ(edge.ofRow(0)[x], 0.5F);
    EXPECT_LT(edge.ofRow(0)[0], 0);
}

TEST(EdgeDistance, EndsAtItsReach)
{
    const std::vector<float> whole(101 * 101, 1.0F);
    const EdgeDistance edge({.width = 101, .height = 101, .samples = whole.data()}, reach);

    EXPECT_FLOAT_EQ(edge.ofRow(50)[50], reach);
    EXPECT_FLOAT_EQ(edge.ofRow(50)[3], 3.5F);
    EXPECT_FLOAT_EQ(edge.ofRow(99)[50], 1.5F);
}
