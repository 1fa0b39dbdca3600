// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_stylesheets.h"

#include "stylesheet_rules.h"
#include "web_fonts.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

namespace {

void addTableThumbnail(CssText& css, const StylesheetValues& values)
{
    css.rule(
        u"div.dvPGimg img"_s,
        {fontLine(values.fontFamily),
         u"max-width: 100%;"_s,
         u"max-height: %1px;"_s.arg(values.cropHeight),
         u"border-radius:%1px;"_s.arg(values.thumbnailBorder.radius),
         borderLine(values.thumbnailBorder),
         u"display:block;"_s,
         u"margin:auto;"_s}
    );
}

void addTableThumbnailLook(CssText& css, const StylesheetValues& values)
{
    const QStringList size = values.magnifies
        ? QStringList{u"max-width: auto;"_s, u"max-height: auto;"_s}
        : QStringList{u"width: 100%;"_s, u"height: auto;"_s};
    css.rule(
        u".dvPGimg img"_s,
        QStringList{fontLine(values.fontFamily)} + size
            + QStringList{
                borderLine(values.thumbnailBorder),
                shadowLine(values.thumbnailShadow),
                values.magnifies ? softChangeLines() : QString()}
    );
    if (values.magnifies)
        addHoverRule(css, u".dvPGimg img:hover"_s);
}

void addCellFill(CssText& css, const StylesheetValues& values)
{
    const QString& color = values.thumbnailBorder.color;
    css.rule(
        u".dvPGimg"_s,
        {fontLine(values.fontFamily),
         color.isEmpty() ? QString() : u"background-color:%1;"_s.arg(color)}
    );
}

/// A rule for the cells of windows up to a width; `height` shows with limited heights only.
struct WindowRule
{
    int maxWidth;
    QString width;
    QString height;
};

void addWindowRule(
    CssText& css, const StylesheetValues& values, const WindowRule& rule, const QString& lastLines
)
{
    css.raw(u"@media only screen and (max-width: %1px){\n.dvPGresponsive {\n"_s.arg(rule.maxWidth));
    css.raw(u"width: %1%;\n"_s.arg(rule.width));
    if (values.limitsHeights)
        css.raw(rule.height + u"%;\n"_s);
    css.raw(lastLines + u"}\n}\n\n"_s);
}

// The second rule bears the height of the first.
void addWindowRules(CssText& css, const StylesheetValues& values)
{
    const auto& widths = values.columnWidths;
    const WindowRule rules[]
        = {{8000, widths[0], u"height: "_s + widths[0]},
           {1600, widths[1], u"max-height: "_s + widths[0]},
           {1400, widths[2], u"max-height: "_s + widths[2]},
           {1100, widths[3], u"max-height: "_s + widths[3]},
           {900, widths[4], u"max-height: "_s + widths[4]}};
    for (const WindowRule& rule : rules)
        addWindowRule(css, values, rule, u"margin: 1% 0;\n"_s);
    addWindowRule(
        css,
        values,
        {700, u"100"_s, u"max-height: 100"_s},
        u"\ncontent: \"\";\ndisplay: table;\nclear: both;\n"_s
    );
}

void addGridThumbnail(CssText& css)
{
    css.rule(
        u".dvPGimg"_s,
        {u"display: block;"_s, u"width: 90%;"_s, u"margin-left: auto;"_s, u"margin-right: auto;"_s}
    );
    css.rule(u"img"_s, {u"display:block;"_s, u"max-width: 100%;"_s, u"max-height: 100%;"_s});
    css.rule(
        u".dvPGimages"_s,
        {u"max-width: 100%;"_s,
         u"margin: 0 auto;"_s,
         u"display: grid;"_s,
         u"grid-gap: 1rem;"_s,
         u"align-items: center;"_s}
    );
    css.raw(u"\n"_s);
}

QStringList gridPictureLines(const StylesheetValues& values)
{
    return {
        fontLine(values.fontFamily),
        borderLine(values.thumbnailBorder),
        shadowLine(values.thumbnailShadow)};
}

void addStillGridLook(CssText& css, const StylesheetValues& values)
{
    css.rule(
        u".dvPGimg"_s,
        {fontLine(values.fontFamily),
         u"background-color:%1;"_s.arg(values.thumbnailBorder.color),
         u"height: %1px;"_s.arg(values.cropHeight)}
    );
    css.rule(u".dvPGimg img"_s, gridPictureLines(values));
    css.raw(u"\n"_s);
}

void addMagnifyingGridLook(CssText& css, const StylesheetValues& values)
{
    css.rule(u".dvPGimg img"_s, gridPictureLines(values) + QStringList{softChangeLines()});
    addHoverRule(css, u".dvPGimg img:hover"_s);
}

void addGridColumns(CssText& css, int columns)
{
    const int count = columns;
    const struct
    {
        int minWidth;
        int columns;
    } rules[]
        = {{400, count + 2 * ((count / 3 - count) / 2)},
           {700, count - count / 2},
           {1200, count - count / 4},
           {1400, count - count / 6},
           {1600, count}};
    for (const auto& rule : rules) {
        css.raw(u"@media (min-width: %1px) {\n"
                ".dvPGimages { grid-template-columns: repeat(%2, 1fr); }}\n\n"_s.arg(rule.minWidth)
                    .arg(rule.columns));
    }
}

} // namespace

QString tableStylesheet(const StylesheetValues& values)
{
    CssText css;
    addStart(css, values, {});
    addTableThumbnail(css, values);
    addTableThumbnailLook(css, values);
    addTexts(css, values);
    addCellFill(css, values);
    addResponsiveCell(css, values);
    addWindowRules(css, values);
    addEnd(css, values);
    return css.text();
}

QString gridStylesheet(const StylesheetValues& values)
{
    CssText css;
    addStart(css, values, {u"padding: 1rem;"_s});
    addGridThumbnail(css);
    if (values.magnifies)
        addMagnifyingGridLook(css, values);
    else
        addStillGridLook(css, values);
    addTexts(css, values);
    addResponsiveCell(css, values);
    addGridColumns(css, values.columns);
    addEnd(css, values);
    return css.text();
}

} // namespace brenvaldo::gallery
