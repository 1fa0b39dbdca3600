// SPDX-License-Identifier: GPL-3.0-or-later
#include "messenger.h"

#include <platform/foundation/literals.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace brenvaldo::services {

namespace {

QString fileOf(const QString& language) { return u":/help/%1.json"_s.arg(language); }

/// The first of the user's languages that there are texts in.
QString language()
{
    for (const QString& wanted : QLocale().uiLanguages()) {
        const QString name = wanted.section(u'-', 0, 0);
        if (QFile::exists(fileOf(name)))
            return name;
    }
    return u"en"_s;
}

QJsonObject textsOf(const QString& language)
{
    QFile file(fileOf(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

} // namespace

QString Messenger::getLangStr(
    const QString& key, const QString& value, [[maybe_unused]] const QString& table
)
{
    const QString otherwise = value.isEmpty() ? key : value;
    return textsOf(language()).value(key).toString(otherwise);
}

QString Messenger::formatted(const QString& key)
{
    return getLangStr(key, {}, {}).replace(u"%%"_s, u"%"_s);
}

} // namespace brenvaldo::services
