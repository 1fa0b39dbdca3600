// SPDX-License-Identifier: GPL-3.0-or-later
#include "album_folder_name.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::platform::services {

namespace {

constexpr qsizetype longestName = 200; // bytes

bool isRefused(QChar letter)
{
    return letter.category() == QChar::Other_Control || u"/\\:*?\"<>|"_s.contains(letter);
}

void cutTo(qsizetype bytes, QString& name)
{
    while (name.toUtf8().size() > bytes)
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
}

} // namespace

QString albumFolderName(const QString& title)
{
    QString name = title.normalized(QString::NormalizationForm_C);
    for (QChar& letter : name)
        letter = isRefused(letter) ? QChar(u'_') : letter;
    cutTo(longestName, name);
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    while (name.startsWith(u'.') || name.startsWith(u' ')) // a hidden folder would not be found
        name.remove(0, 1);
    return name.isEmpty() ? u"Untitled"_s : name;
}

} // namespace brenvaldo::platform::services
