// SPDX-License-Identifier: GPL-3.0-or-later
#include "marked_text.h"

#include <platform/filters/photo_effect.h>
#include <platform/foundation/literals.h>
#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <array>

using namespace brenvaldo;
using namespace brenvaldo::test;
using namespace brenvaldo::watermark;

namespace {

struct StrengthCase
{
    const char* name;
    int percent;
    double strength; ///< of the glyphs on the photo: the opacity counts twice

    friend void PrintTo(const StrengthCase& row, std::ostream* out) { *out << row.name; }
};

class TextMarkStrength : public testing::TestWithParam<StrengthCase>
{
};

} // namespace

TEST_P(TextMarkStrength, IsTheSquareOfTheOpacity)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.placement.anchor = 4;
    settings.opacity = opacityOfPercent(GetParam().percent);

    const QRgb middle = markedPhoto(settings).pixel(80, 60);

    const double strength = GetParam().strength;
    EXPECT_NEAR(qRed(middle), 10 + (255 - 10) * strength, 1.5);
    EXPECT_NEAR(qGreen(middle), 20 + (255 - 20) * strength, 1.5);
    EXPECT_NEAR(qBlue(middle), 30 + (255 - 30) * strength, 1.5);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    TextMarkStrength,
    testing::Values(
        StrengthCase{"ZeroIsOpaque", 0, 1},
        StrengthCase{"BelowZero", -5, 0.01},
        StrengthCase{"OneIsNearlyInvisible", 1, 0.0001},
        StrengthCase{"Half", 50, 0.25},
        StrengthCase{"NinetyNine", 99, 0.9801},
        StrengthCase{"Hundred", 100, 1},
        StrengthCase{"AboveHundred", 101, 1}
    ),
    CaseName()
);

TEST(TextMark, HasTranslucentGlyphsForAllEffectsButThoseOfThePhoto)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.opacity = 0.6;
    for (int effect = 0; effect <= 10; ++effect) {
        settings.effect = textEffectOfIndex(effect);
        const QImage layer = wholeLayer(overlayOf(settings));

        const bool isPhoto = effect == 7 || effect == 8;
        EXPECT_NEAR(qAlpha(layer.pixel(layer.rect().center())), isPhoto ? 255 : 153, 1) << effect;
    }
}

TEST(TextMark, OfAnEmptyTextLeavesThePhotoAsItIs)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.text.clear();

    EXPECT_EQ(changedPixels(markedPhoto(settings)), 0);
}

TEST(TextMark, MovesRightAndUpWithItsOffsets)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.placement.anchor = 4;
    const QRect before = changedBox(markedPhoto(settings));
    settings.placement.xOffset = 7;
    settings.placement.yOffset = 4;

    EXPECT_EQ(changedBox(markedPhoto(settings)), before.translated(7, -4));
}

TEST(TextMark, OutlinesAreAsWideAsTheTableSays)
{
    constexpr std::array widths{0.5, 1.0, 3.0, 5.0, 7.0, 7.0};
    constexpr int fontSize = 400;
    TextWatermarkSettings settings = whiteBlock();
    settings.text = u" \u25a0 "_s;
    settings.fontSize = fontSize;
    settings.placement.anchor = 4;
    for (std::size_t index = 0; index < widths.size(); ++index) {
        settings.strokeWidth = strokeWidthOfIndex(static_cast<int>(index));

        const QImage image = markedPhoto(settings, plainPhoto(751, 501));

        double strokes = 0; // the left and the right side, edges counted by their coverage
        const QRect box = changedBox(image);
        for (int x = 0; x < image.width(); ++x)
            strokes += (qRed(image.pixel(x, box.center().y())) - 10) / 245.0;
        EXPECT_NEAR(strokes / 2, widths[index] / 100 * fontSize, 0.1) << index;
    }
}

TEST(TextMark, IsOneBlankWiderWhenItIsItalic)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.text = u"AB"_s;
    const int upright = overlayOf(settings).size().width;
    settings.text = u"AB "_s;
    const int withBlank = overlayOf(settings).size().width;
    settings.text = u"AB"_s;
    settings.isItalic = true;

    EXPECT_GT(withBlank, upright);
    EXPECT_EQ(overlayOf(settings).size().width, withBlank);
}

TEST(TextMark, OutlinesAreHollow)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.text = u"\u25a0"_s; // a square in the middle of the line
    settings.fontSize = 60;
    settings.placement.anchor = 4;
    const QRect filled = changedBox(markedPhoto(settings));
    settings.strokeWidth = 5;

    const QImage image = markedPhoto(settings);

    EXPECT_EQ(image.pixel(filled.center()), photoColor);
    EXPECT_GT(qRed(image.pixel(filled.center().x(), filled.top() + 1)), 100);
}

TEST(TextMark, OfAPlainColorCastsItsShadowInsideOfItsLayer)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.text = block() + QLatin1Char(' ');
    settings.placement.anchor = 4;
    const int without = changedPixels(markedPhoto(settings));
    settings.shadow = platform::drawing::Shadow{
        .color = {.red = 1}, .xOffset = 4, .yOffset = 0, .blurRadius = 0};

    const QImage image = markedPhoto(settings);

    EXPECT_GT(changedPixels(image), without);
    const QRect box = changedBox(image);
    EXPECT_EQ(image.pixel(box.right() - 1, box.center().y()), qRgb(255, 0, 0));
}

TEST(TextMark, FilledWithTheBlackAndWhitePhotoShowsItsGrays)
{
    QImage ground(161, 121, QImage::Format_RGB32);
    ground.fill(qRgb(200, 90, 40));
    const platform::graphics::Image photo = platform::graphics::Image::fromQImage(ground);
    TextWatermarkSettings settings = whiteBlock();
    settings.effect = TextEffect::NoirPhoto;
    settings.placement.anchor = 4;

    const QRgb middle = markedPhoto(settings, photo).pixel(80, 60);

    EXPECT_EQ(middle, platform::filters::photoEffectNoir(photo).toQImage().pixel(0, 0));
    EXPECT_EQ(qRed(middle), qBlue(middle));
}

TEST(TextMark, FilledWithTheBlackAndWhitePhotoCastsNoShadow)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.effect = TextEffect::NoirPhoto;
    settings.placement.anchor = 4;
    const QImage plain = markedPhoto(settings);
    settings.shadow = platform::drawing::Shadow{
        .color = {.red = 1}, .xOffset = 4, .yOffset = 0, .blurRadius = 0};

    EXPECT_EQ(markedPhoto(settings), plain);
}

TEST(TextMark, EmbossedCastsTheShadowOfItsWholeLayerOnThePhoto)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.effect = TextEffect::Relief1;
    settings.placement.anchor = 4;
    const QRect box = changedBox(markedPhoto(settings));
    settings.shadow = platform::drawing::Shadow{
        .color = {.red = 1}, .xOffset = 30, .yOffset = -20, .blurRadius = 0};

    const QImage image = markedPhoto(settings);

    // The shadow falls outside of the text's own layer.
    EXPECT_EQ(image.pixel(box.center() + QPoint(30, 20)), qRgb(255, 0, 0));
}

TEST(TextMark, CastsAShadowThatLiesFarFromItsLayer)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.effect = TextEffect::Relief1;
    settings.placement = {.anchor = 4, .xOffset = -200, .yOffset = 0, .angle = 0};
    settings.shadow = platform::drawing::Shadow{
        .color = {.red = 1}, .xOffset = 200, .yOffset = 0, .blurRadius = 0};

    // The layer stands outside of the photo, its shadow in the middle.
    EXPECT_EQ(markedPhoto(settings).pixel(80, 60), qRgb(255, 0, 0));
}

TEST(TextMark, WithAShadowOutOfSightIsTheMarkAlone)
{
    for (const TextEffect effect : {TextEffect::Plain, TextEffect::Relief1}) {
        for (const bool isTiled : {false, true}) {
            TextWatermarkSettings settings = whiteBlock();
            settings.effect = effect;
            settings.isTiled = isTiled;
            settings.placement.anchor = 4;
            const QImage plain = markedPhoto(settings);
            settings.shadow = platform::drawing::Shadow{
                .color = {.red = 1}, .xOffset = 1 << 24, .yOffset = -(1 << 24), .blurRadius = 3};

            EXPECT_EQ(markedPhoto(settings), plain) << static_cast<int>(effect) << ", " << isTiled;
        }
    }
}

TEST(TextMark, WithAShadowOfAnySoftnessHasNoLargerLayerThanThePhoto)
{
    const platform::graphics::Image photo = plainPhoto();
    for (const double radius : {1.0, 90.0, 5000.0, 2e9}) {
        TextWatermarkSettings settings = whiteBlock();
        settings.effect = TextEffect::Relief1;
        settings.placement.anchor = 4;
        settings.shadow = platform::drawing::Shadow{.color = {.red = 1}, .blurRadius = radius};

        const platform::drawing::Stamp stamp
            = textMark(settings, settings.text, blockFont(), photo);

        EXPECT_LE(stamp.layer.width(), photo.width()) << radius;
        EXPECT_LE(stamp.layer.height(), photo.height()) << radius;
        EXPECT_FALSE(stamp.layer.isNull()) << radius;
    }
}

TEST(TextMark, FilledWithThePhotoShowsItsBottomLeftCorner)
{
    QImage image(161, 121, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x, y, 0));
    }
    const platform::graphics::Image photo = platform::graphics::Image::fromQImage(image);
    TextWatermarkSettings settings = whiteBlock();
    settings.effect = TextEffect::Photo;
    settings.placement.anchor = 2;
    const TextOverlay overlay(settings, settings.text, blockFont(), photo);
    const QRect block = blockOnItsLayer(settings);

    const QImage marked = markedPhoto(settings, photo);

    const QPoint onLayer = block.center();
    const QPoint onPhoto(photo.width() - overlay.size().width + onLayer.x(), onLayer.y());
    const QRgb pixel = marked.pixel(onPhoto);
    EXPECT_NEAR(qRed(pixel), onLayer.x(), 1);
    EXPECT_NEAR(qGreen(pixel), photo.height() - overlay.size().height + onLayer.y(), 1);
}

TEST(TextMark, HasTheReliefOfTheWholeLayerWhereThePhotoCutsIt)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.effect = TextEffect::Relief1;
    settings.fontSize = 200;
    const TextOverlay overlay = overlayOf(settings);
    const QImage whole = wholeLayer(overlay);
    const QRect block = blockOnItsLayer(settings);

    // The edge of the block lies a few pixels outside of what is shown.
    for (const int distance : {1, 5, 9, 14}) {
        const QRect part = block.adjusted(distance, distance, -distance, -distance);

        EXPECT_EQ(overlay.rendered(part), whole.copy(part)) << distance;
    }
}

namespace {

struct AttributeCase
{
    const char* name;
    void (*set)(TextWatermarkSettings& settings);

    friend void PrintTo(const AttributeCase& row, std::ostream* out) { *out << row.name; }
};

class TextMarkAttribute : public testing::TestWithParam<AttributeCase>
{
};

} // namespace

TEST_P(TextMarkAttribute, ChangesTheLayer)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.text = u"A text\nof lines"_s;
    const QImage plain = wholeLayer(overlayOf(settings));

    GetParam().set(settings);

    EXPECT_NE(wholeLayer(overlayOf(settings)), plain);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    TextMarkAttribute,
    testing::Values(
        AttributeCase{"Size", [](TextWatermarkSettings& settings) { settings.fontSize = 23; }},
        AttributeCase{"Kerning", [](TextWatermarkSettings& settings) { settings.kerning = 3; }},
        AttributeCase{"Leading", [](TextWatermarkSettings& settings) { settings.leading = 5; }},
        AttributeCase{"Bold", [](TextWatermarkSettings& settings) { settings.isBold = true; }},
        AttributeCase{
            "Underline",
            [](TextWatermarkSettings& settings) {
                settings.underline = platform::drawing::UnderlineStyle::Single;
            }},
        AttributeCase{
            "Alignment",
            [](TextWatermarkSettings& settings) {
                settings.alignment = platform::drawing::TextAlignment::Right;
            }},
        AttributeCase{"Stroke", [](TextWatermarkSettings& settings) { settings.strokeWidth = 3; }},
        AttributeCase{
            "Colour", [](TextWatermarkSettings& settings) { settings.fontColor = {.red = 1}; }}
    ),
    CaseName()
);

TEST(TextMark, LeansItsGlyphsWhenItIsItalic)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.fontSize = 100;
    settings.text = block() + QLatin1Char(' ');
    const QImage upright = wholeLayer(overlayOf(settings));
    settings.text = block();
    settings.isItalic = true;

    const QImage slanted = wholeLayer(overlayOf(settings));

    ASSERT_EQ(slanted.size(), upright.size());
    EXPECT_NE(slanted, upright);
}
