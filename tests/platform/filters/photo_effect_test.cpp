// SPDX-License-Identifier: GPL-3.0-or-later
#include "filtering.h"

#include <platform/filters/photo_effect.h>

#include <support/case_name.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
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

TEST_P(PhotoEffectNoir, MapsTheColor)
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

namespace {

using brenvaldo::test::filtered;
using brenvaldo::test::isNear;
using brenvaldo::test::solidPicture;

const QList<QRgb>& effectInputs()
{
    static const QList<QRgb> inputs
        = {qRgb(0, 0, 0),
           qRgb(64, 64, 64),
           qRgb(128, 128, 128),
           qRgb(192, 192, 192),
           qRgb(255, 255, 255),
           qRgb(200, 100, 50),
           qRgb(30, 60, 120),
           qRgb(60, 140, 60),
           qRgb(225, 172, 150)};
    return inputs;
}

void expectEffect(const QString& name, const QList<QRgb>& expected)
{
    ASSERT_EQ(expected.size(), effectInputs().size());
    for (qsizetype i = 0; i < expected.size(); ++i)
        EXPECT_TRUE(isNear(
            filtered(name, {}, solidPicture(effectInputs().at(i))).pixel(0, 0), expected.at(i)
        )) << name.toStdString()
           << " " << i;
}

QList<QRgb> grays(const QList<int>& levels)
{
    QList<QRgb> colors;
    for (const int level : levels)
        colors.append(qRgb(level, level, level));
    return colors;
}

} // namespace

TEST(PhotoEffects, OfBlackAndWhiteFilm)
{
    expectEffect(u"CIPhotoEffectNoir"_s, grays({0, 18, 108, 215, 255, 108, 10, 69, 208}));
    expectEffect(u"CIPhotoEffectMono"_s, grays({8, 75, 131, 185, 245, 128, 69, 113, 180}));
}

TEST(PhotoEffects, OfColourFilm)
{
    expectEffect(
        u"CIPhotoEffectChrome"_s,
        {qRgb(0, 0, 3),
         qRgb(59, 58, 62),
         qRgb(132, 131, 132),
         qRgb(203, 202, 201),
         qRgb(255, 255, 255),
         qRgb(229, 94, 31),
         qRgb(19, 55, 141),
         qRgb(40, 152, 43),
         qRgb(242, 178, 148)}
    );
    expectEffect(
        u"CIPhotoEffectProcess"_s,
        {qRgb(3, 5, 18),
         qRgb(52, 67, 88),
         qRgb(115, 131, 139),
         qRgb(181, 193, 188),
         qRgb(237, 250, 247),
         qRgb(181, 105, 81),
         qRgb(25, 63, 128),
         qRgb(54, 138, 91),
         qRgb(208, 175, 157)}
    );
    expectEffect(
        u"CIPhotoEffectFade"_s,
        {qRgb(23, 23, 26),
         qRgb(85, 85, 86),
         qRgb(134, 134, 134),
         qRgb(181, 181, 180),
         qRgb(237, 237, 235),
         qRgb(162, 118, 97),
         qRgb(66, 81, 110),
         qRgb(100, 136, 101),
         qRgb(194, 169, 158)}
    );
    expectEffect(
        u"CIPhotoEffectInstant"_s,
        {qRgb(13, 13, 28),
         qRgb(79, 73, 80),
         qRgb(141, 132, 125),
         qRgb(199, 189, 171),
         qRgb(250, 242, 224),
         qRgb(184, 111, 86),
         qRgb(54, 71, 106),
         qRgb(92, 133, 90),
         qRgb(216, 174, 148)}
    );
    expectEffect(
        u"CIPhotoEffectTransfer"_s,
        {qRgb(13, 10, 18),
         qRgb(83, 75, 64),
         qRgb(145, 135, 115),
         qRgb(203, 193, 167),
         qRgb(255, 247, 219),
         qRgb(199, 112, 64),
         qRgb(53, 71, 99),
         qRgb(88, 142, 68),
         qRgb(225, 177, 138)}
    );
}
