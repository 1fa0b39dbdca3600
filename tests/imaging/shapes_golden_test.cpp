// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>
#include <imaging/rotate_settings.h>
#include <platform/foundation/literals.h>

#include <platform/graphics/screen_scaling.h>
#include <support/geometry_printing.h>
#include <support/golden_image.h>

#include <gtest/gtest.h>

#include <QPainter>

using namespace brenvaldo;
using namespace brenvaldo::imaging;
using platform::graphics::Color;
using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

constexpr Color orange = {.red = 1, .green = 0.6, .blue = 0.1};
constexpr Color navy = {.red = 0.1, .green = 0.15, .blue = 0.4};
constexpr int circle = 1;
constexpr int ellipse = 2;
constexpr int around = 1;

Image photo(int factor = 1)
{
    QImage image(120 * factor, 90 * factor, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(70 + x / factor, 110 + y / (2 * factor), 180 - y / factor));
    }
    return Image::fromQImage(image);
}

struct LookCase
{
    using Draw
        = std::optional<Image> (*)(DVImageHandling& handling, const Image& photo, int factor);

    const char* name;
    Draw draw; ///< all lengths in pixels are multiplied by `factor`

    friend void PrintTo(const LookCase& row, std::ostream* out) { *out << row.name; }
};

class ShapeLook : public testing::TestWithParam<LookCase>
{
protected:
    Image drawn(int factor) { return GetParam().draw(handling, photo(factor), factor).value(); }

    DVImageHandling handling;
};

std::optional<Image> roundedCorners(DVImageHandling& handling, const Image& photo, int factor)
{
    return handling.hAddRoundingsPreview(photo, {.radius = 30 * factor});
}

std::optional<Image> borderOnTheCorners(DVImageHandling& handling, const Image& photo, int factor)
{
    return handling.hAddRoundingsPreview(
        photo,
        {.radius = 24 * factor, .borderColor = orange, .borderState = 1, .borderWidth = 8 * factor}
    );
}

std::optional<Image> smallRadius(DVImageHandling& handling, const Image& photo, int factor)
{
    return handling.hAddRoundingsPreview(
        photo,
        {.radius = 6 * factor,
         .borderColor = orange,
         .borderState = 1,
         .borderWidth = 20 * factor,
         .opacity = 60}
    );
}

std::optional<Image>
radiusBeyondTheMiddle(DVImageHandling& handling, const Image& photo, int factor)
{
    return handling.hAddRoundingsPreview(
        photo,
        {.radius = 56 * factor, .borderColor = orange, .borderState = 1, .borderWidth = 4 * factor}
    );
}

std::optional<Image> circleOnAGround(DVImageHandling& handling, const Image& photo, int factor)
{
    return handling.hAddRoundingsPreview(
        photo,
        {.type = circle,
         .borderColor = orange,
         .backgroundColor = navy,
         .borderState = 1,
         .borderWidth = 6 * factor,
         .backgroundState = 1,
         .borderPosition = around,
         .margin = 5 * factor}
    );
}

std::optional<Image> fadedEllipse(DVImageHandling& handling, const Image& photo, int factor)
{
    return handling.hAddRoundingsPreview(
        photo,
        {.type = ellipse,
         .borderColor = orange,
         .borderState = 1,
         .borderWidth = 12 * factor,
         .gradientState = 1,
         .angleIndex = 1,
         .blendIndex = 3}
    );
}

std::optional<Image> frameInside(DVImageHandling& handling, const Image& photo, int factor)
{
    return handling.hAddFramePreview(
        photo,
        {.frameType = 0,
         .thickness = 9 * factor,
         .inset = 12 * factor,
         .blendIndex = 4,
         .color = orange}
    );
}

std::optional<Image> fadedFrameOutside(DVImageHandling& handling, const Image& photo, int factor)
{
    return handling.hAddFramePreview(
        photo,
        {.frameType = 1,
         .thickness = 12 * factor,
         .gradientState = 1,
         .angleIndex = 0,
         .color = navy}
    );
}

std::optional<Image> turnedOnACanvas(DVImageHandling& /*handling*/, const Image& photo, int factor)
{
    return DVImageHandling::hRotatePicturesPreview(
        photo, {.degrees = 20, .hasCanvas = true, .canvasColor = orange, .canvasMargin = 6 * factor}
    );
}

std::optional<Image> turnedByAQuarter(DVImageHandling& /*handling*/, const Image& photo, int factor)
{
    return DVImageHandling::hRotatePicturesPreview(
        photo, {.degrees = 90, .hasCanvas = true, .canvasColor = navy, .canvasMargin = 6 * factor}
    );
}

TintSettings tintOf(const Color& color)
{
    TintSettings tint;
    tint.color = color;
    tint.sizeMode = u"W x H"_s;
    tint.originalSizeState = 1;
    tint.opacity = 70;
    return tint;
}

std::optional<Image> tintedCorner(DVImageHandling& handling, const Image& photo, int factor)
{
    TintSettings tint = tintOf(orange);
    tint.blendIndex = 4;
    tint.anchor = 8;
    tint.originalSizeState = 0;
    tint.width = 64 * factor;
    tint.height = 40 * factor;
    tint.yOffset = 8 * factor;
    tint.gradientState = 1;
    return handling.addTintToImage2Preview(photo, tint);
}

std::optional<Image> duoTone(DVImageHandling& handling, const Image& photo, int /*factor*/)
{
    TintSettings tint = tintOf(orange);
    tint.blendIndex = 5;
    tint.duoToneState = 1;
    return handling.addTintToImage2Preview(photo, tint);
}

/// The picture on a grey that shows where it is transparent.
QImage onGrey(const Image& image)
{
    const QImage picture = image.toQImage();
    QImage ground(picture.size(), QImage::Format_RGB32);
    ground.fill(qRgb(128, 128, 128));
    QPainter(&ground).drawImage(0, 0, picture);
    return ground;
}

/// The mean difference of the samples.
double difference(const QImage& first, const QImage& second)
{
    double sum = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b))
                + std::abs(qBlue(a) - qBlue(b));
        }
    }
    return sum / (3.0 * first.width() * first.height());
}

const LookCase lookCases[] = {
    {"rounded-corners", roundedCorners},
    {"border-on-the-corners", borderOnTheCorners},
    {"small-radius", smallRadius},
    {"radius-beyond-the-middle", radiusBeyondTheMiddle},
    {"circle-on-a-ground", circleOnAGround},
    {"faded-ellipse", fadedEllipse},
    {"frame-inside", frameInside},
    {"faded-frame-outside", fadedFrameOutside},
    {"turned-on-a-canvas", turnedOnACanvas},
    {"turned-by-a-quarter", turnedByAQuarter},
    {"tinted-corner", tintedCorner},
    {"duo-tone", duoTone},
};

} // namespace

TEST_P(ShapeLook, IsThatOfTheGoldenPicture)
{
    EXPECT_TRUE(
        test::looksLike(onGrey(drawn(1)), u"shapes/"_s + QString::fromLatin1(GetParam().name))
    );
}

TEST_P(ShapeLook, IsTheSameOnAScreenThatIsSmaller)
{
    const Image large = drawn(8);
    const PixelSize size = drawn(1).pixelSize();

    const Image screen = platform::graphics::scaledForScreen(large, size);

    EXPECT_TRUE(large.node() != screen.node());
    ASSERT_EQ(screen.pixelSize(), size);
    EXPECT_LT(difference(onGrey(screen), onGrey(large.copiedToMemory()->scaledTo(size))), 1.5);
}

INSTANTIATE_TEST_SUITE_P(Of, ShapeLook, testing::ValuesIn(lookCases), [](const auto& row) {
    return QString::fromLatin1(row.param.name).replace(u'-', u'_').toStdString();
});
