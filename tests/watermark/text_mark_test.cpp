// SPDX-License-Identifier: GPL-3.0-or-later
#include <watermark/text_mark.h>
#include <watermark/text_overlay.h>

#include <platform/graphics/image.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QFont>

using namespace brenvaldo;
using namespace brenvaldo::watermark;

namespace {

constexpr QRgb photoColor = qRgb(10, 20, 30);

QFont blockFont() { return QFont(QStringLiteral("DejaVu Sans Mono")); }

/// A glyph that is one rectangle.
QString block() { return QStringLiteral("\u2588"); }

TextWatermarkSettings whiteBlock()
{
    TextWatermarkSettings settings;
    settings.text = block();
    settings.fontSize = 20;
    settings.fontColor = {.red = 1, .green = 1, .blue = 1};
    return settings;
}

platform::Image plainPhoto(int width = 161, int height = 121)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(photoColor);
    return platform::Image::fromQImage(image);
}

QImage
markedPhoto(const TextWatermarkSettings& settings, const platform::Image& photo = plainPhoto())
{
    return platform::stamped(photo, textMark(settings, settings.text, blockFont(), photo))
        .toQImage();
}

/// Box around all pixels that differ from the photo.
QRect changedBox(const QImage& image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if ((image.pixel(x, y) & 0xFFFFFF) != (photoColor & 0xFFFFFF))
                box = box.united(QRect(x, y, 1, 1));
        }
    }
    return box;
}

int changedPixels(const QImage& image)
{
    int changed = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            changed += (image.pixel(x, y) & 0xFFFFFF) != (photoColor & 0xFFFFFF) ? 1 : 0;
    }
    return changed;
}

/// Where the block's pixels stand on its own layer.
QRect blockOnItsLayer(const TextWatermarkSettings& settings)
{
    const TextOverlay overlay(settings, settings.text, blockFont(), plainPhoto());
    const QImage layer = overlay.rendered({0, 0, overlay.size().width, overlay.size().height});
    QRect box;
    for (int y = 0; y < layer.height(); ++y) {
        for (int x = 0; x < layer.width(); ++x) {
            if (qAlpha(layer.pixel(x, y)) > 0)
                box = box.united(QRect(x, y, 1, 1));
        }
    }
    return box;
}

struct PlaceCase
{
    int anchor = 0;
    int angle = 0;

    friend void PrintTo(const PlaceCase& row, std::ostream* out)
    {
        *out << "position " << row.anchor << " at " << row.angle;
    }
};

class TextMarkPlace : public testing::TestWithParam<PlaceCase>
{
};

std::vector<PlaceCase> allPlaces()
{
    std::vector<PlaceCase> places;
    for (int anchor = 0; anchor < 9; ++anchor) {
        for (const int angle : {0, 90, -90})
            places.push_back({.anchor = anchor, .angle = angle});
    }
    return places;
}

} // namespace

TEST_P(TextMarkPlace, PutsTheBlockWhereTheTableSays)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.placement
        = {.anchor = GetParam().anchor, .xOffset = 5, .yOffset = 3, .angle = GetParam().angle};
    const platform::Image photo = plainPhoto();
    const TextOverlay overlay(settings, settings.text, blockFont(), photo);
    const QPoint origin = anchoredOrigin(settings.placement, photo.pixelSize(), overlay.size());
    const QPoint topLeft(origin.x(), photo.height() - origin.y() - overlay.size().height);

    const QRect found = changedBox(markedPhoto(settings, photo));

    const QRect photoRect(0, 0, photo.width(), photo.height());
    EXPECT_EQ(found, blockOnItsLayer(settings).translated(topLeft).intersected(photoRect));
    EXPECT_GT(found.width() * found.height(), 20);
}

INSTANTIATE_TEST_SUITE_P(Table, TextMarkPlace, testing::ValuesIn(allPlaces()));

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

TEST(TextMark, TilesTheWholePhotoWithGaps)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.isTiled = true;
    const QRect block = blockOnItsLayer(settings);
    const int tight = changedPixels(markedPhoto(settings));
    settings.placement.xOffset = 10;
    settings.placement.yOffset = 10;

    const int loose = changedPixels(markedPhoto(settings));

    EXPECT_GT(tight, 161 * 121 * 6 / 10);
    EXPECT_LT(loose, tight);
    EXPECT_GT(loose, 4 * block.width() * block.height());
}

TEST(TextMark, TilesStartWhereTheCoveredSpanDoes)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.isTiled = true;
    settings.placement = {.anchor = 8, .xOffset = 10, .yOffset = 6, .angle = 0};
    const platform::Image photo = plainPhoto();
    const TextOverlay overlay(settings, settings.text, blockFont(), photo);
    const TileCell cell = tileCell(overlay.size(), 10, 6);
    const QRect block = blockOnItsLayer(settings);

    const QImage image = markedPhoto(settings, photo);

    // Drawing coordinates: the first cell begins at minus the overhang, the layer half a gap
    // further.
    const int left = -tileSpan(photo.width(), overlay.size().width).overhang + cell.layerOrigin.x();
    const int bottom
        = -tileSpan(photo.height(), overlay.size().height).overhang + cell.layerOrigin.y();
    for (int column = 1; column < 4; ++column) {
        for (int row = 1; row < 3; ++row) {
            const int x = left + column * cell.size.width + block.center().x();
            const int y = photo.height() - bottom - row * cell.size.height - overlay.size().height
                + block.center().y();
            EXPECT_EQ(image.pixel(x, y), qRgb(255, 255, 255)) << column << ", " << row;
            EXPECT_EQ(image.pixel(x + cell.size.width / 2, y), photoColor) << column << ", " << row;
        }
    }
}

TEST(TextMark, TilingIgnoresThePosition)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.isTiled = true;
    const QImage first = markedPhoto(settings);
    settings.placement.anchor = 8;

    EXPECT_EQ(markedPhoto(settings), first);
}

TEST(TextMark, TilesLargerThanThePhotoLookLikeRepeatedOnes)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.isTiled = true;
    settings.fontSize = 200;
    settings.placement.xOffset = 20;

    const QImage image = markedPhoto(settings);

    EXPECT_GT(changedPixels(image), 0);
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

TEST(TextMark, OnAPhotoOfOnePixelWorks)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.placement.anchor = 4;

    EXPECT_EQ(markedPhoto(settings, plainPhoto(1, 1)).size(), QSize(1, 1));
    settings.isTiled = true;
    EXPECT_EQ(markedPhoto(settings, plainPhoto(1, 1)).size(), QSize(1, 1));
}

TEST(TextMark, OfHugeLettersIsRenderedOnlyWhereThePhotoShowsIt)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.fontSize = 20000;
    settings.text = block().repeated(50);
    settings.placement.anchor = 4;

    const platform::Image photo = plainPhoto();
    const platform::Stamp stamp = textMark(settings, settings.text, blockFont(), photo);

    EXPECT_LE(stamp.layer.width(), photo.width());
    EXPECT_LE(stamp.layer.height(), photo.height());
}

namespace {

struct HardCase
{
    const char* name;
    QString text;
    int fontSize = 20;
    const char* font = "DejaVu Sans";
    bool isTiled = false;
    int effect = 0;

    friend void PrintTo(const HardCase& row, std::ostream* out) { *out << row.name; }
};

class HardTextMark : public testing::TestWithParam<HardCase>
{
};

QString longText() { return QStringLiteral("watermark ").repeated(1000); }

} // namespace

TEST_P(HardTextMark, MarksThePhotoWithoutALargerLayerThanItNeeds)
{
    const HardCase& row = GetParam();
    TextWatermarkSettings settings = whiteBlock();
    settings.text = row.text;
    settings.fontSize = row.fontSize;
    settings.isTiled = row.isTiled;
    settings.effect = row.effect;
    settings.placement.anchor = 4;
    const platform::Image photo = plainPhoto();

    const platform::Stamp stamp
        = textMark(settings, settings.text, QFont(QString::fromLatin1(row.font)), photo);

    EXPECT_GT(changedPixels(platform::stamped(photo, stamp).toQImage()), 0);
    EXPECT_LE(qint64{stamp.layer.width()} * stamp.layer.height(), 16'000'000);
    EXPECT_LE(stamp.layer.width(), 30'000);
}

INSTANTIATE_TEST_SUITE_P(
    Cases,
    HardTextMark,
    testing::Values(
        HardCase{.name = "TenThousandCharacters", .text = longText()},
        HardCase{.name = "TenThousandCharactersTiled", .text = longText(), .isTiled = true},
        HardCase{.name = "TwoThousandPoints", .text = block(), .fontSize = 2000},
        HardCase{
            .name = "TwoThousandPointsTiled",
            .text = block().repeated(3),
            .fontSize = 2000,
            .isTiled = true},
        HardCase{
            .name = "TwoThousandPointsEmbossed", .text = block(), .fontSize = 2000, .effect = 1},
        HardCase{.name = "MissingFont", .text = block(), .font = "No Such Font"},
        HardCase{.name = "RightToLeft", .text = QStringLiteral("\u0634\u0645\u0633 1")},
        HardCase{.name = "Emoji", .text = QStringLiteral("\U0001F600")},
        HardCase{.name = "NegativeFontSize", .text = block().repeated(9), .fontSize = -5}
    ),
    [](const auto& row) { return row.param.name; }
);
