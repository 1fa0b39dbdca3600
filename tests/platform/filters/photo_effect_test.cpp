// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/filters/photo_effect.h>

#include <support/case_name.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::graphics;
using namespace brenvaldo::platform::filters;

namespace {

struct NoirCase
{
    const char* name;
    QRgb input;
    int level;

    friend void PrintTo(const NoirCase& row, std::ostream* out) { *out << row.name; }
};

class PhotoEffectNoir : public testing::TestWithParam<NoirCase>
{
};

} // namespace

TEST_P(PhotoEffectNoir, MapsTheColour)
{
    QImage pixel(1, 1, QImage::Format_ARGB32);
    pixel.fill(GetParam().input);

    const QRgb result = photoEffectNoir(Image::fromQImage(pixel)).toQImage().pixel(0, 0);

    EXPECT_NEAR(qRed(result), GetParam().level, 1);
    EXPECT_EQ(qRed(result), qGreen(result));
    EXPECT_EQ(qRed(result), qBlue(result));
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    PhotoEffectNoir,
    testing::Values(
        NoirCase{"Black", qRgb(0, 0, 0), 0},
        NoirCase{"Dark", qRgb(64, 64, 64), 18},
        NoirCase{"Middle", qRgb(128, 128, 128), 108},
        NoirCase{"Light", qRgb(192, 192, 192), 215},
        NoirCase{"White", qRgb(255, 255, 255), 255},
        NoirCase{"Orange", qRgb(200, 100, 50), 108},
        NoirCase{"Blue", qRgb(30, 60, 120), 10},
        NoirCase{"Green", qRgb(60, 140, 60), 69},
        NoirCase{"Skin", qRgb(225, 172, 150), 208}
    ),
    brenvaldo::test::CaseName()
);

TEST(PhotoEffect, KeepsTheAlpha)
{
    QImage pixel(1, 1, QImage::Format_ARGB32);
    pixel.fill(qRgba(200, 100, 50, 77));

    EXPECT_EQ(qAlpha(photoEffectNoir(Image::fromQImage(pixel)).toQImage().pixel(0, 0)), 77);
}
