// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text_drawing.h"

#include <QFont>
#include <QGlyphRun>
#include <QSizeF>
#include <QString>

namespace brenvaldo::platform::drawing {

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

/// A text of one or more lines with attributes, measured and turned into what is drawn.
///
/// Each line runs in the direction of its first letter. A tab goes on to the next multiple of 28
/// points; other control characters show nothing.
class AttributedText
{
public:
    AttributedText(const QString& text, const TextAttributes& attributes);

    /// Width of the longest line and height of all lines; empty for an empty text. Slant, outline
    /// and shadow may reach beyond it.
    [[nodiscard]] QSizeF size() const { return m_size * m_scale; }

    [[nodiscard]] TextDrawing drawing() const;

private:
    /// A line whose glyphs stand on a baseline at 0 and begin at 0.
    struct Line
    {
        QList<QGlyphRun> glyphs;
        double width = 0;
    };

    [[nodiscard]] Line lineOf(const QString& text) const;
    [[nodiscard]] double lineLeft(double width) const;
    [[nodiscard]] TextDrawing drawingOfLine(const Line& line) const;
    [[nodiscard]] QPainterPath underlineOfWidth(double width) const;
    [[nodiscard]] QPainterPath outlined(const QPainterPath& glyphs) const;

    QList<Line> m_lines;
    TextAttributes m_attributes; ///< at the size of layout, as are all lengths below
    double m_scale = 1; ///< from the size of layout to that of the text
    double m_lineHeight = 0;
    double m_ascent = 0;
    QSizeF m_size;
};

} // namespace brenvaldo::platform::drawing
