// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/blurred_plane.h>

#include <gtest/gtest.h>

#include <cmath>

using namespace brenvaldo::platform::drawing;

namespace {

/// Ones in the right half, zeros in the left.
Plane step(int width, int height)
{
    Plane plane = emptyPlane(width, height);
    for (int y = 0; y < height; ++y)
        std::fill(plane.row(y) + width / 2, plane.row(y) + width, 1.0F);
    return plane;
}

Plane turned(const Plane& plane)
{
    Plane result = emptyPlane(plane.height, plane.width);
    for (int y = 0; y < plane.height; ++y) {
        for (int x = 0; x < plane.width; ++x)
            result.row(x)[y] = plane.row(y)[x];
    }
    return result;
}

double gaussianStep(double distance, double sigma)
{
    return 0.5 * std::erfc(-distance / (sigma * std::sqrt(2)));
}

class BlurredPlane : public testing::TestWithParam<double>
{
};

} // namespace

TEST_P(BlurredPlane, TurnsAStepIntoTheGaussiansSlope)
{
    const double sigma = GetParam();
    const int width = static_cast<int>(sigma * 10);

    const Plane plane = blurred(step(width, 3), sigma, Edge::Repeated);

    for (int x = 0; x < width; ++x)
        EXPECT_NEAR(
            static_cast<double>(plane.row(1)[x]), gaussianStep(x + 0.5 - width / 2, sigma), 0.015
        ) << x;
}

TEST_P(BlurredPlane, IsTheSameAlongBothDirections)
{
    const double sigma = GetParam();
    const Plane plane = step(static_cast<int>(sigma * 4), 31);

    const Plane across = turned(blurred(plane, sigma, Edge::Zero));
    const Plane along = blurred(turned(plane), sigma, Edge::Zero);

    for (std::size_t i = 0; i < along.samples.size(); ++i)
        ASSERT_NEAR(along.samples[i], across.samples[i], 1e-4);
}

TEST_P(BlurredPlane, KeepsTheSumOfAWrappedOne)
{
    const Plane plane = blurred(step(40, 20), GetParam(), Edge::Wrapped);

    double sum = 0;
    for (const float sample : plane.samples)
        sum += static_cast<double>(sample);
    EXPECT_NEAR(sum, 20 * 20, 0.5);
}

INSTANTIATE_TEST_SUITE_P(Sigmas, BlurredPlane, testing::Values(2.0, 10.0, 29.0, 31.0, 120.0));

TEST(BlurredPlane, OfNoSigmaStaysAsItIs)
{
    const Plane plane = step(10, 2);

    EXPECT_EQ(blurred(plane, 0, Edge::Zero).samples, plane.samples);
}
