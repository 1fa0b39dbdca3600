// SPDX-License-Identifier: GPL-3.0-or-later
#include "slide_show_rules.h"

#include "web_fonts.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

QStringList patternLines(const PatternLook& pattern)
{
    return {u"background-size: %1%;"_s.arg(pattern.scale), u"opacity: %1;"_s.arg(pattern.opacity)};
}

QStringList titleLines(const TextLook& look)
{
    return {
        u"font-size:%1;"_s.arg(look.size),
        u"font-weight:%1;"_s.arg(look.weight),
        u"color:%1;"_s.arg(look.color),
        u"text-align:%1;"_s.arg(look.alignment)};
}

QStringList titlePlaceLines()
{
    return {
        u"position: relative;"_s,
        u"margin: auto;"_s,
        u"margin-top: 20px;"_s,
        u"margin-bottom: 20px;"_s};
}

void addCaptionOnPicture(
    CssText& css, const QString& fontFamily, const TextLook& caption, const QString& depth
)
{
    css.rule(
        u".dvSsText"_s,
        {fontLine(fontFamily),
         u"font-weight:%1;"_s.arg(caption.weight),
         u"color:%1;"_s.arg(caption.color),
         u"font-size:%1;"_s.arg(caption.size),
         u"padding: 8px 12px;"_s,
         u"position: absolute;"_s,
         u"bottom: 8px;"_s,
         u"width: 100%;"_s,
         u"text-align:%1;"_s.arg(caption.alignment),
         depth}
    );
}

} // namespace brenvaldo::gallery
