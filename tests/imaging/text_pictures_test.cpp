// SPDX-License-Identifier: GPL-3.0-or-later
#include "plain_colors.h"

#include <imaging/dv_image_handling.h>

#include <platform/drawing/attributed_text.h>
#include <platform/graphics/color.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QPainter>

using namespace Qt::StringLiterals;
using namespace brenvaldo::imaging;
using brenvaldo::platform::drawing::AttributedText;
using brenvaldo::platform::graphics::Color;
using brenvaldo::test::plainGreen;
using brenvaldo::test::plainRed;

namespace {

constexpr Color white{.red = 1, .green = 1, .blue = 1};

/// A white disc, half as wide as the layer, in its middle.
QImage discLayer()
{
    QImage layer(120, 100, QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setBrush(Qt::white);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPoint(60, 50), 30, 30);
    return layer;
}

QImage embossed(const QString& texture, const Color& color = plainRed, float scale = 0.5F)
{
    return DVImageHandling::embossTextWatermarkEffect(discLayer(), texture, color, scale);
}

} // namespace

TEST(EmbossedText, IsAsLargeAndAsOpaqueAsItsLayer)
{
    const QImage layer = discLayer();

    const QImage relief = embossed(u"texture2"_s);

    ASSERT_EQ(relief.size(), layer.size());
    EXPECT_EQ(qAlpha(relief.pixel(60, 50)), 255);
    EXPECT_EQ(qAlpha(relief.pixel(2, 2)), 0);
}

TEST(EmbossedText, IsLitFromTheSideOfTheTexturesLamp)
{
    const QImage relief = embossed(u"texture3"_s);

    EXPECT_GT(qGray(relief.pixel(38, 31)), qGray(relief.pixel(82, 69)) + 40);
}

TEST(EmbossedText, LooksDifferentForEachTexture)
{
    QList<QImage> reliefs;
    for (int number = 1; number <= 8; ++number)
        reliefs.append(embossed(u"texture%1"_s.arg(number)));

    for (int i = 0; i < reliefs.size(); ++i) {
        for (int j = 0; j < i; ++j)
            EXPECT_NE(reliefs.at(i), reliefs.at(j)) << i << " and " << j;
    }
}

TEST(EmbossedText, TakesItsColorForTheSixthTextureOnly)
{
    EXPECT_NE(embossed(u"texture6"_s, plainRed), embossed(u"texture6"_s, plainGreen));
    EXPECT_EQ(embossed(u"texture5"_s, plainRed), embossed(u"texture5"_s, plainGreen));
}

TEST(EmbossedText, HasTheDefaultHeightWhateverTheScale)
{
    EXPECT_EQ(embossed(u"texture1"_s, plainRed, 0.5F), embossed(u"texture1"_s, plainRed, 40));
}

TEST(ColorBall, IsOfTheColorAtItsHighlightAndBlackAtItsRim)
{
    const QImage ball = DVImageHandling::h3DcolorEffect({.red = 1, .green = 0.5, .blue = 0});

    ASSERT_EQ(ball.size(), QSize(134, 134));
    const QRgb highlight = ball.pixel(67, 134 - 97);
    EXPECT_NEAR(qRed(highlight), 255, 12);
    EXPECT_NEAR(qGreen(highlight), 128, 8);
    EXPECT_EQ(qBlue(highlight), 0);
    EXPECT_LT(qRed(ball.pixel(67, 130)), 12);
    EXPECT_EQ(qAlpha(ball.pixel(1, 1)), 0);
}

TEST(PictureOfAText, ShowsTheTextOnAGroundOfItsMeasuredSize)
{
    QFont font(u"DejaVu Sans Mono"_s);
    font.setPixelSize(40);
    const AttributedText text(u"\u25a0 "_s, {.font = font}); // a square, then a blank

    const QImage image = DVImageHandling::imageWithAttributedString(text, white, plainRed);

    EXPECT_EQ(image.width(), qCeil(text.size().width()));
    EXPECT_EQ(image.height(), qCeil(text.size().height()));
    const QPoint square = text.drawing().shape.boundingRect().center().toPoint();
    EXPECT_EQ(image.pixel(square), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(image.width() - 1, image.height() - 1), qRgb(255, 0, 0));
}

TEST(PictureOfAText, OfNoTextIsNone)
{
    EXPECT_TRUE(
        DVImageHandling::imageWithAttributedString(AttributedText({}, {}), white, plainRed).isNull()
    );
}
