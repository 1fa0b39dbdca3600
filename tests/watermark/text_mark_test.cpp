// SPDX-License-Identifier: GPL-3.0-or-later
#include "marked_text.h"

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::test;
using namespace brenvaldo::watermark;

TEST(TextMark, IsOpaqueAtATransparencyOfZero)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.opacity = opacityOfPercent(0);

    const QImage image = markedPhoto(settings);

    EXPECT_EQ(image.pixel(changedBox(image).center()), qRgb(255, 255, 255));
}

TEST(TextMark, AppliesTheOpacityTwiceForAPlainColour)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.opacity = 0.5;

    const QImage image = markedPhoto(settings);

    const int quarter = 10 + (255 - 10) / 4;
    EXPECT_NEAR(qRed(image.pixel(changedBox(image).center())), quarter, 2);
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

TEST(TextMark, OutlinesAreHollow)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.text = QStringLiteral("\u25a0"); // a square in the middle of the line
    settings.fontSize = 60;
    settings.placement.anchor = 4;
    const QRect filled = changedBox(markedPhoto(settings));
    settings.strokeWidth = 5;

    const QImage image = markedPhoto(settings);

    EXPECT_EQ(image.pixel(filled.center()), photoColor);
    EXPECT_GT(qRed(image.pixel(filled.center().x(), filled.top() + 1)), 100);
}

TEST(TextMark, OfAPlainColourCastsItsShadowInsideOfItsLayer)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.text = block() + QLatin1Char(' ');
    settings.placement.anchor = 4;
    const int without = changedPixels(markedPhoto(settings));
    settings.shadow
        = platform::Shadow{.color = {.red = 1}, .xOffset = 4, .yOffset = 0, .blurRadius = 0};

    const QImage image = markedPhoto(settings);

    EXPECT_GT(changedPixels(image), without);
    const QRect box = changedBox(image);
    EXPECT_EQ(image.pixel(box.right() - 1, box.center().y()), qRgb(255, 0, 0));
}

TEST(TextMark, FilledWithTheBlackAndWhitePhotoCastsNoShadow)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.effect = 8;
    settings.placement.anchor = 4;
    const QImage plain = markedPhoto(settings);
    settings.shadow
        = platform::Shadow{.color = {.red = 1}, .xOffset = 4, .yOffset = 0, .blurRadius = 0};

    EXPECT_EQ(markedPhoto(settings), plain);
}

TEST(TextMark, EmbossedCastsTheShadowOfItsWholeLayerOnThePhoto)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.effect = 1;
    settings.placement.anchor = 4;
    const QRect box = changedBox(markedPhoto(settings));
    settings.shadow
        = platform::Shadow{.color = {.red = 1}, .xOffset = 30, .yOffset = -20, .blurRadius = 0};

    const QImage image = markedPhoto(settings);

    // The shadow falls outside of the text's own layer.
    EXPECT_EQ(image.pixel(box.center() + QPoint(30, 20)), qRgb(255, 0, 0));
}

TEST(TextMark, FilledWithThePhotoShowsItsBottomLeftCorner)
{
    QImage image(161, 121, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x, y, 0));
    }
    const platform::Image photo = platform::Image::fromQImage(image);
    TextWatermarkSettings settings = whiteBlock();
    settings.effect = 7;
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
