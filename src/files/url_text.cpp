// SPDX-License-Identifier: GPL-3.0-or-later
#include "url_text.h"

#include <platform/foundation/literals.h>

#include <QRegularExpression>

namespace brenvaldo::files {

std::optional<QUrl> urlFromText(const QString& text)
{
    static const QRegularExpression allowed(QRegularExpression::anchoredPattern(
        u"(?:[A-Za-z0-9._~:/?#@!$&'()*+,;=-]|%[0-9A-Fa-f]{2})+"_s
    ));
    if (!allowed.match(text).hasMatch())
        return std::nullopt;
    const QUrl url(text, QUrl::StrictMode);
    if (!url.isValid())
        return std::nullopt;
    return url;
}

QString withEncodedQuerySigns(const QString& text)
{
    QString encoded;
    for (const QChar character : text) {
        if (u"?=&+"_s.contains(character))
            encoded += u'%' + QString::number(character.unicode(), 16).toUpper();
        else
            encoded += character;
    }
    return encoded;
}

} // namespace brenvaldo::files
