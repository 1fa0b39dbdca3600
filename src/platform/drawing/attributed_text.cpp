// SPDX-License-Identifier: GPL-3.0-or-later
#include "attributed_text.h"

#include "glyph_drawing.h"

#include <QFontMetricsF>
#include <QPainterPathStroker>
#include <QTextLayout>

#include <algorithm>

namespace brenvaldo::platform::drawing {

namespace {

/// Larger fonts are laid out at this size and magnified: their metrics overflow.
constexpr int largestLayout = 1000;

double scaleOf(const TextAttributes& attributes)
{
    return std::max(1.0, static_cast<double>(attributes.font.pixelSize()) / largestLayout);
}

TextAttributes laidOut(TextAttributes attributes, double scale)
{
    attributes.kerning /= scale;
    attributes.lineSpacing /= scale;
    QFont& font = attributes.font;
    if (font.pixelSize() > largestLayout)
        font.setPixelSize(largestLayout);
    font.setKerning(false);
    font.setLetterSpacing(QFont::AbsoluteSpacing, attributes.kerning);
    font.setHintingPreference(QFont::PreferNoHinting);
    return attributes;
}

bool isLineBreak(QChar unit)
{
    switch (unit.unicode()) {
    case u'\n':
    case u'\v':
    case u'\f':
    case u'\r':
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
    case 0x85:
        return true;
    default:
        return false;
    }
}

/// The lines of the text without its control characters; "\r\n" is one break.
QStringList printableLines(const QString& text)
{
    QStringList lines{QString()};
    QChar previous;
    for (const QChar unit : text) {
        if (isLineBreak(unit)) {
            if (unit != QLatin1Char('\n') || previous != QLatin1Char('\r'))
                lines.append(QString());
        } else if (unit == QLatin1Char('\t') || unit.category() != QChar::Other_Control) {
            lines.last().append(unit);
        }
        previous = unit;
    }
    return lines;
}

QTextOption textOption(double tabInterval)
{
    QTextOption option;
    option.setUseDesignMetrics(true);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    option.setTabStopDistance(tabInterval);
    return option;
}

} // namespace

AttributedText::AttributedText(const QString& text, const TextAttributes& attributes)
    : m_attributes(laidOut(attributes, scaleOf(attributes)))
    , m_scale(scaleOf(attributes))
{
    if (text.isEmpty())
        return;
    const QFontMetricsF metrics(m_attributes.font);
    m_ascent = metrics.ascent();
    m_lineHeight = metrics.ascent() + metrics.descent() + std::max(0.0, metrics.leading());
    double width = 0;
    for (const QString& line : printableLines(text)) {
        m_lines.append(lineOf(line));
        width = std::max(width, m_lines.last().width);
    }
    const auto lines = static_cast<double>(m_lines.size());
    const double spacing = std::max(0.0, m_attributes.lineSpacing);
    m_size = {width, lines * m_lineHeight + (lines - 1) * spacing};
}

AttributedText::Line AttributedText::lineOf(const QString& text) const
{
    constexpr double tabInterval = 28;
    QTextLayout layout(text, m_attributes.font);
    layout.setTextOption(textOption(tabInterval / m_scale));
    layout.beginLayout();
    const QTextLine set = layout.createLine();
    layout.endLayout();
    if (!set.isValid())
        return {};
    Line line{.glyphs = {}, .width = std::max(0.0, set.horizontalAdvance())};
    const QPointF toBaseline(0, -set.ascent());
    for (QGlyphRun run : layout.glyphRuns()) {
        QList<QPointF> positions = run.positions();
        for (QPointF& position : positions)
            position += toBaseline;
        run.setPositions(positions);
        line.glyphs.append(run);
    }
    return line;
}

TextDrawing AttributedText::drawing() const
{
    TextDrawing drawing;
    drawing.shape.setFillRule(Qt::WindingFill);
    const double pitch = m_lineHeight + std::max(0.0, m_attributes.lineSpacing);
    double baseline = m_ascent;
    for (const Line& line : m_lines) {
        const TextDrawing lineDrawing = drawingOfLine(line);
        const QTransform toText = QTransform::fromTranslate(lineLeft(line.width), baseline)
            * QTransform::fromScale(m_scale, m_scale);
        drawing.add(lineDrawing, toText);
        baseline += pitch;
    }
    return drawing;
}

double AttributedText::lineLeft(double width) const
{
    switch (m_attributes.alignment) {
    case TextAlignment::Left:
        return 0;
    case TextAlignment::Center:
        return (m_size.width() - width) / 2;
    case TextAlignment::Right:
        return m_size.width() - width;
    }
    return 0;
}

TextDrawing AttributedText::drawingOfLine(const Line& line) const
{
    const QTransform slant(1, 0, -m_attributes.obliqueness, 1, 0, 0);
    TextDrawing drawing;
    drawing.shape.setFillRule(Qt::WindingFill);
    for (const QGlyphRun& run : line.glyphs) {
        drawing.add(drawingOfGlyphs(run), slant);
    }
    if (m_attributes.strokeWidth > 0)
        drawing.shape = outlined(drawing.shape);
    drawing.shape.addPath(underlineOfWidth(line.width));
    return drawing;
}

QPainterPath AttributedText::outlined(const QPainterPath& glyphs) const
{
    constexpr double miterLimit = 10;
    QPainterPathStroker stroker;
    stroker.setWidth(m_attributes.strokeWidth / 100 * m_attributes.font.pixelSize());
    stroker.setJoinStyle(Qt::MiterJoin);
    stroker.setMiterLimit(miterLimit);
    stroker.setCapStyle(Qt::FlatCap);
    QPainterPath outline = stroker.createStroke(glyphs);
    outline.setFillRule(Qt::WindingFill);
    return outline;
}

QPainterPath AttributedText::underlineOfWidth(double width) const
{
    QPainterPath underline;
    if (m_attributes.underline == UnderlineStyle::None || width <= 0)
        return underline;
    const QFontMetricsF metrics(m_attributes.font);
    const double thickness
        = metrics.lineWidth() * (m_attributes.underline == UnderlineStyle::Thick ? 2 : 1);
    const double middle = metrics.underlinePos();
    underline.addRect(0, middle - thickness / 2, width, thickness);
    return underline;
}

} // namespace brenvaldo::platform::drawing
