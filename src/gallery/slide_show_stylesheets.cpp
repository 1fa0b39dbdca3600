// SPDX-License-Identifier: GPL-3.0-or-later
#include "slide_show_stylesheets.h"

#include "slide_show_rules.h"
#include "stylesheet_rules.h"
#include "web_fonts.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

namespace {

QString shadowOfShow(const SlideShowValues& values)
{
    return values.castsShadow ? u"box-shadow: 3px 3px 10px black;"_s : QString();
}

/// The container opens on the line of its first declaration.
void addShowContainer(CssText& css, const QStringList& lines)
{
    css.raw(u".dvSsSlideshow-container {"_s);
    for (const QString& line : lines) {
        if (!line.isEmpty())
            css.raw(line + u'\n');
    }
    css.raw(u"}\n\n"_s);
}

void addBody(CssText& css, const SlideShowValues& values)
{
    css.rule(u"body, html"_s, {u"background-color:%1;"_s.arg(values.pageBackground)});
}

void addShowPattern(CssText& css, const PatternLook& pattern)
{
    if (!pattern.shown)
        return;
    css.rule(
        u".dvSsPatternBox::before"_s,
        layerLines(u"absolute"_s)
            + QStringList{
                u"z-index: 0;"_s,
                u"display: block;"_s,
                u"width: 100%;"_s,
                u"height: 100%;"_s,
                u"background-image: url(../DVpgPatterns/%1);"_s.arg(pattern.file),
                u"background-repeat: repeat;"_s}
            + patternLines(pattern)
    );
}

void addShowButtons(CssText& css)
{
    css.rule(u".dvSsSlides"_s, {u"display: none;"_s});
    css.rule(
        u".dvSsPrev, .dvSsNext"_s,
        {u"cursor: pointer;"_s,
         u"position: absolute;"_s,
         u"top: 50%;"_s,
         u"width: auto;"_s,
         u"margin-top: -22px;"_s,
         u"padding: 16px;"_s,
         u"color: white;"_s,
         u"font-weight: bold;"_s,
         u"font-size: 18px;"_s,
         u"transition: 0.6s ease;"_s,
         u"border-radius: 0 3px 3px 0;"_s,
         u"z-index: 2;"_s}
    );
    css.rule(u".dvSsNext"_s, {u"right: 0;"_s, u"border-radius: 3px 0 0 3px;"_s, u"z-index: 2;"_s});
    css.rule(
        u".dvSsPrev:hover, .dvSsNext:hover"_s,
        {u"background-color: rgba(0,0,0,0.8);"_s, u"z-index: 2;"_s}
    );
}

void addNumber(CssText& css, const SlideShowValues& values)
{
    css.rule(
        u".dvSsNumbertext"_s,
        {fontLine(values.fontFamily),
         u"text-shadow: 1px 1px 3px #000000;"_s,
         u"color: #f2f2f2;"_s,
         u"font-size: 12px;"_s,
         u"padding: 8px 12px;"_s,
         u"position: absolute;"_s,
         u"top: 0;"_s,
         u"z-index: 2;"_s}
    );
}

void addDots(CssText& css, const QString& color)
{
    css.rule(
        u".dvSsDot"_s,
        {u"cursor: pointer;"_s,
         u"height: 15px;"_s,
         u"width: 15px;"_s,
         u"margin: 0 2px;"_s,
         u"background-color: #%1;"_s.arg(color),
         u"z-index: 10;"_s,
         color == u"0" ? QString() : u"display: inline-block;"_s,
         u"transition: background-color 0.6s ease;"_s}
    );
    css.rule(
        u".dvSsActive, .dvSsDot:hover"_s, {u"background-color: #717171;"_s, u"z-index: 10;"_s}
    );
}

void addFade(CssText& css)
{
    css.rule(
        u".fade"_s,
        {u"-webkit-animation-name: fade;"_s,
         u"-webkit-animation-duration: 2.5s;"_s,
         u"animation-name: fade;"_s,
         u"animation-duration: 2.5s;"_s}
    );
    css.rule(
        u".dvSsRef"_s,
        {u"position: absolute;"_s, u"bottom: -30px;"_s, u"right: 0;"_s, u"z-index: 2;"_s}
    );
    for (const QString& keyframes : {u"@-webkit-keyframes fade"_s, u"@keyframes fade"_s})
        css.rule(keyframes, {u"from {opacity: .4}"_s, u"to {opacity: 1}"_s});
}

void addTitle(CssText& css, const SlideShowValues& values, const QString& depth)
{
    css.rule(
        u".dvSstitle"_s,
        QStringList{fontLine(values.fontFamily)} + titleLines(values.title)
            + QStringList{u"max-width: %1px;"_s.arg(values.width)} + titlePlaceLines()
            + QStringList{depth}
    );
}

QString imageLine(const QString& name)
{
    return u"background-image: url( ../DVSsImages/%1.jpeg);"_s.arg(name);
}

void addFirstSlide(CssText& css, const SlidingShowValues& values)
{
    const qsizetype count = values.images.size();
    css.rule(
        u".slideProp"_s,
        {u"position: absolute;"_s,
         u"top: 0;"_s,
         u"left: 0;"_s,
         u"z-index: %1;"_s.arg(count),
         u"display: flex;"_s,
         u"align-items: center;"_s,
         u"width: 100%;"_s,
         u"height: 100%;"_s,
         u"transform: translateX( %1px );"_s.arg(values.show.width),
         imageLine(values.images.first()),
         u"animation: opaqTransition %1s cubic-bezier(0, 0, 0, 0.97) infinite;"_s.arg(
             (count + 1) * values.secondsPerImage
         )}
    );
}

void addSlides(CssText& css, const SlidingShowValues& values)
{
    const qsizetype count = values.images.size();
    if (count == 0)
        return;
    addFirstSlide(css, values);
    for (qsizetype index = 1; index < count; ++index) {
        css.rule(
            u".slide%1"_s.arg(index),
            {u"z-index: %1;"_s.arg(count - index),
             imageLine(values.images[index]),
             u"animation-delay: %1s;"_s.arg(index * values.secondsPerImage)}
        );
    }
}

void addSlidingMotion(CssText& css, const QString& width)
{
    css.rule(
        u"@keyframes opaqTransition"_s,
        {u"3% { transform: translateX( 0 ); }"_s,
         u"25% { transform: translateX( 0 ); }"_s,
         u"28% { transform: translateX( -"_s + width + u"px ); }"_s,
         u"100% { transform: translateX( -"_s + width + u"px ); }"_s}
    );
}

} // namespace

QString slideShowStylesheet(const SlideShowValues& values)
{
    CssText css;
    addShowContainer(
        css,
        {u"background-color: #000000;"_s,
         shadowOfShow(values),
         u"max-width: %1px;"_s.arg(values.width),
         u"position: relative;"_s,
         u"margin: auto;"_s,
         u"z-index: 2;"_s}
    );
    css.rule(
        u".dvSsSlideshow-container::after"_s,
        layerLines(u"fixed"_s)
            + QStringList{u"z-index: -10;"_s, u"width: 100%;"_s, u"height: 100%;"_s}
    );
    addBody(css, values);
    addShowPattern(css, values.pattern);
    addShowButtons(css);
    addCaptionOnPicture(css, values.fontFamily, values.caption, u"z-index: 2;"_s);
    addNumber(css, values);
    addDots(css, values.dotColor);
    addFade(css);
    addTitle(css, values, u"z-index: 10;"_s);
    return css.text();
}

QString slidingShowStylesheet(const SlidingShowValues& values)
{
    CssText css;
    css.raw(u"@charset \"UTF-8\";\n"_s);
    css.rule(u"*"_s, {u"box-sizing: border-box;"_s});
    addShowContainer(
        css,
        {shadowOfShow(values.show),
         u"width: %1px;"_s.arg(values.show.width),
         u"height: %1px;"_s.arg(values.show.height),
         u"position: relative;"_s,
         u"overflow: hidden;"_s,
         u"margin: auto;"_s}
    );
    addBody(css, values.show);
    addShowPattern(css, values.show.pattern);
    addCaptionOnPicture(css, values.show.fontFamily, values.show.caption, u"z-index:2;"_s);
    addTitle(css, values.show, u"z-index:10;"_s);
    addSlides(css, values);
    addSlidingMotion(css, values.show.width);
    return css.text();
}

} // namespace brenvaldo::gallery
