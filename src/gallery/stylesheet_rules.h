// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "css_text.h"
#include "stylesheet_values.h"

#include <QString>
#include <QStringList>

namespace brenvaldo::gallery {

/// \file
/// Rules that the stylesheets of a gallery share, each appended to the text.

/// The line around a thumbnail; nothing for a thickness of "0" or none.
[[nodiscard]] QString borderLine(const BorderLook& border);

/// "box-shadow: 2px 3px 5px #8F8F8F;"
[[nodiscard]] QString shadowLine(const ShadowLook& shadow);

/// Place and extent of a layer that fills the window behind or before a page.
[[nodiscard]] QStringList layerLines(const QString& position);

void addPageBackground(CssText& css, const QString& selector, const QString& color);
void addHoverRule(CssText& css, const QString& selector);

/// A thumbnail that changes its size softly.
[[nodiscard]] QString softChangeLines();

/// From the top of the file to the cells, which both models begin with; `bodyLines` follow the
/// height of the page's body.
void addStart(CssText& css, const StylesheetValues& values, const QStringList& bodyLines);

/// File name, caption and box sizing.
void addTexts(CssText& css, const StylesheetValues& values);

void addResponsiveCell(CssText& css, const StylesheetValues& values);

/// From the navigation between pages to the lightbox, which both models end with.
void addEnd(CssText& css, const StylesheetValues& values);

/// What differs between the lightboxes of the stylesheets.
struct LightboxRules
{
    QString comment;
    platform::graphics::Color background;
    QString opacity;
    QStringList imageLines; ///< border, shadow and radius
    QString captionAlignment;
    QStringList captionTextLines; ///< colour, size, height and font
};

void addLightbox(CssText& css, const LightboxRules& rules);

} // namespace brenvaldo::gallery
