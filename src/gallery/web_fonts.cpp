// SPDX-License-Identifier: GPL-3.0-or-later
#include "web_fonts.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

namespace {

QString familyOf(const QString& title)
{
    return sansSerifFonts().contains(title) ? title : u"Trirong"_s;
}

} // namespace

const QStringList& sansSerifFonts()
{
    static const QStringList fonts
        = {u"Catamaran"_s,
           u"Exo"_s,
           u"Exo 2"_s,
           u"Kanit"_s,
           u"Libre Franklin"_s,
           u"Raleway"_s,
           u"Roboto"_s,
           u"Rubik"_s,
           u"Taviraj"_s};
    return fonts;
}

QString fontLine(const QString& title)
{
    const QString kind = sansSerifFonts().contains(title) ? u"sans-serif"_s : u"serif"_s;
    return u"font-family: '%1', %2;"_s.arg(familyOf(title), kind);
}

QString fontLink(const QString& title)
{
    const QString family = familyOf(title).replace(u' ', u'+');
    return u"<link href=\"https://fonts.googleapis.com/css?family=%1:300,400,500,700,900\" rel=\"stylesheet\">\n"_s
        .arg(family);
}

QString fontWeight(const QString& title)
{
    if (title == u"Light")
        return u"300"_s;
    if (title == u"Regular")
        return u"400"_s;
    if (title == u"Medium")
        return u"500"_s;
    if (title == u"Bold")
        return u"700"_s;
    return u"900"_s;
}

QString fileNameWeight(const QString& title)
{
    return title == u"Bold" ? u"900"_s : fontWeight(title);
}

QString alignmentWord(int segment)
{
    switch (segment) {
    case 0:
        return u"left"_s;
    case 1:
        return u"center"_s;
    default:
        return u"right"_s;
    }
}

} // namespace brenvaldo::gallery
