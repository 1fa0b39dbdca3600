// SPDX-License-Identifier: GPL-3.0-or-later
#include "filtering.h"

using namespace brenvaldo;
using namespace brenvaldo::test;
using platform::graphics::Color;

namespace {

struct ColorCase
{
    QRgb input;
    QRgb expected;
};

void expectColors(const QString& name, const NamedInputs& inputs, const QList<ColorCase>& cases)
{
    for (const ColorCase& row : cases)
        EXPECT_TRUE(
            isNear(filtered(name, inputs, solidPicture(row.input)).pixel(0, 0), row.expected)
        ) << name.toStdString();
}

} // namespace

TEST(ColorInvert, InvertsEncodedValues)
{
    expectColors(
        u"CIColorInvert"_s,
        {},
        {{qRgb(128, 128, 128), qRgb(127, 127, 127)},
         {qRgb(200, 100, 50), qRgb(55, 155, 205)},
         {qRgb(30, 60, 120), qRgb(225, 195, 135)}}
    );
}

TEST(ColorMonochrome, MapsToShadesOfItsDefaultColour)
{
    expectColors(
        u"CIColorMonochrome"_s,
        {},
        {{qRgb(128, 128, 128), qRgb(74, 54, 34)},
         {qRgb(200, 100, 50), qRgb(74, 54, 34)},
         {qRgb(30, 60, 120), qRgb(33, 23, 12)},
         {qRgb(255, 255, 255), qRgb(153, 115, 76)}}
    );
}

TEST(ColorMonochrome, MixesByItsIntensity)
{
    expectColors(
        u"CIColorMonochrome"_s,
        {{u"inputIntensity"_s, 0.5}},
        {{qRgb(128, 128, 128), qRgb(105, 100, 96)},
         {qRgb(200, 100, 50), qRgb(154, 81, 43)},
         {qRgb(30, 60, 120), qRgb(32, 45, 87)},
         {qRgb(255, 255, 255), qRgb(212, 201, 194)}}
    );
}

TEST(ColorMonochrome, TakesItsColourAndIgnoresTheAlphaOfIt)
{
    const Color green = {.red = 0.2, .green = 1, .blue = 0.4, .alpha = 0.1};
    expectColors(
        u"CIColorMonochrome"_s,
        {{u"inputColor"_s, green}},
        {{qRgb(255, 255, 255), qRgb(51, 255, 102)}, {qRgb(0, 0, 0), qRgb(0, 0, 0)}}
    );
}

TEST(ColorPosterize, KeepsAsManyLevels)
{
    const auto expectLevels = [](const NamedInputs& inputs, const QList<ColorCase>& cases) {
        expectColors(u"CIColorPosterize"_s, inputs, cases);
    };
    const QRgb gray = qRgb(128, 128, 128);
    const QRgb orange = qRgb(200, 100, 50);
    const QRgb blue = qRgb(30, 60, 120);
    expectLevels(
        {{u"inputLevels"_s, 2.0}},
        {{gray, qRgb(255, 255, 255)}, {orange, qRgb(255, 0, 0)}, {blue, qRgb(0, 0, 0)}}
    );
    expectLevels(
        {{u"inputLevels"_s, 4.0}},
        {{gray, qRgb(170, 170, 170)}, {orange, qRgb(170, 85, 85)}, {blue, qRgb(0, 85, 85)}}
    );
    expectLevels(
        {}, {{gray, qRgb(153, 153, 153)}, {orange, qRgb(204, 102, 51)}, {blue, qRgb(51, 51, 102)}}
    );
    expectLevels({{u"inputLevels"_s, 0.0}}, {{orange, qRgb(255, 0, 0)}});
    expectLevels({{u"inputLevels"_s, 3.6}}, {{orange, qRgb(170, 85, 85)}});
}

TEST(SepiaTone, TonesByItsIntensity)
{
    const QRgb gray = qRgb(128, 128, 128);
    const QRgb orange = qRgb(200, 100, 50);
    const QRgb blue = qRgb(30, 60, 120);
    const QRgb white = qRgb(255, 255, 255);
    expectColors(
        u"CISepiaTone"_s,
        {},
        {{gray, qRgb(173, 154, 120)},
         {orange, qRgb(165, 147, 114)},
         {blue, qRgb(81, 72, 56)},
         {white, qRgb(255, 255, 239)}}
    );
    expectColors(
        u"CISepiaTone"_s,
        {{u"inputIntensity"_s, 0.8}},
        {{gray, qRgb(164, 149, 122)},
         {orange, qRgb(172, 137, 101)},
         {blue, qRgb(70, 69, 69)},
         {white, qRgb(255, 255, 242)}}
    );
    expectColors(
        u"CISepiaTone"_s,
        {{u"inputIntensity"_s, 0.5}},
        {{gray, qRgb(150, 141, 124)},
         {orange, qRgb(182, 123, 82)},
         {blue, qRgb(55, 66, 88)},
         {white, qRgb(255, 255, 247)}}
    );
}

TEST(ColorControls, WorkInLinearLight)
{
    const auto expectControls
        = [](double saturation, double brightness, double contrast, const QList<ColorCase>& cases) {
              expectColors(
                  u"CIColorControls"_s,
                  {{u"inputSaturation"_s, saturation},
                   {u"inputBrightness"_s, brightness},
                   {u"inputContrast"_s, contrast}},
                  cases
              );
          };
    const QRgb gray = qRgb(128, 128, 128);
    const QRgb orange = qRgb(200, 100, 50);
    const QRgb blue = qRgb(30, 60, 120);
    expectControls(1, 0, 1.2, {{gray, qRgb(111, 111, 111)}, {orange, qRgb(202, 65, 0)}});
    expectControls(1, 0.1, 1, {{gray, qRgb(152, 152, 152)}, {blue, qRgb(94, 106, 146)}});
    expectControls(0, 0, 1, {{orange, qRgb(128, 128, 128)}, {blue, qRgb(62, 62, 62)}});
    expectControls(1.5, 0, 1, {{orange, qRgb(226, 81, 0)}});
    expectControls(1.2, 0.05, 1.1, {{orange, qRgb(221, 99, 0)}, {gray, qRgb(135, 135, 135)}});
}

TEST(ColorFilters, WorkOnStraightColourAndKeepTheAlpha)
{
    for (const QString& name :
         {u"CIColorInvert"_s,
          u"CIColorMonochrome"_s,
          u"CIColorPosterize"_s,
          u"CISepiaTone"_s,
          u"CIPhotoEffectChrome"_s}) {
        const QRgb opaque = filtered(name, {}, solidPicture(qRgb(200, 100, 50))).pixel(0, 0);
        const QImage half = filtered(name, {}, solidPicture(qRgba(200, 100, 50, 102)))
                                .convertToFormat(QImage::Format_ARGB32);
        EXPECT_EQ(qAlpha(half.pixel(0, 0)), 102);
        EXPECT_NEAR(qRed(half.pixel(0, 0)), qRed(opaque), 3) << name.toStdString();
        EXPECT_NEAR(qBlue(half.pixel(0, 0)), qBlue(opaque), 3) << name.toStdString();
    }
}

TEST(ColorFilters, GiveColourToAGreyPicture)
{
    const QImage gray
        = solidPicture(qRgb(128, 128, 128)).convertToFormat(QImage::Format_Grayscale8);

    EXPECT_TRUE(isNear(filtered(u"CISepiaTone"_s, {}, gray).pixel(0, 0), qRgb(173, 154, 120)));
}

TEST(ColorFilters, ChangeEveryPixelOfAWidePicture)
{
    constexpr int width = 301; // no multiple of any block
    QImage picture(width, 3, QImage::Format_RGB32);
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < width; ++x)
            picture.setPixel(x, y, qRgb(x % 256, y * 50, 255 - x % 256));
    }

    const QImage inverted = filtered(u"CIColorInvert"_s, {}, picture);

    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < width; ++x)
            ASSERT_TRUE(isNear(inverted.pixel(x, y), qRgb(255 - x % 256, 255 - y * 50, x % 256)))
                << x;
    }
}
