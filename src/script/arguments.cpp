// SPDX-License-Identifier: GPL-3.0-or-later
#include "arguments.h"

#include <platform/foundation/digits.h>

#include <QDir>

#include <algorithm>

namespace brenvaldo::script {

namespace {

bool isNumber(const QString& word)
{
    return !word.isEmpty() && std::all_of(word.cbegin(), word.cend(), platform::isAsciiDigit);
}

} // namespace

std::optional<int> indexBelow(int count, const QString& word)
{
    if (!isNumber(word))
        return std::nullopt;
    bool fits = false;
    const int index = word.toInt(&fits);
    if (!fits || index >= count)
        return std::nullopt;
    return index;
}

std::optional<int> flag(const QString& word)
{
    if (word == u"0")
        return 0;
    if (word == u"1")
        return 1;
    return std::nullopt;
}

std::optional<int> itemOf(const QStringList& titles, const QString& word)
{
    if (isNumber(word))
        return indexBelow(static_cast<int>(titles.size()), word);
    auto position = titles.indexOf(word);
    if (position < 0 && word.startsWith(u'='))
        position = titles.indexOf(word.mid(1));
    if (position < 0)
        return std::nullopt;
    return static_cast<int>(position);
}

QString absolutePath(const QString& word) { return QDir::cleanPath(QDir().absoluteFilePath(word)); }

} // namespace brenvaldo::script
