// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/blending.h>
#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/color_profiles.h>
#include <support/deep_pixels.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

#include <cmath>

namespace brenvaldo {
namespace {

using namespace platform::graphics;
using namespace platform::drawing;
using namespace test;

Image photoOf(const PhotoBuilder& builder)
{
    const TemporaryFolder folder;
    return openedPhoto(builder.write(folder.path(u"photo"_s))).image()->copiedToMemory().value();
}

Image layerOf(const QColor& color, QSize size = {47, 33})
{
    QImage painted(size, QImage::Format_RGBA8888);
    painted.fill(color);
    return Image::fromQImage(painted);
}

QColor middleOf(const Image& image)
{
    const QRgb pixel = deepPixels(image).convertToFormat(QImage::Format_RGBA8888).pixel(20, 20);
    return QColor::fromRgba(pixel);
}

struct Rgb
{
    int red;
    int green;
    int blue;
};

void expectNear(const QColor& color, const Rgb& expected, int tolerance)
{
    EXPECT_NEAR(color.red(), expected.red, tolerance);
    EXPECT_NEAR(color.green(), expected.green, tolerance);
    EXPECT_NEAR(color.blue(), expected.blue, tolerance);
}

using enum BlendMode;

/// What the colour 30, 160, 220 gives over 200, 100, 50, and a grey of 200 over one of 128.
struct KnownMode
{
    const char* name;
    BlendMode mode;
    Rgb opaque;
    Rgb half; ///< with an opacity of a half
    int grey; ///< the layer half transparent
    Rgb translucent; ///< both half transparent, the result premultiplied
    int alpha; ///< of that result
};

class KnownColors : public testing::TestWithParam<KnownMode>
{
protected:
    static constexpr Samples below = {200, 100, 50, 128};
    static constexpr QColor above = QColor(30, 160, 220);

    static Image blendedWith(const Image& photo, const QColor& color, double opacity = 1)
    {
        return blended(photo, layerOf(color), {.mode = GetParam().mode, .opacity = opacity});
    }

    static Image photo(PhotoModel model, const Samples& samples)
    {
        return photoOf(PhotoBuilder().model(model).solid(samples).format(PhotoFormat::Png));
    }
};

TEST_P(KnownColors, AreBlendedOpaque)
{
    const Image result = blendedWith(photo(PhotoModel::Rgb, below), above);

    expectNear(middleOf(result), GetParam().opaque, 1);
}

TEST_P(KnownColors, AreBlendedByHalf)
{
    const Image result = blendedWith(photo(PhotoModel::Rgb, below), above, 0.5);

    expectNear(middleOf(result), GetParam().half, 1);
}

TEST_P(KnownColors, AreBlendedOnGrey)
{
    const QColor grey(200, 200, 200, 128);

    const Image onRgb = blendedWith(photo(PhotoModel::Rgb, {128, 128, 128}), grey);
    const Image onGrey = blendedWith(photo(PhotoModel::Gray, {128}), grey);

    EXPECT_EQ(onGrey.colorModel(), ColorModel::Gray);
    expectNear(middleOf(onRgb), {GetParam().grey, GetParam().grey, GetParam().grey}, 1);
    EXPECT_NEAR(middleOf(onGrey).red(), GetParam().grey, 1);
}

TEST_P(KnownColors, AreBlendedTranslucent)
{
    const QColor translucent(30, 160, 220, 128);

    const QColor color = middleOf(blendedWith(photo(PhotoModel::RgbAlpha, below), translucent));

    const Rgb premultiplied
        = {color.red() * color.alpha() / 255,
           color.green() * color.alpha() / 255,
           color.blue() * color.alpha() / 255};
    EXPECT_NEAR(color.alpha(), GetParam().alpha, 1);
    expectNear(
        QColor(premultiplied.red, premultiplied.green, premultiplied.blue),
        GetParam().translucent,
        2
    );
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    KnownColors,
    testing::Values(
        // clang-format off
        KnownMode{"Normal", Normal, {30, 160, 220}, {115, 130, 135}, 164, {65, 105, 123}, 191},
        KnownMode{"Multiply", Multiply, {24, 63, 43}, {112, 81, 47}, 114, {63, 81, 78}, 191},
        KnownMode{"Overlay", Overlay, {158, 125, 86}, {179, 113, 68}, 164, {97, 96, 89}, 191},
        KnownMode{"Darken", Darken, {30, 100, 50}, {115, 100, 50}, 128, {65, 90, 80}, 191},
        KnownMode{"Lighten", Lighten, {200, 160, 220}, {200, 130, 135}, 164, {108, 105, 123}, 191},
        KnownMode{"ColorDodge", ColorDodge, {227, 255, 255}, {213, 178, 153}, 192, {114, 129, 131}, 191},
        KnownMode{"ColorBurn", ColorBurn, {0, 8, 17}, {100, 54, 34}, 111, {58, 67, 72}, 191},
        KnownMode{"SoftLight", SoftLight, {167, 115, 96}, {184, 108, 73}, 143, {99, 94, 91}, 191},
        KnownMode{"Difference", Difference, {170, 60, 170}, {185, 80, 110}, 100, {100, 80, 110}, 191},
        KnownMode{"Exclusion", Exclusion, {183, 135, 184}, {191, 117, 117}, 128, {103, 99, 113}, 191},
        KnownMode{"Color", BlendMode::Color, {27, 157, 217}, {113, 128, 133}, 128, {64, 104, 122}, 191},
        KnownMode{"Luminosity", Luminosity, {203, 103, 53}, {202, 102, 52}, 164, {108, 91, 81}, 191},
        KnownMode{"PlusDarker", PlusDarker, {0, 5, 15}, {88, 52, 33}, 100, {115, 130, 135}, 255},
        KnownMode{"PlusLighter", PlusLighter, {230, 255, 255}, {215, 180, 160}, 228, {115, 130, 135}, 255}
        // clang-format on
    ),
    CaseName()
);

using Vector = std::array<double, 3>;

double luminosityOf(const Vector& color)
{
    return 0.3 * color[0] + 0.59 * color[1] + 0.11 * color[2];
}

/// The colour with another luminosity, brought back into the range along the line to its grey.
Vector withLuminosity(Vector color, double light)
{
    const double shift = light - luminosityOf(color);
    for (double& component : color)
        component += shift;
    const double least = *std::min_element(color.begin(), color.end());
    const double most = *std::max_element(color.begin(), color.end());
    for (double& component : color) {
        if (least < 0)
            component = light + (component - light) * light / (light - least);
        if (most > 1)
            component = light + (component - light) * (1 - light) / (most - light);
    }
    return color;
}

double softLight(double b, double s)
{
    if (s <= 0.5)
        return b - (1 - 2 * s) * b * (1 - b);
    const double g = b <= 0.25 ? ((16 * b - 12) * b + 4) * b : std::sqrt(b);
    return b + (2 * s - 1) * (g - b);
}

double separable(BlendMode mode, double b, double s)
{
    switch (mode) {
    case Multiply:
        return b * s;
    case Overlay:
        return b <= 0.5 ? 2 * b * s : 1 - 2 * (1 - b) * (1 - s);
    case Darken:
        return std::min(b, s);
    case Lighten:
        return std::max(b, s);
    case ColorDodge:
        return b == 0 ? 0 : s >= 1 ? 1 : std::min(1.0, b / (1 - s));
    case ColorBurn:
        return b >= 1 ? 1 : s <= 0 ? 0 : 1 - std::min(1.0, (1 - b) / s);
    case SoftLight:
        return softLight(b, s);
    case Difference:
        return std::abs(b - s);
    case Exclusion:
        return b + s - 2 * b * s;
    default:
        return s;
    }
}

Vector mixed(BlendMode mode, const Vector& below, const Vector& above)
{
    if (mode == BlendMode::Color)
        return withLuminosity(above, luminosityOf(below));
    if (mode == Luminosity)
        return withLuminosity(below, luminosityOf(above));
    Vector result{};
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = separable(mode, below[i], above[i]);
    return result;
}

struct Pixel
{
    Vector color = {};
    double alpha = 1;
};

/// The definition of the modes, on straight colours.
Pixel composed(BlendMode mode, const Pixel& below, const Pixel& above)
{
    const double a = above.alpha;
    const double b = below.alpha;
    const bool adds = mode == PlusLighter || mode == PlusDarker;
    Pixel result = {.alpha = adds ? std::min(1.0, a + b) : a + b - a * b};
    const Vector mix = mixed(mode, below.color, above.color);
    for (std::size_t i = 0; i < 3; ++i) {
        const double s = above.color[i] * a;
        const double d = below.color[i] * b;
        const double sum = mode == PlusLighter ? std::min(1.0, s + d)
            : mode == PlusDarker               ? std::max(0.0, result.alpha - (a - s) - (b - d))
                                               : (1 - b) * s + (1 - a) * d + a * b * mix[i];
        result.color[i] = result.alpha == 0 ? 0 : sum / result.alpha;
    }
    return result;
}

Pixel pixelOf(const QRgba64& pixel)
{
    return {
        .color = {pixel.red() / 65535.0, pixel.green() / 65535.0, pixel.blue() / 65535.0},
        .alpha = pixel.alpha() / 65535.0};
}

struct Mode
{
    const char* name;
    BlendMode mode;
};

struct Kind
{
    const char* name;
    PhotoModel model;
    int depth;
    double tolerance = 0.75; ///< in steps of the samples; half a step is rounding
};

/// Photos whose rows differ, below layers whose columns differ.
class EveryMode : public testing::TestWithParam<std::tuple<Mode, Kind>>
{
protected:
    static constexpr std::array<int, 9> levels = {0, 1, 31, 64, 127, 128, 191, 254, 255};

    static const Kind& kind() { return std::get<Kind>(GetParam()); }
    static BlendMode mode() { return std::get<Mode>(GetParam()).mode; }
    static bool isGray() { return kind().model == PhotoModel::Gray; }

    static int level(int index) { return levels[static_cast<std::size_t>(index) % levels.size()]; }

    static Image photo()
    {
        return photoOf(
            PhotoBuilder()
                .size(36, 36)
                .model(kind().model)
                .depth(kind().depth)
                .format(PhotoFormat::Png)
                .pixels([](int, int y) {
                    return Samples{level(y), level(y / 2 + 3), level(y / 4), level(y + 5)};
                })
        );
    }

    static Image layer()
    {
        QImage painted(36, 36, QImage::Format_RGBA8888);
        for (int y = 0; y < 36; ++y) {
            for (int x = 0; x < 36; ++x) {
                const int red = level(x);
                const int green = isGray() ? red : level(x / 3 + 2);
                const int blue = isGray() ? red : level(x / 4 + 1);
                painted.setPixelColor(x, y, QColor(red, green, blue, x < 18 ? 255 : level(x + 4)));
            }
        }
        return Image::fromQImage(painted);
    }

    /// The largest deviation from the definition, in steps of the photo's samples.
    static double deviation(const Image& result, const QImage& below, const QImage& above)
    {
        const QImage pixels = deepPixels(result);
        double largest = 0;
        for (int y = 0; y < 36; ++y) {
            for (int x = 0; x < 36; ++x) {
                const Pixel expected = composed(
                    mode(), pixelOf(deepPixel(below, x, y)), pixelOf(deepPixel(above, x, y))
                );
                const Pixel actual = pixelOf(deepPixel(pixels, x, y));
                largest = std::max(largest, std::abs(actual.alpha - expected.alpha));
                for (std::size_t i = 0; i < 3 && expected.alpha > 0; ++i)
                    largest = std::max(largest, std::abs(actual.color[i] - expected.color[i]));
            }
        }
        return largest * (kind().depth == 8 ? 255 : 65535);
    }
};

TEST_P(EveryMode, GivesWhatItsDefinitionSays)
{
    const Image below = photo();
    const Image above = layer();

    const Image result = blended(below, above, {.mode = mode()});

    EXPECT_EQ(result.bitsPerComponent(), kind().depth);
    EXPECT_EQ(result.colorModel(), below.colorModel());
    EXPECT_EQ(result.hasAlpha(), below.hasAlpha());
    EXPECT_LE(deviation(result, deepPixels(below), deepPixels(above)), kind().tolerance);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    EveryMode,
    testing::Combine(
        testing::Values(
            Mode{"Normal", Normal},
            Mode{"Multiply", Multiply},
            Mode{"Overlay", Overlay},
            Mode{"Darken", Darken},
            Mode{"Lighten", Lighten},
            Mode{"ColorDodge", ColorDodge},
            Mode{"ColorBurn", ColorBurn},
            Mode{"SoftLight", SoftLight},
            Mode{"Difference", Difference},
            Mode{"Exclusion", Exclusion},
            Mode{"Color", BlendMode::Color},
            Mode{"Luminosity", Luminosity},
            Mode{"PlusDarker", PlusDarker},
            Mode{"PlusLighter", PlusLighter}
        ),
        testing::Values(
            Kind{"Gray8", PhotoModel::Gray, 8},
            Kind{"Gray16", PhotoModel::Gray, 16, 2.5},
            Kind{"Rgb8", PhotoModel::Rgb, 8},
            Kind{"Rgb16", PhotoModel::Rgb, 16},
            Kind{"RgbAlpha8", PhotoModel::RgbAlpha, 8},
            Kind{"RgbAlpha16", PhotoModel::RgbAlpha, 16}
        )
    ),
    [](const auto& row) {
        return std::string(std::get<Mode>(row.param).name) + std::get<Kind>(row.param).name;
    }
);

TEST(BlendedPicture, StandsAtItsPlaceAlone)
{
    const Image photo = photoOf(PhotoBuilder().solid({10, 20, 30}).format(PhotoFormat::Png));
    const Image layer = layerOf(QColor(200, 0, 0), {300, 4});

    const QImage pixels = blended(photo, layer, {.topLeft = {-260, 30}}).toQImage();

    EXPECT_EQ(pixels.pixelColor(0, 29), QColor(10, 20, 30));
    EXPECT_EQ(pixels.pixelColor(0, 30), QColor(200, 0, 0));
    EXPECT_EQ(pixels.pixelColor(39, 32), QColor(200, 0, 0));
    EXPECT_EQ(pixels.pixelColor(40, 32), QColor(10, 20, 30));
}

TEST(BlendedPicture, LeavesThePhotoThatItDoesNotMeet)
{
    const Image photo = photoOf(PhotoBuilder().format(PhotoFormat::Png));

    const Image result = blended(photo, layerOf(Qt::red), {.topLeft = {47, 0}});

    EXPECT_EQ(result.node(), photo.node());
}

TEST(BlendedPicture, IsBroughtToTheProfileOfThePhoto)
{
    const Image photo = photoOf(PhotoBuilder().iccProfile(wideProfile()).format(PhotoFormat::Png));

    const Image result = blended(photo, layerOf(QColor(30, 180, 60)), {});

    EXPECT_EQ(result.iccProfile(), wideProfile());
    expectNear(result.toQImage().pixelColor(9, 9), {30, 180, 60}, 3);
}

TEST(BlendedPicture, TakesInksForWhatTheyLeaveOfTheWhite)
{
    const PhotoBuilder inks
        = PhotoBuilder().model(PhotoModel::Cmyk).solid({40, 90, 10, 60}).format(PhotoFormat::Tiff);
    const auto shown = [&inks](const QColor& color, BlendMode mode) {
        return blended(photoOf(inks), layerOf(color), {.mode = mode}).toQImage().pixelColor(9, 9);
    };
    const QColor plain = photoOf(inks).toQImage().pixelColor(9, 9);

    EXPECT_GE(shown(Qt::white, Normal).lightness(), 250);
    EXPECT_EQ(shown(Qt::white, Multiply), plain);
    EXPECT_EQ(shown(Qt::white, PlusDarker), plain);
    EXPECT_GE(shown(Qt::white, PlusLighter).lightness(), 250);
    EXPECT_LE(shown(Qt::black, Luminosity).lightness(), 40);
    EXPECT_NEAR(shown(Qt::red, BlendMode::Color).lightness(), plain.lightness(), 60);
}

} // namespace
} // namespace brenvaldo
