// SPDX-License-Identifier: GPL-3.0-or-later
#include "marked_text.h"

#include <imaging/dv_image_handling.h>
#include <platform/foundation/literals.h>
#include <support/pixel_probe.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::test;

namespace {

/// The layer of a text turned by an angle.
QImage turnedLayer(int angle)
{
    watermark::TextWatermarkSettings settings = whiteBlock();
    settings.text = u"Abc"_s;
    settings.fontSize = 60;
    settings.placement.angle = angle;
    return wholeLayer(overlayOf(settings));
}

class TurnedTextLayer : public testing::TestWithParam<int>
{
};

double meanDifference(const QImage& first, const QImage& second)
{
    double sum = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x)
            sum += std::abs(qAlpha(first.pixel(x, y)) - qAlpha(second.pixel(x, y)));
    }
    return sum / (first.width() * first.height());
}

} // namespace

TEST_P(TurnedTextLayer, LooksLikeTheUprightOneTurnedAsAPicture)
{
    const auto picture = imaging::DVImageHandling::hRotatePictureBase(
        platform::graphics::Image::fromQImage(turnedLayer(0)), static_cast<float>(GetParam())
    );
    ASSERT_TRUE(picture.has_value());

    const QImage layer = turnedLayer(GetParam());

    ASSERT_EQ(layer.width(), picture->width());
    ASSERT_EQ(layer.height(), picture->height());
    constexpr double softerEdges = 3; // those of a picture that was drawn, then turned
    EXPECT_LT(meanDifference(layer, picture->toQImage()), softerEdges);
}

INSTANTIATE_TEST_SUITE_P(
    Angles, TurnedTextLayer, testing::Values(-150, -90, -30, -1, 1, 17, 45, 90, 123, 180, 360)
);
