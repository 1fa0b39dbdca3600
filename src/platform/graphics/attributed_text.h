// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QPainterPath>
#include <QSizeF>
#include <QString>
#include <QStringList>

namespace brenvaldo::platform {

enum class TextAlignment { Left, Center, Right };
enum class UnderlineStyle { None, Single, Thick };

/// How a text is set. One point is one pixel.
struct TextAttributes
{
    QFont font; ///< its pixel size is the size in points
    double kerning = 0; ///< points added behind each glyph; the font's own pair kerning is off
    double lineSpacing = 0; ///< points between the bottom of a line and the top of the next
    double obliqueness = 0; ///< horizontal skew per point of height, about the baseline
    /// Width of the outline in percent of the font size; above 0 the glyphs are outlined and not
    /// filled.
    double strokeWidth = 0;
    UnderlineStyle underline = UnderlineStyle::None;
    TextAlignment alignment = TextAlignment::Left;
};

/// A text of one or more lines with attributes, measured and turned into shapes.
class AttributedText
{
public:
    AttributedText(const QString& text, const TextAttributes& attributes);

    /// Width of the longest line and height of all lines; empty for an empty text. Slant, outline
    /// and shadow may reach beyond it.
    [[nodiscard]] QSizeF size() const { return m_size; }

    /// All that is to be filled with the text's colour; the origin is the top left corner, y runs
    /// down.
    [[nodiscard]] QPainterPath shape() const;

private:
    [[nodiscard]] double lineWidth(const QString& line) const;
    [[nodiscard]] double lineLeft(double width) const;
    [[nodiscard]] QPainterPath
    glyphsOfLine(const QString& line, double left, double baseline) const;
    [[nodiscard]] QPainterPath underlineOfLine(double left, double width, double baseline) const;
    [[nodiscard]] QPainterPath outlined(const QPainterPath& glyphs) const;

    QStringList m_lines;
    TextAttributes m_attributes;
    double m_lineHeight = 0;
    double m_ascent = 0;
    QSizeF m_size;
};

} // namespace brenvaldo::platform
