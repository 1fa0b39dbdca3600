// SPDX-License-Identifier: GPL-3.0-or-later
#include "name_example.h"

#include <files/keep_number.h>
#include <files/rename_settings.h>
#include <files/usable_name.h>
#include <platform/foundation/exceptions.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>

#include <QScopedValueRollback>

#include <algorithm>

namespace brenvaldo::workspace {

namespace {

/// Long names lose their middle, so that a line holds them.
QString inOneLine(const QString& name)
{
    constexpr qsizetype longest = 44;
    constexpr qsizetype end = 16;
    const QString plain = files::asNamePart(name);
    if (plain.size() <= longest)
        return plain;
    return plain.first(longest - end) + u'\u2026' + plain.last(end);
}

/// The name that a run would give its first file; nothing where a range lies beyond the name.
std::optional<QString> firstNewName(const panels::RenamePanel& panel, const QString& path)
{
    const QScopedValueRollback number(
        files::cKeepNumber::sharedNumber().myNumberString, QString(u"0"_s)
    );
    const platform::ThreadLogSink silence([](const QString&) {});
    try {
        return files::renamedByPanel(panel, path);
    } catch (const platform::RangeError&) {
        return std::nullopt;
    }
}

QString outcomeOf(const QString& name, const std::optional<QString>& newName)
{
    if (!newName)
        return u"The range reaches beyond the end of this name: the run would end here."_s;
    if (newName->isEmpty())
        return u"No name would be left: this file would be passed over."_s;
    if (*newName == name)
        return u"keeps its name."_s;
    return u"\u2192 "_s + inOneLine(*newName);
}

} // namespace

QString nameExample(const panels::RenamePanel& panel, const PhotoList& photos)
{
    const auto& entries = photos.entries();
    const auto first = std::find_if(entries.begin(), entries.end(), [](const auto& entry) {
        return entry.myPhotoSelect > 0;
    });
    if (first == entries.end())
        return u"Add files to see an example of their new names."_s;
    const QString name = platform::lastPathComponent(first->myPhotoDescription);
    const auto newName = firstNewName(panel, first->myPhotoDescription);
    return inOneLine(name) + u'\n' + outcomeOf(name, newName);
}

} // namespace brenvaldo::workspace
