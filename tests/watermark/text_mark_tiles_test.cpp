// SPDX-License-Identifier: GPL-3.0-or-later
#include "marked_text.h"

#include <platform/foundation/literals.h>

#include <support/pixel_probe.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::test;
using watermark::TextEffect;
using watermark::TextWatermarkSettings;

namespace {

int floorModulo(int value, int size) { return ((value % size) + size) % size; }

/// Pixels by which the covered span begins before the photo: half of what one tile more than fits
/// is too long.
int overhang(int photo, int layer) { return ((photo / layer + 1) * layer - photo) / 2; }

/// The pattern of `size` pixels whose bottom left corner is that of a cell, each pixel looked up in
/// the cell by the rules of tiling.
QImage
expectedPattern(const TextWatermarkSettings& settings, const QImage& layer, const QSize& size)
{
    const int xGap = settings.placement.xOffset;
    const int yGap = settings.placement.yOffset;
    const QSize cellSize(layer.width() + xGap, layer.height() + yGap);
    QImage cell(cellSize, QImage::Format_ARGB32_Premultiplied);
    cell.fill(Qt::transparent);
    QPainter(&cell).drawImage(xGap / 2, cell.height() - yGap / 2 - layer.height(), layer);

    QImage pattern(size, QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < pattern.height(); ++row) {
        const int cellRow
            = cell.height() - 1 - floorModulo(pattern.height() - 1 - row, cell.height());
        for (int column = 0; column < pattern.width(); ++column)
            pattern.setPixel(column, row, cell.pixel(floorModulo(column, cell.width()), cellRow));
    }
    return pattern;
}

/// The photo below a pattern of one tile more than fits in each direction, with the shadow of that.
QImage expectedTiles(const TextWatermarkSettings& settings, const platform::graphics::Image& photo)
{
    const QImage layer = wholeLayer(overlayOf(settings, photo));
    const int left = -overhang(photo.width(), layer.width());
    const int below = overhang(photo.height(), layer.height());
    const QSize size(
        (photo.width() / layer.width() + 1) * layer.width(),
        (photo.height() / layer.height() + 1) * layer.height()
    );
    const QPoint topLeft(left, photo.height() + below - size.height());
    QImage pattern(size, QImage::Format_ARGB32_Premultiplied);
    pattern.fill(Qt::transparent);
    QPainter fader(&pattern);
    fader.setOpacity(settings.opacity);
    fader.drawImage(0, 0, expectedPattern(settings, layer, size));
    fader.end();

    QImage expected = photo.toQImage();
    QPainter painter(&expected);
    if (settings.shadow && settings.effect == TextEffect::Relief2) {
        constexpr int margin = 60;
        painter.drawImage(
            topLeft - QPoint(margin, margin),
            platform::drawing::shadowLayer(pattern, *settings.shadow, margin)
        );
    }
    painter.drawImage(topLeft, pattern);
    return expected;
}

TextWatermarkSettings tiledBlock(int xOffset = 0, int yOffset = 0)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.isTiled = true;
    settings.placement.xOffset = xOffset;
    settings.placement.yOffset = yOffset;
    return settings;
}

struct TilesCase
{
    const char* name;
    int xOffset = 0;
    int yOffset = 0;
    int angle = 0;
    double opacity = 1;
    TextEffect effect = TextEffect::Plain;
    platform::graphics::PixelSize photo{.width = 161, .height = 121};
    std::optional<platform::drawing::Shadow> shadow = {};

    friend void PrintTo(const TilesCase& row, std::ostream* out) { *out << row.name; }
};

class TextMarkTiles : public testing::TestWithParam<TilesCase>
{
};

} // namespace

TEST_P(TextMarkTiles, CoverThePhotoPixelByPixel)
{
    const TilesCase& row = GetParam();
    TextWatermarkSettings settings = tiledBlock(row.xOffset, row.yOffset);
    settings.text = u"A"_s + block();
    settings.placement.angle = row.angle;
    settings.opacity = row.opacity;
    settings.effect = row.effect;
    settings.shadow = row.shadow;
    const platform::graphics::Image photo = plainPhoto(row.photo.width, row.photo.height);

    const QImage found = markedPhoto(settings, photo);

    EXPECT_LE(largestDifference(found, expectedTiles(settings, photo)), 1);
    EXPECT_GT(changedPixels(found), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    TextMarkTiles,
    testing::Values(
        TilesCase{.name = "WithoutGaps"},
        TilesCase{.name = "EvenGaps", .xOffset = 10, .yOffset = 6},
        TilesCase{.name = "OddGaps", .xOffset = 7, .yOffset = 3},
        TilesCase{.name = "Overlapping", .xOffset = -5, .yOffset = -3},
        TilesCase{.name = "GapsLargerThanThePhoto", .xOffset = 180, .yOffset = 130},
        TilesCase{.name = "Turned", .xOffset = 4, .yOffset = 2, .angle = 30},
        TilesCase{.name = "Translucent", .xOffset = 4, .yOffset = 2, .opacity = 0.5},
        TilesCase{.name = "Embossed", .xOffset = 4, .yOffset = 2, .effect = TextEffect::Relief2},
        TilesCase{
            .name = "EmbossedWithASharpShadow",
            .xOffset = 9,
            .yOffset = 9,
            .effect = TextEffect::Relief2,
            .shadow = platform::drawing::Shadow{.color = {.red = 1}, .xOffset = 4, .yOffset = -3}},
        TilesCase{
            .name = "EmbossedWithAShadowFromAfar",
            .xOffset = 9,
            .yOffset = 9,
            .effect = TextEffect::Relief2,
            .shadow = platform::drawing::
                Shadow{.color = {.red = 1}, .xOffset = -50, .yOffset = 30, .blurRadius = 6}},
        TilesCase{
            .name = "EmbossedTranslucentWithASoftShadow",
            .xOffset = 9,
            .yOffset = 9,
            .opacity = 0.5,
            .effect = TextEffect::Relief2,
            .shadow = platform::drawing::
                Shadow{.color = {.red = 1}, .xOffset = 1, .yOffset = 1, .blurRadius = 30}},
        TilesCase{.name = "SmallPhoto", .xOffset = 4, .photo = {.width = 11, .height = 9}}
    ),
    [](const auto& row) { return row.param.name; }
);

TEST(TextMark, TilingIgnoresThePosition)
{
    TextWatermarkSettings settings = tiledBlock();
    const QImage first = markedPhoto(settings);
    settings.placement.anchor = 8;

    EXPECT_EQ(markedPhoto(settings), first);
}

TEST(TextMark, OffsetsThatEatTheTileUpLeaveNoMark)
{
    const platform::graphics::PixelSize layer = overlayOf(tiledBlock()).size();

    EXPECT_EQ(changedPixels(markedPhoto(tiledBlock(-layer.width, 0))), 0);
    EXPECT_EQ(changedPixels(markedPhoto(tiledBlock(0, -layer.height - 5))), 0);
}

TEST(TextMark, TilesLargerThanThePhotoStandWhereSmallOnesWould)
{
    // The photo shows the middle of one cell, where the block ends and the blank begins.
    TextWatermarkSettings settings = tiledBlock(-100, 20);
    settings.text = block() + QLatin1Char(' ');
    settings.fontSize = 5000;
    const platform::graphics::Image photo = plainPhoto();
    const watermark::TextOverlay overlay = overlayOf(settings, photo);
    const platform::graphics::PixelSize layer = overlay.size();

    const QImage found = markedPhoto(settings, photo);

    int different = 0;
    for (int row = 0; row < photo.height(); row += 5) {
        const int y = photo.height() - 1 - row + overhang(photo.height(), layer.height) - 10;
        for (int column = 0; column < photo.width(); column += 5) {
            const int x = column + overhang(photo.width(), layer.width) + 50;
            const QImage pixel = overlay.rendered({x, layer.height - 1 - y, 1, 1});
            const bool isMarked = qAlpha(pixel.pixel(0, 0)) > 0;
            different += isChanged(found.pixel(column, row)) == isMarked ? 0 : 1;
        }
    }
    EXPECT_EQ(different, 0);
    EXPECT_GT(changedPixels(found), 1000);
    EXPECT_LT(changedPixels(found), photo.width() * photo.height() - 1000);
}

TEST(TextMark, TilesLargerThanThePhotoCastTheirShadow)
{
    TextWatermarkSettings settings = tiledBlock(-100, 20);
    settings.text = block() + QLatin1Char(' ');
    settings.fontSize = 5000;
    settings.effect = TextEffect::Relief1;
    const QImage plain = markedPhoto(settings);
    settings.shadow = platform::drawing::Shadow{
        .color = {.red = 1}, .xOffset = 30, .yOffset = 0, .blurRadius = 0};

    const QImage found = markedPhoto(settings);

    const int row = found.height() / 2;
    int edge = 0; // the first column right of the block
    while (isChanged(plain.pixel(edge, row)))
        ++edge;
    ASSERT_GT(edge, 0);
    ASSERT_LT(edge + 40, found.width());
    EXPECT_EQ(found.pixel(edge - 3, row), plain.pixel(edge - 3, row));
    EXPECT_EQ(found.pixel(edge + 1, row), qRgb(255, 0, 0));
    EXPECT_EQ(found.pixel(edge + 28, row), qRgb(255, 0, 0));
    EXPECT_EQ(found.pixel(edge + 32, row), photoColor);
}
