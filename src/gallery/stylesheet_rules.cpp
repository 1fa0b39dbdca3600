// SPDX-License-Identifier: GPL-3.0-or-later
#include "stylesheet_rules.h"

#include "web_fonts.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

namespace {

void addNavigation(CssText& css, const StylesheetValues& values)
{
    for (const QString& selector : {u".dvPGpageNav"_s, u"div.dvPGpageNav"_s}) {
        css.rule(
            selector,
            {fontLine(values.fontFamily),
             u"font-weight:900;"_s,
             u"color:#9595BA;"_s,
             u"font-size:medium;"_s,
             u"color:#000000;"_s}
        );
    }
}

void addHeading(CssText& css, const StylesheetValues& values)
{
    const TextLook& title = values.title;
    css.rule(
        u".dvPGtitle"_s,
        {fontLine(values.fontFamily),
         u"font-size:%1;"_s.arg(title.size),
         u"font-weight:%1;"_s.arg(title.weight),
         u"color:%1;"_s.arg(title.color),
         u"text-align:%1;"_s.arg(title.alignment)}
    );
}

void addFileNameText(CssText& css, const StylesheetValues& values)
{
    const TextLook& fileName = values.fileName;
    css.rule(
        u".dvPGphotoname"_s,
        {fontLine(values.fontFamily),
         u"padding: 1%;"_s,
         u"color:%1;"_s.arg(fileName.color),
         u"text-align:%1;"_s.arg(fileName.alignment),
         u"font-size:%1;"_s.arg(fileName.size),
         u"font-weight:%1;"_s.arg(fileName.weight),
         u"display:block;"_s,
         u"margin-top:%1px;"_s.arg(values.thumbnailShadow.blur)}
    );
}

void addCaptionText(CssText& css, const StylesheetValues& values)
{
    const TextLook& caption = values.caption;
    css.rule(
        u".dvPGdescription"_s,
        {fontLine(values.fontFamily),
         u"padding: 1%;"_s,
         u"color:%1;"_s.arg(caption.color),
         u"text-align:%1;"_s.arg(caption.alignment),
         u"font-size:%1;"_s.arg(caption.size),
         u"font-weight:%1;"_s.arg(caption.weight)}
    );
}

void addNavigationLinks(CssText& css)
{
    css.rule(
        u"#navBar a"_s,
        {u"display: inline-block;"_s,
         u"padding: 1px 4px;"_s,
         u"border: 1px solid #CCCCCC;"_s,
         u"border-radius: 4px 4px 4px 4px;"_s,
         u"color: #111111;"_s,
         u"background-color:#FFFFFF;"_s}
    );
}

QString shareOf255(double component) { return QString::number(component * 255.0, 'f', 6); }

QString backgroundOf(const LightboxRules& rules)
{
    return u"background-color: rgba(%1,%2,%3,%4);"_s.arg(
        shareOf255(rules.background.red),
        shareOf255(rules.background.green),
        shareOf255(rules.background.blue),
        rules.opacity
    );
}

void addLightboxLayer(CssText& css, const LightboxRules& rules)
{
    css.raw(rules.comment);
    css.raw(u".dvPGlightbox{\n"_s);
    for (const QString& line :
         {u"cursor: pointer;"_s,
          u"position: fixed;"_s,
          u"width: 100%;"_s,
          u"height: 100%;"_s,
          u"top: 0;"_s,
          u"left: 0;"_s,
          backgroundOf(rules),
          u"-webkit-filter: none !important;"_s,
          u"z-index: 9997;"_s})
        css.raw(line + u'\n');
    css.raw(u"}\n\n"_s);
    css.rule(
        u".dvPGlightbox img"_s,
        QStringList{u"display: block;"_s, u"position: absolute;"_s} + rules.imageLines
    );
}

void addLoading(CssText& css)
{
    css.rule(u"body.blurred > *"_s, {u"-webkit-filter: blur(2px);"_s});
    css.rule(
        u".dvPGlightbox_loading"_s,
        {u"background: url(loading.gif) center center no-repeat;"_s,
         u"width: 32px;"_s,
         u"height: 32px;"_s,
         u"margin: -16px 0 0 -16px;"_s,
         u"position: absolute;"_s,
         u"top: 50%;"_s,
         u"left: 50%;"_s}
    );
}

void addLightboxCaption(CssText& css, const LightboxRules& rules)
{
    css.rule(
        u".dvPGlightbox_caption"_s,
        {u"display: none;"_s,
         u"position: absolute;"_s,
         u"left: 0;"_s,
         u"bottom: 0;"_s,
         u"width: 100%;"_s,
         u"text-align: %1;"_s.arg(rules.captionAlignment),
         u"z-index: 9998;"_s,
         u"background: rgba(0, 0, 0, 0.7);"_s}
    );
    css.rule(
        u".dvPGlightbox_caption p"_s,
        QStringList{
            u"margin: 0 auto;"_s,
            u"max-width: 70%;"_s,
            u"display: inline-block;"_s,
            u"*display: inline;"_s,
            u"zoom: 1;"_s,
            u"padding: 10px;"_s}
            + rules.captionTextLines
    );
}

void addLightboxButtons(CssText& css)
{
    css.rule(
        u".dvPGlightbox_button"_s,
        {u"position: absolute;"_s,
         u"z-index: 9999;"_s,
         u"background: no-repeat center center;"_s,
         u"width: 32px;"_s,
         u"height: 32px;"_s,
         u"opacity: 0.4;"_s,
         u"-webkit-transition: all 0.3s;"_s,
         u"-moz-transition: all 0.3s;"_s,
         u"-ms-transition: all 0.3s;"_s,
         u"transition: all 0.3s;"_s}
    );
    css.rule(
        u".dvPGlightbox_button:hover,\n.dvPGlightbox_button:focus"_s,
        {u"opacity: 1;"_s,
         u"-webkit-transform: scale(1.4);"_s,
         u"-moz-transform: scale(1.4);"_s,
         u"-ms-transform: scale(1.4);"_s,
         u"transform: scale(1.4);"_s}
    );
    css.rule(
        u".dvPGlightbox_close"_s,
        {u"right: 10px;"_s,
         u"top: 10px;"_s,
         u"background-image: url(\"../DVpglightbox/close.png\");"_s}
    );
    css.rule(u".dvPGlightbox_nav"_s, {u"top: 50%;"_s, u"margin-top: -16px;"_s});
    css.rule(
        u".dvPGlightbox_nav_next"_s,
        {u"right: 10px;"_s, u"background-image: url(\"../DVpglightbox/next.png\");"_s}
    );
    css.rule(
        u".dvPGlightbox_nav_prev"_s,
        {u"left: 10px;"_s, u"background-image: url(\"../DVpglightbox/previous.png\");"_s}
    );
}

QStringList lightboxImageLines(const LightboxLook& lightbox)
{
    return {
        u"border: %1px solid #%2;"_s.arg(lightbox.border.thickness, lightbox.border.color),
        shadowLine(lightbox.shadow),
        u"border-radius: %1px;"_s.arg(lightbox.border.radius)};
}

} // namespace

QString borderLine(const BorderLook& border)
{
    if (border.thickness.isEmpty() || border.thickness == u"0")
        return {};
    return u"border:%1px solid #%2;"_s.arg(border.thickness, border.color);
}

QString shadowLine(const ShadowLook& shadow)
{
    return u"box-shadow: %1px %2px %3px #%4;"_s.arg(shadow.x, shadow.y, shadow.blur, shadow.color);
}

QStringList layerLines(const QString& position)
{
    return {u"content: \"\";"_s, u"top: 0;"_s, u"left: 0;"_s, u"position: %1;"_s.arg(position)};
}

void addPageBackground(CssText& css, const QString& selector, const QString& color)
{
    css.raw(selector + u" {\n"_s);
    for (const QString& line : layerLines(u"fixed"_s)
             + QStringList{u"z-index: -1;"_s, u"width: 100%;"_s, u"height: 100%;"_s})
        css.raw(line + u'\n');
    css.raw(u"background-color:%1;}\n\n"_s.arg(color));
}

void addHoverRule(CssText& css, const QString& selector)
{
    css.rule(
        selector,
        {u"transform: scale(1.5);"_s,
         u"border-top-left-radius: 5px;"_s,
         u"border-top-right-radius: 5px;"_s,
         u"border-bottom-left-radius: 5px;"_s,
         u"border-bottom-right-radius: 5px;"_s}
    );
}

QString softChangeLines()
{
    return u"object-fit: cover;\nopacity: 1;\ntransition: 0.5s;\n"
           "-webkit-transition: 0.3s;\n-moz-transition: 0.3s;"_s;
}

void addStart(CssText& css, const StylesheetValues& values, const QStringList& bodyLines)
{
    css.raw(u"@charset \"UTF-8\"\n\n"_s);
    css.rule(u".DVpgTableBased-container"_s, {u"height: 100%;"_s, u"z-index: 2;"_s});
    addPageBackground(css, u".DVpgTableBased-container::after"_s, values.pageBackground);
    css.rule(u"body, html"_s, QStringList{u"height: 100%;"_s} + bodyLines);
    css.rule(
        u"div.dvPGimg"_s,
        {fontLine(values.fontFamily), u"background-color:%1;"_s.arg(values.cellBackground)}
    );
}

void addTexts(CssText& css, const StylesheetValues& values)
{
    const QString font = fontLine(values.fontFamily);
    css.rule(
        u"div.dvPGphotoname"_s,
        {font,
         u"padding: 1%;"_s,
         u"text-align:%1;"_s.arg(values.fileName.alignment),
         u"font-weight:%1;"_s.arg(values.fileName.weight)}
    );
    css.rule(
        u"div.dvPGdescription"_s,
        {font,
         u"padding: 1%;"_s,
         u"color:%1;"_s.arg(values.caption.color),
         u"text-align:%1;"_s.arg(values.caption.alignment),
         u"font-weight:%1;"_s.arg(values.caption.weight)}
    );
    css.rule(u"*"_s, {u"box-sizing: border-box;"_s});
}

void addResponsiveCell(CssText& css, const StylesheetValues& values)
{
    css.rule(
        u".dvPGresponsive"_s,
        {fontLine(values.fontFamily),
         u"padding: 0.5%;"_s,
         u"float: left;"_s,
         u"width: 24.99999%;"_s,
         values.limitsHeights ? u"height: 24.99999%;"_s : QString()}
    );
}

void addEnd(CssText& css, const StylesheetValues& values)
{
    addNavigation(css, values);
    addHeading(css, values);
    addFileNameText(css, values);
    addCaptionText(css, values);
    addNavigationLinks(css);
    addLightbox(
        css,
        {.comment = u"/* dravoth: lightbox */\n"_s,
         .background = values.lightbox.background,
         .opacity = values.lightbox.opacity,
         .imageLines = lightboxImageLines(values.lightbox),
         .captionAlignment = u"center"_s,
         .captionTextLines
         = {u"color: #fff;"_s,
            u"font-size: 12px;"_s,
            u"line-height: 18px;"_s,
            u"font-family: 'Roboto', sans-serif;"_s}}
    );
}

void addLightbox(CssText& css, const LightboxRules& rules)
{
    addLightboxLayer(css, rules);
    addLoading(css);
    addLightboxCaption(css, rules);
    addLightboxButtons(css);
}

} // namespace brenvaldo::gallery
