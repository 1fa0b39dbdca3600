// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_titles.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

QStringList webFontTitles()
{
    return {
        u"Catamaran"_s,
        u"Exo"_s,
        u"Exo 2"_s,
        u"Kanit"_s,
        u"Libre Franklin"_s,
        u"Raleway"_s,
        u"Roboto"_s,
        u"Rubik"_s,
        u"Taviraj"_s,
        u"Trirong"_s};
}

QStringList fontWeightTitles()
{
    return {u"Light"_s, u"Regular"_s, u"Medium"_s, u"Bold"_s, u"Black"_s};
}

QStringList fontSizeTitles()
{
    return {
        u"11px"_s,
        u"12px"_s,
        u"14px"_s,
        u"16px"_s,
        u"18px"_s,
        u"24px"_s,
        u"32px"_s,
        u"40px"_s,
        u"48px"_s};
}

QStringList alignmentTitles() { return {u"Left"_s, u"Centre"_s, u"Right"_s}; }

QStringList galleryMetadataTitles()
{
    return {
        u"EXIF User Comment"_s,
        u"EXIF Creation Date"_s,
        u"Show Filename"_s,
        u"IPTC Creator Title"_s,
        u"IPTC Description"_s,
        u"IPTC Keyword"_s,
        u"IPTC City"_s,
        u"IPTC Caption Writer"_s,
        u"IPTC Copyrights"_s,
        u"IPTC Country"_s,
        u"IPTC Credits"_s,
        u"IPTC Headline"_s,
        u"IPTC Subject Code"_s,
        u"IPTC State Province"_s};
}

QStringList pictureFormatTitles()
{
    return {u"jpeg"_s, u"png"_s, u"gif"_s, u"bmp"_s, u"tiff"_s, u"jp2"_s, u"heic"_s, u"pdf"_s};
}

QStringList compressionTitles()
{
    return {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s};
}

} // namespace brenvaldo::panels
