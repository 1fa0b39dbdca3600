// SPDX-License-Identifier: GPL-3.0-or-later
#include "filtering.h"

using namespace brenvaldo;
using namespace brenvaldo::test;
using platform::filters::Filter;
using platform::filters::Point;
using platform::graphics::Color;

namespace {

Filter filterNamed(const QString& name)
{
    auto filter = Filter::filterWithName(name);
    if (!filter)
        qFatal("no such filter");
    return *filter;
}

double number(const Filter& filter, const QString& input)
{
    const auto value = filter.value(input);
    return value ? std::get<double>(*value) : -1;
}

Point centre(const Filter& filter)
{
    const auto value = filter.value(u"inputCenter"_s);
    return value ? std::get<Point>(*value) : Point{};
}

} // namespace

TEST(Filter, IsKnownByItsName)
{
    for (const QString& name :
         {u"CIPhotoEffectNoir"_s,
          u"CIPhotoEffectMono"_s,
          u"CIPhotoEffectChrome"_s,
          u"CIPhotoEffectProcess"_s,
          u"CIPhotoEffectFade"_s,
          u"CIPhotoEffectInstant"_s,
          u"CIPhotoEffectTransfer"_s,
          u"CICircularScreen"_s,
          u"CIDotScreen"_s,
          u"CILineScreen"_s,
          u"CIColorInvert"_s,
          u"CIColorMonochrome"_s,
          u"CIColorPosterize"_s,
          u"CISepiaTone"_s,
          u"CIColorControls"_s,
          u"CIGaussianBlur"_s,
          u"CIUnsharpMask"_s,
          u"CIBlendWithMask"_s})
        EXPECT_TRUE(Filter::filterWithName(name)) << name.toStdString();
    EXPECT_FALSE(Filter::filterWithName(u"CIColourInvert"_s));
    EXPECT_FALSE(Filter::filterWithName({}));
}

TEST(Filter, HasDefaults)
{
    for (const QString& name : {u"CICircularScreen"_s, u"CIDotScreen"_s, u"CILineScreen"_s}) {
        const Filter screen = filterNamed(name);
        EXPECT_EQ(centre(screen), (Point{150, 150}));
        EXPECT_EQ(number(screen, u"inputWidth"_s), 6);
        EXPECT_EQ(number(screen, u"inputSharpness"_s), 0.7);
    }
    EXPECT_EQ(number(filterNamed(u"CIDotScreen"_s), u"inputAngle"_s), 0);
    EXPECT_EQ(number(filterNamed(u"CILineScreen"_s), u"inputAngle"_s), 0);
    EXPECT_FALSE(filterNamed(u"CICircularScreen"_s).value(u"inputAngle"_s));
    const Filter monochrome = filterNamed(u"CIColorMonochrome"_s);
    EXPECT_EQ(
        std::get<Color>(*monochrome.value(u"inputColor"_s)),
        (Color{.red = 0.6, .green = 0.45, .blue = 0.3})
    );
    EXPECT_EQ(number(monochrome, u"inputIntensity"_s), 1);
    EXPECT_EQ(number(filterNamed(u"CIColorPosterize"_s), u"inputLevels"_s), 6);
    EXPECT_EQ(number(filterNamed(u"CISepiaTone"_s), u"inputIntensity"_s), 1);
    EXPECT_EQ(number(filterNamed(u"CIGaussianBlur"_s), u"inputRadius"_s), 10);
    EXPECT_EQ(number(filterNamed(u"CIUnsharpMask"_s), u"inputRadius"_s), 2.5);
    EXPECT_EQ(number(filterNamed(u"CIUnsharpMask"_s), u"inputIntensity"_s), 0.5);
    const Filter controls = filterNamed(u"CIColorControls"_s);
    EXPECT_EQ(number(controls, u"inputSaturation"_s), 1);
    EXPECT_EQ(number(controls, u"inputBrightness"_s), 0);
    EXPECT_EQ(number(controls, u"inputContrast"_s), 1);
}

TEST(Filter, LosesItsValuesToTheDefaultsButNotItsImage)
{
    Filter controls = filterNamed(u"CIColorControls"_s);
    controls.setValue(u"inputImage"_s, imageOf(solidPicture(qRgb(1, 2, 3))))
        .setValue(u"inputBrightness"_s, 1.0);
    EXPECT_EQ(number(controls, u"inputBrightness"_s), 1);

    controls.setDefaults();

    EXPECT_EQ(number(controls, u"inputBrightness"_s), 0);
    EXPECT_TRUE(controls.outputImage());
}

TEST(Filter, IgnoresInputsThatItDoesNotKnow)
{
    Filter blur = filterNamed(u"CIGaussianBlur"_s);
    blur.setValue(u"inputRadius"_s, Point{1, 2})
        .setValue(u"inputAngle"_s, 3.0)
        .setValue(u"inputMaskImage"_s, imageOf(solidPicture(0)));

    EXPECT_EQ(number(blur, u"inputRadius"_s), 10);
    EXPECT_FALSE(blur.value(u"inputAngle"_s));
    EXPECT_FALSE(blur.value(u"inputMaskImage"_s));
}

TEST(Filter, GivesNothingWithoutAnImage)
{
    EXPECT_FALSE(filterNamed(u"CIColorInvert"_s).outputImage());
}
