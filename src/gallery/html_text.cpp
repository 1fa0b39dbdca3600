// SPDX-License-Identifier: GPL-3.0-or-later
#include "html_text.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

namespace {

bool endsOrChangesLink(QChar letter) { return letter < u' ' || u"%#?\"<>\\"_s.contains(letter); }

} // namespace

QString htmlText(const QString& text) { return text.toHtmlEscaped(); }

QString linkText(const QString& fileName)
{
    QString link;
    for (const QChar letter : fileName) {
        if (endsOrChangesLink(letter))
            link += u"%%1"_s.arg(letter.unicode(), 2, 16, QChar(u'0')).toUpper();
        else
            link += letter;
    }
    return htmlText(link);
}

} // namespace brenvaldo::gallery
