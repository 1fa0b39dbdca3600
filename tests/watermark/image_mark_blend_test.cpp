// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_watermark_fixture.h"

#include <support/deep_pixels.h>
#include <support/text_printing.h>

#include <algorithm>
#include <array>
#include <cmath>

using namespace brenvaldo;
using test::ImageWatermark;
using test::PhotoBuilder;
using test::PhotoModel;

namespace {

using Rgb = std::array<double, 3>;

/// A straight colour and its opacity, from 0 to 1.
struct Pixel
{
    Rgb color;
    double alpha;
};

double light(const Rgb& color) { return 0.3 * color[0] + 0.59 * color[1] + 0.11 * color[2]; }

Rgb withLight(const Rgb& hue, double wanted)
{
    Rgb color = hue;
    for (double& part : color)
        part += wanted - light(hue);
    const double least = std::min({color[0], color[1], color[2]});
    const double most = std::max({color[0], color[1], color[2]});
    for (double& part : color) {
        if (least < 0)
            part = wanted + (part - wanted) * wanted / (wanted - least);
        if (most > 1)
            part = wanted + (part - wanted) * (1 - wanted) / (most - wanted);
    }
    return color;
}

double softLight(double below, double above)
{
    if (above <= 0.5)
        return below - (1 - 2 * above) * below * (1 - below);
    const double curve = below <= 0.25 ? ((16 * below - 12) * below + 4) * below : std::sqrt(below);
    return below + (2 * above - 1) * (curve - below);
}

/// What two opaque samples give, by the index of the operation.
double mixed(int index, double below, double above)
{
    switch (index) {
    case 3:
        return below * above;
    case 4:
        return std::abs(below - above);
    case 5:
        return below == 0 ? 0 : above >= 1 ? 1 : std::min(1.0, below / (1 - above));
    case 8:
        return below + above - 2 * below * above;
    case 9:
        return below >= 1 ? 1 : above <= 0 ? 0 : 1 - std::min(1.0, (1 - below) / above);
    case 10:
        return softLight(below, above);
    default:
        return above;
    }
}

Rgb mixedColors(int index, const Rgb& below, const Rgb& above)
{
    if (index == 6)
        return withLight(below, light(above));
    if (index == 7)
        return withLight(above, light(below));
    Rgb color;
    for (std::size_t i = 0; i < color.size(); ++i)
        color[i] = mixed(index, below[i], above[i]);
    return color;
}

Pixel added(int index, const Pixel& below, const Pixel& above)
{
    Pixel result{.color = {}, .alpha = std::min(1.0, above.alpha + below.alpha)};
    for (std::size_t i = 0; i < result.color.size(); ++i) {
        const double lower = below.color[i] * below.alpha;
        const double upper = above.color[i] * above.alpha;
        const double sum = index == 2
            ? std::min(1.0, upper + lower)
            : std::max(0.0, result.alpha - (above.alpha - upper) - (below.alpha - lower));
        result.color[i] = sum / result.alpha;
    }
    return result;
}

/// One pixel of an image laid over one of a photo.
Pixel laidOver(int index, const Pixel& below, const Pixel& above)
{
    if (index == 1 || index == 2)
        return added(index, below, above);
    const Rgb mix = mixedColors(index, below.color, above.color);
    Pixel result{.color = {}, .alpha = above.alpha + below.alpha - above.alpha * below.alpha};
    for (std::size_t i = 0; i < result.color.size(); ++i) {
        const double premultiplied = (1 - below.alpha) * above.alpha * above.color[i]
            + (1 - above.alpha) * below.alpha * below.color[i] + above.alpha * below.alpha * mix[i];
        result.color[i] = premultiplied / result.alpha;
    }
    return result;
}

struct Ground
{
    const char* name;
    PhotoModel model;
    int depth;
};

struct BlendCase
{
    int index;
    const char* percent;
    double opacity;
    Ground ground;

    friend void PrintTo(const BlendCase& row, std::ostream* out)
    {
        *out << row.index << " at " << row.percent << " on " << row.ground.name;
    }
};

std::vector<BlendCase> allCases()
{
    const std::array<Ground, 6> grounds{{
        {"Gray8", PhotoModel::Gray, 8},
        {"Gray16", PhotoModel::Gray, 16},
        {"Rgb8", PhotoModel::Rgb, 8},
        {"Rgb16", PhotoModel::Rgb, 16},
        {"Rgba8", PhotoModel::RgbAlpha, 8},
        {"Rgba16", PhotoModel::RgbAlpha, 16},
    }};
    std::vector<BlendCase> cases;
    for (int index = 0; index <= 10; ++index) {
        for (const auto& [percent, opacity] :
             {std::pair{"100", 1.0}, std::pair{"50", 0.5}, std::pair{"20", 0.2}}) {
            for (const Ground& ground : grounds)
                cases.push_back({index, percent, opacity, ground});
        }
    }
    return cases;
}

class MarkBlend : public ImageWatermark, public testing::WithParamInterface<BlendCase>
{
};

} // namespace

TEST_P(MarkBlend, FollowsItsFormula)
{
    const BlendCase& row = GetParam();
    const bool isGray = row.ground.model == PhotoModel::Gray;
    const bool hasAlpha = row.ground.model == PhotoModel::RgbAlpha;
    const QColor image = isGray ? QColor(180, 180, 180) : QColor(30, 160, 220);
    const test::Samples photo = isGray ? test::Samples{90} : test::Samples{200, 100, 50, 128};
    useImage(solidImage(20, 10, image));
    panel.tfImageTransparancy.setStringValue(QString::fromLatin1(row.percent));
    panel.pubRenderMethod.selectItemAtIndex(row.index);
    const QString path = PhotoBuilder()
                             .size(40, 30)
                             .model(row.ground.model)
                             .depth(row.ground.depth)
                             .solid(photo)
                             .format(test::PhotoFormat::Png)
                             .write(sources.path(u"a.png"_s));

    run({path});

    const auto part = [&](int i) { return photo[isGray ? 0 : std::size_t(i)] / 255.0; };
    const Pixel expected = laidOver(
        row.index,
        {.color = {part(0), part(1), part(2)}, .alpha = hasAlpha ? 128 / 255.0 : 1},
        {.color = {image.redF(), image.greenF(), image.blueF()}, .alpha = row.opacity}
    );
    const auto written = test::openedPhoto(folder.path(u"a.png"_s)).image();
    ASSERT_TRUE(written);
    EXPECT_EQ(written->bitsPerComponent(), row.ground.depth);
    EXPECT_EQ(written->hasAlpha(), hasAlpha);
    const QColor shown = QImage(folder.path(u"a.png"_s)).pixelColor(5, 5);
    const double tolerance = hasAlpha ? 2.5 / 255 : 1.0 / 255;
    EXPECT_NEAR(shown.alphaF(), expected.alpha, tolerance);
    EXPECT_NEAR(shown.redF(), expected.color[0], tolerance);
    if (!isGray) {
        EXPECT_NEAR(shown.greenF(), expected.color[1], tolerance);
        EXPECT_NEAR(shown.blueF(), expected.color[2], tolerance);
    }
}

INSTANTIATE_TEST_SUITE_P(Table, MarkBlend, testing::ValuesIn(allCases()), [](const auto& row) {
    return std::to_string(row.param.index) + "At" + row.param.percent + "On"
        + row.param.ground.name;
});

TEST_F(ImageWatermark, ShowsThePhotoThroughATranslucentImage)
{
    useImage(solidImage(20, 10, QColor(200, 40, 20, 51)));

    const QImage result = marked();

    EXPECT_NEAR(qRed(result.pixel(5, 5)), 120, 1);
    EXPECT_NEAR(qGreen(result.pixel(5, 5)), 88, 1);
    EXPECT_NEAR(qBlue(result.pixel(5, 5)), 84, 1);
}
