// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

/// \file
/// The one place for colours, measures and type of the window.

namespace brenvaldo::views {

enum class Scheme { Light, Dark };

/// The colours of one scheme, named after what they paint.
struct Colors
{
    QColor window; ///< behind forms and tool bars
    QColor field; ///< inside text fields and pop-ups
    QColor border; ///< hairline round fields and between areas
    QColor text;
    QColor muted; ///< labels, units and hints
    QColor disabled;
    QColor accent; ///< lines, marks and words
    QColor accentGround; ///< behind text and marks in `onAccent`
    QColor accentHover; ///< the ground under the pointer
    QColor onAccent;
    QColor selection; ///< behind selected items
    QColor hover; ///< behind what the pointer stands on
    QColor track; ///< grooves of bars, cells of the position grid
    QColor canvas; ///< behind the big preview
};

/// Measures in device-independent pixels.
struct Metrics
{
    static constexpr int radius = 5;
    static constexpr int gap = 8; ///< between fields side by side
    static constexpr int rowGap = 8;
    static constexpr int margin = 14; ///< round a form
    static constexpr int labelColumn = 92;
    static constexpr int fieldHeight = 30;
    static constexpr int inspectorWidth = 392;
    static constexpr int scrollBar = 12;
    /// Room for a form in the inspector, beside its scroll bar.
    static constexpr int formWidth = inspectorWidth - 1 - 2 * margin - scrollBar;
};

[[nodiscard]] const Colors& colorsOf(Scheme scheme);

/// Dark when text is lighter than what stands behind it.
[[nodiscard]] Scheme schemeOf(const QPalette& palette);

/// Colours of the scheme that the application shows at present.
[[nodiscard]] const Colors& colors();

/// The palette of a scheme in our colours.
[[nodiscard]] QPalette paletteOf(Scheme scheme);

/// The typeface of the window: Inter where it is installed, else the system's.
[[nodiscard]] QFont windowFont();

/// `base` made smaller (below 1) or larger.
[[nodiscard]] QFont scaledFont(const QFont& base, double factor);

/// Font of group headings: small capitals by size and spacing.
[[nodiscard]] QFont headingFont(const QFont& base);

/// Gives the application our style and typeface; colours then follow the desktop while running.
void applyTheme();

} // namespace brenvaldo::views
