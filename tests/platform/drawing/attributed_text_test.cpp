// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/attributed_text.h>

#include <support/color_font.h>

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::drawing;

namespace {

TextAttributes plain(int pixelSize = 40)
{
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(pixelSize);
    return {.font = font};
}

QString text(const char* latin) { return QString::fromLatin1(latin); }

} // namespace

TEST(AttributedText, OfNoTextHasNoSize)
{
    const AttributedText empty(QString(), plain());

    EXPECT_TRUE(empty.size().isEmpty());
    EXPECT_TRUE(empty.drawing().shape.isEmpty());
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

    EXPECT_TRUE(leftText.drawing().shape.intersects(secondLine.adjusted(0, 8, 0, -8)));
    EXPECT_FALSE(rightText.drawing().shape.intersects(secondLine.adjusted(0, 8, 0, -8)));
}

TEST(AttributedText, LeansToTheRightAboutItsBaseline)
{
    TextAttributes slanted = plain(100);
    slanted.obliqueness = 0.3;

    const QRectF upright = AttributedText(text("l"), plain(100)).drawing().shape.boundingRect();
    const QRectF leaning = AttributedText(text("l"), slanted).drawing().shape.boundingRect();

    EXPECT_NEAR(leaning.right() - upright.right(), 0.3 * upright.height(), 0.5);
    EXPECT_NEAR(leaning.left(), upright.left(), 0.5);
}

TEST(AttributedText, OutlinesInsteadOfFilling)
{
    TextAttributes outlined = plain(200);
    outlined.strokeWidth = 3;
    const QPainterPath filledShape = AttributedText(text("I"), plain(200)).drawing().shape;
    const QPainterPath outlineShape = AttributedText(text("I"), outlined).drawing().shape;
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
    const QRectF shape = single.drawing().shape.boundingRect();

    EXPECT_NEAR(shape.right(), single.size().width(), 0.5);
    EXPECT_GT(
        AttributedText(text("A  "), thick).drawing().shape.boundingRect().bottom(), shape.bottom()
    );
}

TEST(AttributedText, OfHugeLettersIsTheSmallOneMagnified)
{
    constexpr double factor = 100;
    TextAttributes small = plain(500);
    small.underline = UnderlineStyle::Single;
    small.kerning = 4;
    small.lineSpacing = 10;
    TextAttributes huge = small;
    huge.font.setPixelSize(static_cast<int>(500 * factor));
    huge.kerning = 4 * factor;
    huge.lineSpacing = 10 * factor;

    const AttributedText smallText(text("Ab\nc"), small);
    const AttributedText hugeText(text("Ab\nc"), huge);

    EXPECT_NEAR(hugeText.size().width(), smallText.size().width() * factor, factor / 2);
    EXPECT_NEAR(hugeText.size().height(), smallText.size().height() * factor, factor / 2);
    const QRectF smallShape = smallText.drawing().shape.boundingRect();
    const QRectF hugeShape = hugeText.drawing().shape.boundingRect();
    EXPECT_NEAR(hugeShape.bottom(), smallShape.bottom() * factor, factor / 2);
    EXPECT_NEAR(hugeShape.right(), smallShape.right() * factor, factor / 2);
}

TEST(AttributedText, SetsRightToLeftText)
{
    const AttributedText hebrew(u"\u05e9\u05dc\u05d5\u05dd"_s, plain());
    const QRectF shape = hebrew.drawing().shape.boundingRect();

    EXPECT_GE(shape.left(), 0);
    EXPECT_LE(shape.right(), hebrew.size().width() + 1);
}

TEST(AttributedText, BeginsARightToLeftLineAtTheRight)
{
    // The exclamation mark closes the line: it stands left of the letters.
    const QString line = u"\u05d0\u05d0\u05d0!"_s;
    const QRectF withMark = AttributedText(line, plain()).drawing().shape.boundingRect();
    const QRectF letters = AttributedText(line.chopped(1), plain()).drawing().shape.boundingRect();
    const double markWidth = QFontMetricsF(plain().font).horizontalAdvance(QLatin1Char('!'));

    EXPECT_NEAR(withMark.right() - letters.right(), markWidth, 1);
}

TEST(AttributedText, PutsCombiningMarksOverTheirLetter)
{
    const AttributedText letter(u"e"_s, plain());
    const AttributedText marked(u"e\u0301"_s, plain());

    EXPECT_DOUBLE_EQ(marked.size().width(), letter.size().width());
    EXPECT_LT(
        marked.drawing().shape.boundingRect().top(), letter.drawing().shape.boundingRect().top() - 4
    );
}

TEST(AttributedText, TakesAPairOfLineEndsAsOneBreak)
{
    const QSizeF two = AttributedText(text("A\nB"), plain()).size();

    EXPECT_EQ(AttributedText(text("A\r\nB"), plain()).size(), two);
    EXPECT_EQ(AttributedText(u"A\u2028B"_s, plain()).size(), two);
    EXPECT_GT(AttributedText(text("A\n\nB"), plain()).size().height(), two.height());
}

TEST(AttributedText, ShowsNothingForControlCharacters)
{
    const QString dirty = text("A\x01\x02") + QChar::Null + text("B");

    const AttributedText clean(text("AB"), plain());
    EXPECT_EQ(AttributedText(dirty, plain()).size(), clean.size());
    EXPECT_EQ(AttributedText(dirty, plain()).drawing().shape, clean.drawing().shape);
}

TEST(AttributedText, GoesOnToTheNextStopAtATab)
{
    constexpr double tabInterval = 28;
    const double b = AttributedText(text("B"), plain(20)).size().width();

    EXPECT_NEAR(AttributedText(text("\tB"), plain(20)).size().width(), tabInterval + b, 0.5);
    EXPECT_NEAR(AttributedText(text("i\tB"), plain(20)).size().width(), tabInterval + b, 0.5);
    EXPECT_NEAR(AttributedText(text("MM\tB"), plain(20)).size().width(), 2 * tabInterval + b, 0.5);
}

namespace {

class PictureText : public testing::Test
{
protected:
    ~PictureText() override { QFontDatabase::removeApplicationFont(m_font); }

    static TextAttributes attributes(int pixelSize)
    {
        QFont font(u"Test Pictures"_s);
        font.setPixelSize(pixelSize);
        return {.font = font};
    }

    static QImage drawn(const AttributedText& text, const QBrush& fill)
    {
        QImage image(text.size().toSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        text.drawing().draw(painter, fill);
        return image;
    }

    const QString picture{QChar(0xF8F0)};

private:
    int m_font
        = QFontDatabase::addApplicationFontFromData(brenvaldo::test::pictureFont(qRgb(200, 40, 90))
        );
};

} // namespace

TEST_F(PictureText, KeepsItsOwnColors)
{
    for (const int size : {20, 64, 160, 300}) {
        const AttributedText text(picture, attributes(size));

        const QImage image = drawn(text, Qt::black);

        EXPECT_NEAR(text.size().width(), size, 0.05 * size);
        const QRgb middle = image.pixel(size / 2, size / 2);
        EXPECT_NEAR(qRed(middle), 200, 2) << size;
        EXPECT_NEAR(qGreen(middle), 40, 2) << size;
        EXPECT_NEAR(qBlue(middle), 90, 2) << size;
    }
}

TEST_F(PictureText, IsAsTranslucentAsItsFill)
{
    const AttributedText text(picture, attributes(64));

    const QRgb middle = drawn(text, QColor(0, 0, 0, 128)).pixel(32, 32);

    EXPECT_NEAR(qRed(middle), (200 + 255) / 2, 2);
    EXPECT_NEAR(qGreen(middle), (40 + 255) / 2, 2);
}

TEST_F(PictureText, HoldsNoLargerPictureThanTheFontHas)
{
    const TextDrawing drawing = AttributedText(picture, attributes(20000)).drawing();

    ASSERT_EQ(drawing.pictures.size(), 1);
    EXPECT_LE(drawing.pictures.first().image.width(), 200);
}

TEST_F(PictureText, LeansAndStandsBesideLetters)
{
    TextAttributes slanted = plain(64);
    slanted.obliqueness = 0.3;

    const TextDrawing drawing = AttributedText(text("A") + picture, slanted).drawing();

    ASSERT_EQ(drawing.pictures.size(), 1);
    const QTransform& place = drawing.pictures.first().place;
    EXPECT_GT(place.map(QPointF(0, 0)).x(), place.map(QPointF(0, 64)).x() + 15);
    EXPECT_GT(place.map(QPointF(0, 64)).x(), 30);
    EXPECT_FALSE(drawing.shape.isEmpty());
}
