// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/ground.h>
#include <platform/drawing/paint.h>
#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/color_profiles.h>
#include <support/geometry_printing.h>
#include <support/pixel_probe.h>
#include <support/rgb_space.h>
#include <support/temporary_folder.h>

#include <platform/graphics/image_node.h>

#include <gmock/gmock.h>

using namespace brenvaldo;
using namespace brenvaldo::test;
using platform::drawing::BlendMode;
using platform::drawing::laidOn;
using platform::drawing::LinearGradient;
using platform::drawing::painted;
using platform::drawing::PaintedShape;
using platform::graphics::Color;
using platform::graphics::Image;
using testing::ElementsAre;

namespace {

using Pixel = std::vector<double>;

constexpr Color white{.red = 1, .green = 1, .blue = 1};

Color bytes(int red, int green, int blue)
{
    return {.red = red / 255.0, .green = green / 255.0, .blue = blue / 255.0};
}

Image photoOf(const TemporaryFolder& folder, PhotoModel model, int depth, const Samples& samples)
{
    return *openedPhoto(PhotoBuilder()
                            .format(PhotoFormat::Tiff)
                            .size(6, 4)
                            .model(model)
                            .depth(depth)
                            .solid(samples)
                            .write(folder.path(u"a.tiff"_s)))
                .image({.access = platform::codecs::SourceAccess::Random});
}

Pixel pixel(const Image& image, int x, int y)
{
    vips::VImage pixels = image.node()->pixels;
    return pixels.getpoint(x, y);
}

QPainterPath all()
{
    QPainterPath path;
    path.addRect(0, 0, 6, 4);
    return path;
}

LinearGradient fading(const Color& color, QPointF start, QPointF end)
{
    return {
        .fade = {.from = color, .to = platform::drawing::clearColor}, .start = start, .end = end};
}

void expectNear(const Pixel& actual, const Pixel& expected, double tolerance = 1)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i)
        EXPECT_NEAR(actual[i], expected[i], tolerance) << i;
}

struct BlendCase
{
    const char* name;
    BlendMode mode;
    Pixel full; ///< 30, 160, 220 on 200, 100, 50
    Pixel half; ///< the same at an opacity of a half
    Pixel translucent; ///< both half opaque; straight
};

class PaintBlend : public testing::TestWithParam<BlendCase>
{
protected:
    TemporaryFolder folder;
};

const BlendCase blendCases[] = {
    {"Normal", BlendMode::Normal, {30, 160, 220}, {115, 130, 135}, {87, 140, 163, 191}},
    {"Darken", BlendMode::Darken, {30, 100, 50}, {115, 100, 50}, {87, 120, 107, 191}},
    {"Lighten", BlendMode::Lighten, {200, 160, 220}, {200, 130, 135}, {143, 140, 163, 191}},
    {"Multiply", BlendMode::Multiply, {24, 63, 43}, {112, 81, 47}, {85, 108, 104, 191}},
    {"Overlay", BlendMode::Overlay, {158, 125, 86}, {179, 113, 68}, {129, 128, 119, 191}},
    {"Color", BlendMode::Color, {27, 157, 217}, {113, 128, 133}, {86, 139, 162, 191}},
};

} // namespace

TEST_P(PaintBlend, MixesColoursAt8And16Bits)
{
    for (const int depth : {8, 16}) {
        const double unit = depth == 16 ? 257 : 1;
        const Image photo = photoOf(folder, PhotoModel::Rgb, depth, {200, 100, 50});
        const auto scaled = [unit](Pixel pixel) {
            for (double& sample : pixel)
                sample *= unit;
            return pixel;
        };
        PaintedShape paint{.shape = all(), .paint = bytes(30, 160, 220), .mode = GetParam().mode};
        expectNear(pixel(painted(photo, paint), 3, 2), scaled(GetParam().full), unit);
        paint.opacity = 0.5;
        expectNear(pixel(painted(photo, paint), 3, 2), scaled(GetParam().half), unit);
    }
}

TEST_P(PaintBlend, MixesColoursOfTranslucentPixels)
{
    const Image photo = photoOf(folder, PhotoModel::RgbAlpha, 8, {200, 100, 50, 128});
    const PaintedShape paint{
        .shape = all(), .paint = bytes(30, 160, 220), .mode = GetParam().mode, .opacity = 0.5};
    expectNear(pixel(painted(photo, paint), 3, 2), GetParam().translucent, 1.5);
}

INSTANTIATE_TEST_SUITE_P(Of, PaintBlend, testing::ValuesIn(blendCases), [](const auto& blend) {
    return std::string(blend.param.name);
});

TEST(PaintedShape, StaysInsideOfItsShape)
{
    const TemporaryFolder folder;
    const Image photo = photoOf(folder, PhotoModel::Rgb, 8, {10, 20, 30});
    QPainterPath left;
    left.addRect(0, 0, 2, 4);
    const Image result = painted(photo, {.shape = left, .paint = bytes(200, 210, 220)});

    EXPECT_EQ(pixel(result, 1, 3), (Pixel{200, 210, 220}));
    EXPECT_EQ(pixel(result, 2, 3), (Pixel{10, 20, 30}));
}

TEST(PaintedShape, CoversSoftEdgesInPart)
{
    const TemporaryFolder folder;
    const Image photo = photoOf(folder, PhotoModel::Rgb, 8, {0, 0, 0});
    QPainterPath path;
    path.addRect(0.5, 0, 3, 4);
    expectNear(pixel(painted(photo, {.shape = path, .paint = white}), 0, 1), {128, 128, 128}, 1.5);
}

TEST(PaintedShape, FillsTransparentPixels)
{
    const TemporaryFolder folder;
    const Image photo = photoOf(folder, PhotoModel::RgbAlpha, 8, {10, 20, 30, 0});
    const Color color = bytes(200, 210, 220);

    EXPECT_EQ(
        pixel(painted(photo, {.shape = all(), .paint = color}), 1, 1), (Pixel{200, 210, 220, 255})
    );
    expectNear(
        pixel(painted(photo, {.shape = all(), .paint = color, .opacity = 0.5}), 1, 1),
        {200, 210, 220, 128}
    );
    EXPECT_EQ(
        pixel(painted(photo, {.shape = all(), .paint = color, .opacity = 0}), 1, 1),
        (Pixel{0, 0, 0, 0})
    );
}

TEST(PaintedShape, IsAsTranslucentAsItsColour)
{
    const TemporaryFolder folder;
    const Image photo = photoOf(folder, PhotoModel::Rgb, 8, {0, 0, 0});
    const PaintedShape paint{.shape = all(), .paint = white.withAlpha(0.5), .opacity = 0.5};
    expectNear(pixel(painted(photo, paint), 1, 1), {64, 64, 64});
}

TEST(PaintedShape, IsGreyOnGreyPhotos)
{
    const TemporaryFolder folder;
    const Color red = bytes(255, 0, 0);
    for (const PhotoModel model : {PhotoModel::Gray, PhotoModel::GrayAlpha}) {
        const Image photo = photoOf(folder, model, 8, {60, 255});
        EXPECT_NEAR(
            pixel(painted(photo, {.shape = all(), .paint = red}), 1, 1)[0],
            255 * grayOf({1, 0, 0}, srgb, 0),
            3
        );
        const PaintedShape coloured{.shape = all(), .paint = red, .mode = BlendMode::Color};
        EXPECT_EQ(pixel(painted(photo, coloured), 1, 1)[0], 60);
    }
}

TEST(PaintedShape, MixesTheLightOfInks)
{
    const TemporaryFolder folder;
    const Image photo = photoOf(folder, PhotoModel::Cmyk, 8, {100, 50, 20, 10});
    const PaintedShape darkened{.shape = all(), .paint = white, .mode = BlendMode::Darken};
    expectNear(pixel(painted(photo, darkened), 1, 1), {100, 50, 20, 10});
    const PaintedShape lightened{.shape = all(), .paint = white, .mode = BlendMode::Lighten};
    expectNear(pixel(painted(photo, lightened), 1, 1), {0, 0, 0, 0});
}

TEST(PaintedShape, FadesFromItsColourToTransparentBlack)
{
    const TemporaryFolder folder;
    const Image photo = photoOf(folder, PhotoModel::Rgb, 8, {255, 255, 255});
    const PaintedShape paint{.shape = all(), .paint = fading(bytes(255, 0, 0), {0.5, 0}, {4.5, 0})};
    const Image result = painted(photo, paint);

    expectNear(pixel(result, 0, 1), {255, 0, 0});
    expectNear(pixel(result, 1, 1), {207, 64, 64});
    expectNear(pixel(result, 2, 1), {191, 128, 128});
    expectNear(pixel(result, 3, 1), {207, 191, 191});
    expectNear(pixel(result, 5, 1), {255, 255, 255});
}

TEST(PaintedShape, LeavesWhatLiesBeyondTheEndsOfItsFade)
{
    const TemporaryFolder folder;
    const Image photo = photoOf(folder, PhotoModel::Rgb, 8, {9, 9, 9});
    PaintedShape paint{.shape = all(), .paint = fading(white, {0, 3}, {0, 1})};
    const Image result = painted(photo, paint);
    EXPECT_EQ(pixel(result, 0, 3), (Pixel{9, 9, 9}));
    EXPECT_NE(pixel(result, 0, 2), (Pixel{9, 9, 9}));
    EXPECT_EQ(pixel(result, 0, 0), (Pixel{9, 9, 9}));

    paint.paint = fading(white, {0, 3}, {0, 3});
    EXPECT_EQ(pixel(painted(photo, paint), 0, 2), (Pixel{9, 9, 9}));
}

TEST(PaintedShape, HasItsColourInTheProfileOfThePhoto)
{
    const TemporaryFolder folder;
    const Image photo = *openedPhoto(PhotoBuilder()
                                         .format(PhotoFormat::Png)
                                         .solid({0, 0, 0})
                                         .iccProfile(profileOf(displayP3))
                                         .write(folder.path(u"a.png"_s)))
                             .image({.access = platform::codecs::SourceAccess::Random});
    const Components expected = converted({1, 0, 0}, srgb, displayP3);
    expectNear(
        pixel(painted(photo, {.shape = all(), .paint = bytes(255, 0, 0)}), 1, 1),
        {255 * expected[0], 255 * expected[1], 255 * expected[2]},
        2
    );
}

TEST(Ground, LiesAroundAPicture)
{
    const TemporaryFolder folder;
    const Image photo = photoOf(folder, PhotoModel::Rgb, 16, {10, 20, 30});
    const Image result = laidOn({.size = {10, 9}, .color = bytes(255, 0, 51)}, photo, {3, 2});

    EXPECT_EQ(result.pixelSize(), (platform::graphics::PixelSize{10, 9}));
    EXPECT_EQ(pixel(result, 2, 2), (Pixel{65535, 0, 51 * 257}));
    EXPECT_EQ(pixel(result, 3, 2), (Pixel{10 * 257, 20 * 257, 30 * 257}));
    EXPECT_EQ(pixel(result, 8, 5), (Pixel{10 * 257, 20 * 257, 30 * 257}));
    EXPECT_EQ(pixel(result, 9, 5), (Pixel{65535, 0, 51 * 257}));
    EXPECT_EQ(pixel(result, 3, 6), (Pixel{65535, 0, 51 * 257}));
}

TEST(Ground, ShowsThroughTranslucentPixels)
{
    const TemporaryFolder folder;
    const Image photo = photoOf(folder, PhotoModel::RgbAlpha, 8, {10, 20, 30, 51});
    const Image result = laidOn({.size = {10, 9}, .color = white}, photo, {3, 2});

    EXPECT_EQ(pixel(result, 0, 0), (Pixel{255, 255, 255, 255}));
    expectNear(pixel(result, 4, 3), {206, 208, 210, 255});
}

TEST(Ground, CutsOffWhatStandsOut)
{
    const TemporaryFolder folder;
    const Image photo = photoOf(folder, PhotoModel::Gray, 8, {77});
    const Image result = laidOn({.size = {4, 2}, .color = white}, photo, {-1, -1});
    EXPECT_EQ(result.pixelSize(), (platform::graphics::PixelSize{4, 2}));
    EXPECT_EQ(pixel(result, 0, 0), (Pixel{77}));
    EXPECT_EQ(pixel(result, 3, 1), (Pixel{77}));
}
