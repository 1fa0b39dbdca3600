// SPDX-License-Identifier: GPL-3.0-or-later
#include "slide_show_rules.h"
#include "slide_show_stylesheets.h"
#include "stylesheet_rules.h"
#include "web_fonts.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

namespace {

void addGridContainer(CssText& css, const ResponsiveGridValues& values)
{
    css.rule(u".dvpgrResponsiveGrid-container"_s, {u"max-width: 1200px;"_s, u"margin: 0 auto;"_s});
    addPageBackground(css, u".dvpgrResponsiveGrid-container::after"_s, values.pageBackground);
}

void addMagnifying(CssText& css, const ResponsiveGridValues& values)
{
    if (!values.magnifies && !values.magnifiesToo)
        return;
    for (const QString& cell : {u".dvpgrImage"_s, u".dvpgrImage4"_s})
        addHoverRule(css, cell + u" img:hover"_s);
    for (const QString& cell : {u".dvpgrImage"_s, u".dvpgrImage4"_s})
        css.rule(cell + u" img"_s, {softChangeLines()});
}

void addGridPattern(CssText& css, const PatternLook& pattern)
{
    css.rule(
        u".dvpgrResponsiveGrid-container::before"_s,
        QStringList{u"background-image: url(../DVpgPatterns/%1);"_s.arg(pattern.file)}
            + patternLines(pattern)
    );
    css.rule(
        u".dvSsPatternBox"_s,
        layerLines(u"absolute"_s)
            + QStringList{u"display: block;"_s, u"width: 100%;"_s, u"height: 100%;"_s}
    );
}

QString repeatedTracks(const QString& axis, const QString& size)
{
    return u"grid-template-%1: repeat(auto-fill, minmax(%2px, 1fr));"_s.arg(axis, size);
}

void addDenseGrid(CssText& css, const ResponsiveGridValues& values)
{
    css.rule(u"body, html"_s, {u"height: 100%;"_s});
    css.rule(u"body.blurred > *"_s, {u"-webkit-filter: blur(2px);"_s});
    css.rule(
        u".dvpgrGrid"_s,
        {u"display: grid;"_s,
         repeatedTracks(u"columns"_s, values.columnSize),
         repeatedTracks(u"rows"_s, values.rowSize),
         u"grid-gap: 6px;"_s,
         u"grid-auto-flow: row dense;"_s}
    );
}

void addCell(CssText& css, const QString& name, int cells)
{
    css.rule(
        name,
        {u"position: relative;"_s,
         u"grid-row: span %1;"_s.arg(cells),
         u"grid-column: span %1;"_s.arg(cells)}
    );
    css.rule(name + u", "_s + name + u" img"_s, {u"width: 100%;"_s, u"height: 100%;"_s});
}

void addCells(CssText& css)
{
    css.rule(u".dvpgrImage"_s, {u"position: relative;"_s});
    addCell(css, u".dvpgrImageVertical"_s, 2);
    css.rule(u".dvpgrImageVertical img"_s, {u"object-fit: cover;"_s});
    addCell(css, u".dvpgrImage4"_s, 3);
}

void addGridTexts(CssText& css, const ResponsiveGridValues& values)
{
    addCaptionOnPicture(css, values.fontFamily, values.caption, {});
    css.rule(u".dvSsRef"_s, {u"position: absolute;"_s, u"bottom: -30px;"_s, u"right: 0;"_s});
    css.rule(
        u".dvpgrRgDescription"_s,
        QStringList{u"padding: 8px 12px;"_s, fontLine(values.fontFamily)} + titleLines(values.title)
            + titlePlaceLines()
    );
}

} // namespace

QString responsiveGridStylesheet(const ResponsiveGridValues& values)
{
    CssText css;
    addGridContainer(css, values);
    addMagnifying(css, values);
    addGridPattern(css, values.pattern);
    addDenseGrid(css, values);
    addCells(css);
    addGridTexts(css, values);
    addLightbox(
        css,
        {.comment = u"/* dravoth: lightbox of the responsive grid */\n"_s,
         .background = values.lightboxBackground,
         .opacity = values.lightboxOpacity,
         .imageLines = {u"border: 4 px solid #000000;"_s, u"box-shadow: 10px 10px 10px #000000;"_s},
         .captionAlignment = values.caption.alignment,
         .captionTextLines
         = {u"font-weight:%1;"_s.arg(values.caption.weight),
            u"color:%1;"_s.arg(values.caption.color),
            u"font-size:%1;"_s.arg(values.caption.size),
            fontLine(values.fontFamily)}}
    );
    return css.text();
}

} // namespace brenvaldo::gallery
