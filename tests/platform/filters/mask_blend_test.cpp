// SPDX-License-Identifier: GPL-3.0-or-later
#include "filtering.h"

using namespace brenvaldo;
using namespace brenvaldo::test;

namespace {

QRgb blended(QRgb front, QRgb back, QRgb mask)
{
    return filtered(
               u"CIBlendWithMask"_s,
               {{u"inputBackgroundImage"_s, imageOf(solidPicture(back))},
                {u"inputMaskImage"_s, imageOf(solidPicture(mask))}},
               solidPicture(front)
    )
        .pixel(0, 0);
}

} // namespace

TEST(BlendWithMask, MixesLinearLight)
{
    const QRgb middle = qRgb(128, 128, 128);
    EXPECT_TRUE(isNear(blended(qRgb(255, 255, 255), qRgb(0, 0, 0), middle), middle));
    EXPECT_TRUE(isNear(blended(qRgb(255, 0, 0), qRgb(0, 0, 255), middle), qRgb(128, 0, 229)));
    EXPECT_TRUE(
        isNear(blended(qRgb(255, 0, 0), qRgb(0, 0, 255), qRgb(64, 64, 64)), qRgb(64, 0, 249))
    );
}

TEST(BlendWithMask, CountsTheGreenOfTheMaskAlone)
{
    EXPECT_TRUE(
        isNear(blended(qRgb(255, 0, 0), qRgb(0, 0, 255), qRgb(255, 0, 255)), qRgb(0, 0, 255))
    );
    EXPECT_TRUE(isNear(blended(qRgb(255, 0, 0), qRgb(0, 0, 255), qRgb(0, 255, 0)), qRgb(255, 0, 0))
    );
}

TEST(BlendWithMask, TakesATransparentMaskAsBlack)
{
    EXPECT_TRUE(
        isNear(blended(qRgb(255, 0, 0), qRgb(0, 0, 255), qRgba(255, 255, 255, 0)), qRgb(0, 0, 255))
    );
}

TEST(BlendWithMask, LeavesTheImageWithoutAMask)
{
    const QImage result = filtered(
        u"CIBlendWithMask"_s,
        {{u"inputBackgroundImage"_s, imageOf(solidPicture(qRgb(1, 2, 3)))}},
        solidPicture(qRgb(200, 100, 50))
    );
    EXPECT_TRUE(isNear(result.pixel(0, 0), qRgb(200, 100, 50)));
}

TEST(BlendWithMask, ShowsNothingBehindTheImageWithoutABackground)
{
    const QImage result = filtered(
        u"CIBlendWithMask"_s,
        {{u"inputMaskImage"_s, imageOf(solidPicture(qRgb(128, 128, 128)))}},
        solidPicture(qRgb(255, 255, 255))
    );
    EXPECT_NEAR(qAlpha(result.pixel(0, 0)), 55, 1); // the mask's light is 0.2159
}
