// SPDX-License-Identifier: GPL-3.0-or-later
#include "attributed_text.h"

#include <platform/foundation/text.h>

#include <QFontMetricsF>
#include <QPainterPathStroker>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform {

namespace {

QFont spacedFont(const TextAttributes& attributes)
{
    QFont font = attributes.font;
    font.setKerning(false);
    font.setLetterSpacing(QFont::AbsoluteSpacing, attributes.kerning);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

AttributedText::AttributedText(const QString& text, const TextAttributes& attributes)
    : m_attributes(attributes)
{
    m_attributes.font = spacedFont(attributes);
    if (text.isEmpty())
        return;
    m_lines = splitAtNewlines(text);
    const QFontMetricsF metrics(m_attributes.font);
    m_ascent = metrics.ascent();
    m_lineHeight = metrics.ascent() + metrics.descent() + std::max(0.0, metrics.leading());
    double width = 0;
    for (const QString& line : std::as_const(m_lines))
        width = std::max(width, lineWidth(line));
    const auto lines = static_cast<double>(m_lines.size());
    const double spacing = std::max(0.0, m_attributes.lineSpacing);
    m_size = {width, lines * m_lineHeight + (lines - 1) * spacing};
}

QPainterPath AttributedText::shape() const
{
    QPainterPath shape;
    shape.setFillRule(Qt::WindingFill);
    const double pitch = m_lineHeight + std::max(0.0, m_attributes.lineSpacing);
    double baseline = m_ascent;
    for (const QString& line : m_lines) {
        const double width = lineWidth(line);
        const double left = lineLeft(width);
        shape.addPath(glyphsOfLine(line, left, baseline));
        shape.addPath(underlineOfLine(left, width, baseline));
        baseline += pitch;
    }
    return shape;
}

double AttributedText::lineWidth(const QString& line) const
{
    return std::max(0.0, QFontMetricsF(m_attributes.font).horizontalAdvance(line));
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

QPainterPath AttributedText::glyphsOfLine(const QString& line, double left, double baseline) const
{
    QPainterPath glyphs;
    glyphs.setFillRule(Qt::WindingFill);
    glyphs.addText(QPointF(0, 0), m_attributes.font, line);
    if (m_attributes.obliqueness != 0)
        glyphs = QTransform(1, 0, -m_attributes.obliqueness, 1, 0, 0).map(glyphs);
    if (m_attributes.strokeWidth > 0)
        glyphs = outlined(glyphs);
    return glyphs.translated(left, baseline);
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

QPainterPath AttributedText::underlineOfLine(double left, double width, double baseline) const
{
    QPainterPath underline;
    if (m_attributes.underline == UnderlineStyle::None || width <= 0)
        return underline;
    const QFontMetricsF metrics(m_attributes.font);
    const double thickness
        = metrics.lineWidth() * (m_attributes.underline == UnderlineStyle::Thick ? 2 : 1);
    const double middle = baseline + metrics.underlinePos();
    underline.addRect(left, middle - thickness / 2, width, thickness);
    return underline;
}

} // namespace brenvaldo::platform
