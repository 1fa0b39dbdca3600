// SPDX-License-Identifier: GPL-3.0-or-later
#include "caption.h"

#include "html_text.h"

#include <platform/foundation/literals.h>

#include <QStringList>

namespace brenvaldo::gallery {

namespace {

bool isExifPart(const QString& part)
{
    return part == u"EXIF User Comment" || part == u"EXIF Creation Date";
}

bool isIptcPart(const QString& part)
{
    static const QStringList parts
        = {u"IPTC Creator Title"_s,
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
    return parts.contains(part);
}

} // namespace

QString caption(
    const CaptionSettings& settings,
    const QString& fileName,
    const CaptionValue& comment,
    const CaptionValue& iptc
)
{
    QString text;
    for (const QString& part : settings.parts.split(u';')) {
        QString value;
        if (part == u"Show Filename")
            value = fileName;
        else if (isExifPart(part))
            value = comment(part);
        else if (isIptcPart(part))
            value = iptc(part);
        if (value.isEmpty())
            continue;
        if (!text.isEmpty())
            text += settings.separator;
        text += htmlText(value);
    }
    return text;
}

} // namespace brenvaldo::gallery
