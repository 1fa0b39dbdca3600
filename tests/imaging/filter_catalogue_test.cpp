// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_color_conversions.h>
#include <imaging/dv_image_handling.h>
#include <imaging/filter_catalogue.h>
#include <imaging/filter_sample.h>

#include <platform/filters/filtered_image.h>
#include <platform/foundation/literals.h>
#include <platform/graphics/screen_scaling.h>

#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <platform/filters/filter.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>
#include <vector>

using namespace brenvaldo;
using namespace brenvaldo::imaging;
using platform::filters::Filter;
using platform::filters::FilterImage;
using platform::filters::InputValue;
using platform::filters::Point;
using platform::graphics::Color;
using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

using Inputs = QList<std::pair<QString, InputValue>>;

/// Colours and tones of all kinds, wider than high.
const Image& photo()
{
    static const Image image = [] {
        QImage picture(90, 60, QImage::Format_RGB32);
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 90; ++x)
                picture.setPixel(x, y, qRgb(x * 255 / 89, y * 255 / 59, (x * 7 + y * 3) % 256));
        }
        return Image::fromQImage(picture);
    }();
    return image;
}

/// Values that no filter has by default.
FilterSettings unusualSettings(int number)
{
    return {
        .number = number,
        .screen
        = {.width = 9,
           .angle = 30,
           .centreX = 20,
           .centreY = 70,
           .isMask = false,
           .isInverted = false,
           .sharpness = 0.5F},
        .blurRadius = 3,
        .color = {.red = 0.2, .green = 0.6, .blue = 0.9},
        .monochromeIntensity = 0.7F,
        .levels = 4,
        .sepiaIntensity = 0.3F,
        .unsharpRadius = 4,
        .unsharpIntensity = 0.9F};
}

QImage ofCatalogue(const FilterSettings& settings)
{
    const auto result = filteredPhoto(photo(), settings);
    return result ? result->toQImage() : QImage();
}

FilterImage pass(const FilterImage& image, const QString& name, const Inputs& inputs = {})
{
    Filter filter = *Filter::filterWithName(name);
    filter.setValue(u"inputImage"_s, image);
    for (const auto& [input, value] : inputs)
        filter.setValue(input, value);
    return *filter.outputImage();
}

FilterImage lines(const FilterImage& image, double width, double degrees)
{
    return pass(
        image,
        u"CILineScreen"_s,
        {{u"inputWidth"_s, width},
         {u"inputAngle"_s, -degrees * std::numbers::pi / 180},
         {u"inputSharpness"_s, 0.5}}
    );
}

FilterImage rings(const FilterImage& image, double width, Point centre)
{
    return pass(
        image,
        u"CICircularScreen"_s,
        {{u"inputWidth"_s, width}, {u"inputCenter"_s, centre}, {u"inputSharpness"_s, 0.5}}
    );
}

FilterImage masked(const FilterImage& front, const FilterImage& back, const FilterImage& mask)
{
    return pass(
        front,
        u"CIBlendWithMask"_s,
        {{u"inputBackgroundImage"_s, back}, {u"inputMaskImage"_s, mask}}
    );
}

QImage drawn(const FilterImage& image) { return image.toImage(photo()).toQImage(); }

void expectFilter(int number, const FilterImage& expected)
{
    EXPECT_LE(test::largestDifference(ofCatalogue(unusualSettings(number)), drawn(expected)), 1)
        << number;
}

/// By how much the samples of two pictures of one size differ on average.
double meanDifference(const QImage& left, const QImage& right)
{
    int sum = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const QRgb a = left.pixel(x, y);
            const QRgb b = right.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b))
                + std::abs(qBlue(a) - qBlue(b));
        }
    }
    return sum / (3.0 * left.width() * left.height());
}

OutputTail pngTail()
{
    return {
        .outputType = u"public.png"_s,
        .compressionLevel = u"9"_s,
        .fileExtension = u"png"_s,
        .fileExtensionNSStr = {},
        .fileUTI = u"public.png"_s,
        .myFileType = u"public.png"_s};
}

} // namespace

TEST(FilterCatalogue, HoldsTheSimpleFiltersWithTheirSettings)
{
    const FilterImage image(photo());
    expectFilter(0, pass(image, u"CIPhotoEffectNoir"_s));
    expectFilter(1, pass(image, u"CIPhotoEffectMono"_s));
    expectFilter(2, pass(image, u"CIPhotoEffectChrome"_s));
    expectFilter(11, pass(image, u"CIGaussianBlur"_s, {{u"inputRadius"_s, 3.0}}));
    expectFilter(
        15,
        pass(
            image,
            u"CIColorMonochrome"_s,
            {{u"inputColor"_s, Color{.red = 0.2, .green = 0.6, .blue = 0.9}},
             {u"inputIntensity"_s, 0.7}}
        )
    );
    expectFilter(16, pass(image, u"CIColorInvert"_s));
    expectFilter(17, pass(image, u"CIColorPosterize"_s, {{u"inputLevels"_s, 4.0}}));
    expectFilter(18, pass(image, u"CISepiaTone"_s, {{u"inputIntensity"_s, 0.3}}));
    expectFilter(
        21, pass(image, u"CIUnsharpMask"_s, {{u"inputRadius"_s, 4.0}, {u"inputIntensity"_s, 0.9}})
    );
    expectFilter(22, pass(image, u"CIPhotoEffectProcess"_s));
    expectFilter(23, pass(image, u"CIPhotoEffectFade"_s));
    expectFilter(24, pass(image, u"CIPhotoEffectInstant"_s));
    expectFilter(25, pass(image, u"CIPhotoEffectTransfer"_s));
}

TEST(FilterCatalogue, HoldsTheScreens)
{
    const FilterImage image(photo());
    const Inputs dots
        = {{u"inputWidth"_s, 9.0},
           {u"inputAngle"_s, -std::numbers::pi / 6},
           {u"inputSharpness"_s, 0.5}};
    expectFilter(3, rings(image, 9, {.x = 18, .y = 42}));
    expectFilter(6, pass(image, u"CIDotScreen"_s, dots));
    expectFilter(14, lines(image, 9, 30));
    expectFilter(7, lines(lines(image, 9, 30), 6, 120));

    FilterImage eleven = image;
    for (int degrees = 20; degrees <= 220; degrees += 20)
        eleven = lines(eleven, 9, degrees);
    expectFilter(9, eleven);

    FilterImage eight = image;
    for (int round = 0; round < 4; ++round)
        eight = lines(lines(eight, 9, 30), 6, 120);
    expectFilter(10, eight);
}

TEST(FilterCatalogue, HoldsNineRingsWhoseWidthsFollowFromEachOther)
{
    FilterImage result(photo());
    double width = 9;
    const auto ring = [&](double share, Point centre) {
        width *= share;
        result = rings(result, width, centre);
    };
    ring(0.9, {.x = 0, .y = 0});
    ring(0.75, {.x = 0, .y = 19.8});
    ring(1.1, {.x = 0, .y = 60});
    ring(0.5, {.x = 90, .y = 60});
    ring(0.75, {.x = 29.7, .y = 60});
    ring(0.8, {.x = 45, .y = 30});
    ring(1.1, {.x = 119.7, .y = 19.8});
    ring(1.4, {.x = 90, .y = 0});
    ring(1.1, {.x = 90, .y = 19.8});
    expectFilter(8, result);
}

TEST(FilterCatalogue, InvertsAndMasksAfterEveryPass)
{
    const FilterImage image(photo());
    FilterSettings settings = unusualSettings(7);
    settings.screen.isInverted = true;
    settings.screen.isMask = true;
    const auto whole = [](const FilterImage& source, double width, double degrees) {
        const FilterImage pattern = pass(lines(source, width, degrees), u"CIColorInvert"_s);
        return masked(pattern, source, pattern);
    };
    const QImage expected = drawn(whole(whole(image, 9, 30), 6, 120));
    EXPECT_LE(test::largestDifference(ofCatalogue(settings), expected), 1);
    for (const int number : {3, 6, 8, 9, 10, 14}) {
        FilterSettings plain = unusualSettings(number);
        FilterSettings changed = plain;
        changed.screen.isInverted = true;
        EXPECT_NE(ofCatalogue(changed), ofCatalogue(plain)) << number;
        changed = plain;
        changed.screen.isMask = true;
        EXPECT_NE(ofCatalogue(changed), ofCatalogue(plain)) << number;
    }
}

TEST(FilterCatalogue, LaysThreeTonesOverThePhoto)
{
    const FilterImage image(photo());
    const Inputs pattern
        = {{u"inputWidth"_s, 9.0},
           {u"inputAngle"_s, -std::numbers::pi / 6},
           {u"inputSharpness"_s, 0.5}};
    const FilterImage mono = pass(image, u"CIPhotoEffectMono"_s);
    const FilterImage dark = pass(mono, u"CIPhotoEffectNoir"_s);
    const auto chain = [&](int number, const QString& screen, const FilterImage& tones) {
        const FilterImage mask = pass(tones, screen, pattern);
        expectFilter(number, masked(tones, image, mask));
        FilterSettings swapped = unusualSettings(number);
        swapped.screen.isInverted = true;
        swapped.screen.isMask = true; // plays no part
        EXPECT_LE(
            test::largestDifference(ofCatalogue(swapped), drawn(masked(image, tones, mask))), 1
        ) << number;
    };
    chain(4, u"CIDotScreen"_s, mono);
    chain(5, u"CIDotScreen"_s, dark);
    chain(19, u"CILineScreen"_s, mono);
    chain(20, u"CILineScreen"_s, dark);
}

TEST(FilterCatalogue, SetsThePhotoOnASquareCanvas)
{
    QImage white(400, 300, QImage::Format_RGB32);
    white.fill(Qt::white);
    const QColor colour(51, 153, 230);
    const auto canvas = [&](int number) {
        return filteredPhoto(Image::fromQImage(white), unusualSettings(number))->toQImage();
    };

    const QImage plain = canvas(12);
    EXPECT_EQ(plain.size(), QSize(1080, 1080));
    EXPECT_EQ(plain.pixelColor(540, 134), colour);
    EXPECT_EQ(plain.pixelColor(0, 136), QColor(Qt::white));
    EXPECT_EQ(plain.pixelColor(1079, 943), QColor(Qt::white));
    EXPECT_EQ(plain.pixelColor(540, 946), colour);

    const QImage framed = canvas(13);
    EXPECT_EQ(framed.size(), QSize(1080, 1080));
    EXPECT_EQ(framed.pixelColor(99, 540), colour);
    EXPECT_EQ(framed.pixelColor(100, 540), QColor(Qt::white));
    EXPECT_EQ(framed.pixelColor(979, 540), QColor(Qt::white));
    EXPECT_EQ(framed.pixelColor(980, 540), colour);
    EXPECT_EQ(framed.pixelColor(540, 152), colour);
    EXPECT_EQ(framed.pixelColor(540, 156), QColor(Qt::white));
}

TEST(FilterCatalogue, EndsAtTwentyFive)
{
    const test::TemporaryFolder folder;
    const SourceAndBase files
        = {.source = test::PhotoBuilder().write(folder.path(u"a.jpg"_s)),
           .destinationBase = folder.path(u"out"_s)};

    EXPECT_TRUE(std::holds_alternative<WordOfPictureBefore>(
        DVColorConversions::hAddFilter(files, {.number = 26}, pngTail())
    ));
    EXPECT_TRUE(std::holds_alternative<PictureToSave>(
        DVColorConversions::hAddFilter(files, {.number = 25}, pngTail())
    ));
    EXPECT_FALSE(filteredPhoto(photo(), {.number = 26}));
    EXPECT_FALSE(filteredPhoto(photo(), {.number = -1}));
}

TEST(FilterRun, WritesAnOpaqueUprightPicture)
{
    const test::TemporaryFolder folder;
    const SourceAndBase files
        = {.source = test::PhotoBuilder()
                         .format(test::PhotoFormat::Png)
                         .model(test::PhotoModel::RgbAlpha)
                         .solid({200, 100, 50, 0})
                         .orientation(6)
                         .write(folder.path(u"a.png"_s)),
           .destinationBase = folder.path(u"out"_s)};

    const ResultWord word
        = DVImageHandling().finish(DVColorConversions::hAddFilter(files, {.number = 16}, pngTail())
        );

    EXPECT_EQ(word, ResultWord::Ok);
    const QImage written = test::storedPixels(folder.path(u"out.png"_s));
    EXPECT_EQ(written.size(), QSize(33, 47));
    EXPECT_FALSE(written.hasAlphaChannel());
    EXPECT_EQ(written.pixelColor(5, 5), QColor(Qt::white));
}

TEST(FilterRun, FailsForAPhotoThatCannotBeRead)
{
    const test::TemporaryFolder folder;
    for (const int number : {0, 12}) {
        const SourceAndBase files
            = {.source = folder.write(u"a.jpg"_s, "no photo"),
               .destinationBase = folder.path(u"out"_s)};
        EXPECT_EQ(
            DVImageHandling().finish(
                DVColorConversions::hAddFilter(files, {.number = number}, pngTail())
            ),
            ResultWord::Failed
        );
    }
}

TEST(FilterPreview, IsThePictureOfTheRun)
{
    const test::TemporaryFolder folder;
    const QString path = test::PhotoBuilder()
                             .format(test::PhotoFormat::Png)
                             .model(test::PhotoModel::RgbAlpha)
                             .size(50, 40)
                             .write(folder.path(u"a.png"_s));
    for (const int number : {0, 6, 12}) {
        const FilterSettings settings = unusualSettings(number);
        const auto outcome = DVColorConversions::hAddFilter(
            {.source = path, .destinationBase = folder.path(u"out"_s)}, settings, pngTail()
        );
        ASSERT_EQ(DVImageHandling().finish(outcome), ResultWord::Ok);

        const auto preview = DVColorConversions::hAddFilterPreview(
            *test::openedPhoto(path).uprightImage(), settings
        );

        ASSERT_TRUE(preview);
        EXPECT_FALSE(preview->hasAlpha());
        EXPECT_EQ(
            test::largestDifference(
                preview->toQImage(), test::storedPixels(folder.path(u"out.png"_s))
            ),
            0
        ) << number;
    }
    EXPECT_FALSE(DVColorConversions::hAddFilterPreview(photo(), {.number = 26}));
}

// A look at a large photo must not show anything else than the picture would, made smaller.
TEST(FilterPreview, LooksLikeThePictureWhenItIsShownSmaller)
{
    QImage smooth(600, 400, QImage::Format_RGB32);
    for (int y = 0; y < smooth.height(); ++y) {
        for (int x = 0; x < smooth.width(); ++x)
            smooth.setPixel(x, y, qRgb(x * 255 / 599, y * 255 / 399, x > 300 ? 230 : 20));
    }
    const Image large = Image::fromQImage(smooth);
    for (const int number : {0, 1, 2, 4, 6, 8, 11, 13, 14, 15, 16, 18, 20, 21, 22, 23, 24, 25}) {
        FilterSettings settings = unusualSettings(number);
        settings.blurRadius = 24;
        settings.unsharpRadius = 24;
        const Image preview = *DVColorConversions::hAddFilterPreview(large, settings);
        const PixelSize size = {.width = preview.width() / 4, .height = preview.height() / 4};

        const QImage quick = scaledForScreen(preview, size).toQImage();

        const QImage shown
            = scaledForScreen(Image::fromQImage(preview.toQImage()), size).toQImage();
        ASSERT_EQ(quick.size(), shown.size());
        EXPECT_LE(meanDifference(quick, shown), 1.5) << number;
    }
}

TEST(FilterSamples, ShowWhatEachFilterDoes)
{
    std::vector<QImage> samples;
    for (int number = 0; number <= 25; ++number) {
        const auto sample = filterSample(photo(), number);
        ASSERT_TRUE(sample) << number;
        const QImage drawn = sample->toQImage();
        ASSERT_FALSE(drawn.isNull()) << number;
        const bool isCanvas = number == 12 || number == 13;
        EXPECT_TRUE(isCanvas || meanDifference(drawn, photo().toQImage()) > 0.2) << number;
        EXPECT_EQ(std::count(samples.begin(), samples.end(), drawn), 0) << number;
        samples.push_back(drawn);
    }
    EXPECT_FALSE(filterSample(photo(), 26));
}

TEST(Screens, OfAPictureAreThoseOfTheCatalogue)
{
    const FilterImage image(photo());
    const ScreenSettings settings = unusualSettings(0).screen;
    const auto expectNear = [](const Image& actual, const QImage& expected) {
        EXPECT_LE(test::largestDifference(actual.toQImage(), expected), 4); // the JPEG's
        EXPECT_FALSE(actual.hasAlpha());
    };
    using Conversions = DVColorConversions;
    const auto number = [](int of) { return ofCatalogue(unusualSettings(of)); };
    expectNear(Conversions::hCircularScreenFilter(photo(), settings), number(3));
    expectNear(Conversions::hDotScreenFilter(photo(), settings), number(6));
    expectNear(Conversions::hLineScreenFilter(photo(), settings), number(14));
    const FilterImage fabric = lines(lines(image, 9, 30), 9, 120);
    expectNear(Conversions::hFabricScreenFilter(photo(), settings), drawn(fabric));
    expectNear(Conversions::hFabric2ScreenFilter(photo(), settings), drawn(fabric));
    expectNear(Conversions::hFabric3ScreenFilter(photo(), settings), number(9));
    FilterImage eight = image;
    for (int round = 0; round < 4; ++round)
        eight = lines(lines(eight, 9, 30), 9, 120);
    expectNear(Conversions::hFabric4ScreenFilter(photo(), settings), drawn(eight));
    expectNear(Conversions::hDottyScreenFilter(photo(), settings), number(4));
    expectNear(Conversions::hDottyBWScreenFilter(photo(), settings), number(5));
    expectNear(Conversions::hStrokeScreenFilter(photo(), settings), number(19));
    expectNear(Conversions::hStrokeBWScreenFilter(photo(), settings), number(20));
}
