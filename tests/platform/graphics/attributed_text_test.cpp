// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/graphics/attributed_text.h>

#include <gtest/gtest.h>

#include <QFontMetricsF>

using namespace brenvaldo::platform;

namespace {

TextAttributes plain(int pixelSize = 40)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixelSize);
    return {.font = font};
}

QString text(const char* latin) { return QString::fromLatin1(latin); }

} // namespace

TEST(AttributedText, OfNoTextHasNoSize)
{
    const AttributedText empty(QString(), plain());

    EXPECT_TRUE(empty.size().isEmpty());
    EXPECT_TRUE(empty.shape().isEmpty());
}

TEST(AttributedText, GrowsByTheKerningBehindEachGlyph)
{
    TextAttributes spaced = plain();
    spaced.kerning = 5;

    const double tight = AttributedText(text("ABC"), plain()).size().width();
    const double loose = AttributedText(text("ABC"), spaced).size().width();

    EXPECT_NEAR(loose - tight, 15, 0.01);
}

TEST(AttributedText, HasLineSpacingBetweenLinesOnly)
{
    TextAttributes spaced = plain();
    spaced.lineSpacing = 6;

    const double one = AttributedText(text("A"), spaced).size().height();
    const double three = AttributedText(text("A\nB\nC"), spaced).size().height();

    EXPECT_NEAR(three, 3 * one + 12, 0.01);
}

TEST(AttributedText, IsAsWideAsItsLongestLine)
{
    const double longest = AttributedText(text("MMMM"), plain()).size().width();

    EXPECT_DOUBLE_EQ(AttributedText(text("M\nMMMM\nMM"), plain()).size().width(), longest);
}

TEST(AttributedText, AlignsShortLines)
{
    TextAttributes right = plain();
    right.alignment = TextAlignment::Right;
    const AttributedText leftText(text("MMMM\nI"), plain());
    const AttributedText rightText(text("MMMM\nI"), right);
    const double lineTop = leftText.size().height() / 2;
    const QRectF secondLine(0, lineTop, leftText.size().width() / 2, lineTop);

    EXPECT_TRUE(leftText.shape().intersects(secondLine.adjusted(0, 8, 0, -8)));
    EXPECT_FALSE(rightText.shape().intersects(secondLine.adjusted(0, 8, 0, -8)));
}

TEST(AttributedText, LeansToTheRightAboutItsBaseline)
{
    TextAttributes slanted = plain(100);
    slanted.obliqueness = 0.3;

    const QRectF upright = AttributedText(text("l"), plain(100)).shape().boundingRect();
    const QRectF leaning = AttributedText(text("l"), slanted).shape().boundingRect();

    EXPECT_NEAR(leaning.right() - upright.right(), 0.3 * upright.height(), 0.5);
    EXPECT_NEAR(leaning.left(), upright.left(), 0.5);
}

TEST(AttributedText, OutlinesInsteadOfFilling)
{
    TextAttributes outlined = plain(200);
    outlined.strokeWidth = 3;
    const QPainterPath filledShape = AttributedText(text("I"), plain(200)).shape();
    const QPainterPath outlineShape = AttributedText(text("I"), outlined).shape();
    const QPointF middle = filledShape.boundingRect().center();

    EXPECT_TRUE(filledShape.contains(middle));
    EXPECT_FALSE(outlineShape.contains(middle));
    EXPECT_NEAR(outlineShape.boundingRect().width() - filledShape.boundingRect().width(), 6, 0.1);
}

TEST(AttributedText, UnderlinesItsWholeAdvance)
{
    TextAttributes underlined = plain();
    underlined.underline = UnderlineStyle::Single;
    TextAttributes thick = plain();
    thick.underline = UnderlineStyle::Thick;

    const AttributedText single(text("A  "), underlined);
    const QRectF shape = single.shape().boundingRect();

    EXPECT_NEAR(shape.right(), single.size().width(), 0.5);
    EXPECT_GT(AttributedText(text("A  "), thick).shape().boundingRect().bottom(), shape.bottom());
}

TEST(AttributedText, SetsRightToLeftTextAndEmoji)
{
    const AttributedText mixed(QStringLiteral("\u05e9\u05dc\u05d5\u05dd \U0001F4F7"), plain());

    EXPECT_GT(mixed.size().width(), 0);
    EXPECT_FALSE(mixed.shape().isEmpty());
}
