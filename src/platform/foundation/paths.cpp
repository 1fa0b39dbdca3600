// SPDX-License-Identifier: GPL-3.0-or-later
#include "paths.h"

#include "literals.h"

#include <algorithm>

namespace brenvaldo::platform {

namespace {

constexpr QChar slash = u'/';

/// The path less its trailing slashes; one that holds nothing else is "/".
QString withoutTrailingSlashes(const QString& path)
{
    qsizetype end = path.size();
    while (end > 1 && path.at(end - 1) == slash)
        --end;
    return path.left(end);
}

bool isBidirectionalControl(QChar character)
{
    const char16_t unit = character.unicode();
    return unit == 0x061C || unit == 0x200E || unit == 0x200F || (unit >= 0x202A && unit <= 0x202E)
        || (unit >= 0x2066 && unit <= 0x2069);
}

bool mayBeExtension(const QString& text)
{
    return !text.isEmpty() && std::none_of(text.begin(), text.end(), [](QChar character) {
        return character == u' ' || isBidirectionalControl(character);
    });
}

} // namespace

QString lastPathComponent(const QString& path)
{
    const QString trimmed = withoutTrailingSlashes(path);
    if (trimmed.size() == 1)
        return trimmed;
    return trimmed.mid(trimmed.lastIndexOf(slash) + 1);
}

QString pathExtension(const QString& path)
{
    const QString name = lastPathComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot <= 0 || name.startsWith(u".."_s))
        return {};
    const QString extension = name.mid(dot + 1);
    return mayBeExtension(extension) ? extension : QString();
}

QString deletingPathExtension(const QString& path)
{
    const QString trimmed = withoutTrailingSlashes(path);
    const QString extension = pathExtension(trimmed);
    if (extension.isEmpty())
        return trimmed;
    return trimmed.chopped(extension.size() + 1);
}

QString appendingPathExtension(const QString& path, const QString& extension)
{
    const QString trimmed = withoutTrailingSlashes(path);
    if (trimmed.isEmpty() || trimmed == slash)
        return trimmed;
    return trimmed + u'.' + extension;
}

QString appendingPathComponent(const QString& path, const QString& component)
{
    if (path.isEmpty())
        return withoutTrailingSlashes(component);
    const QString folder = withoutTrailingSlashes(path);
    qsizetype begin = 0;
    while (begin < component.size() && component.at(begin) == slash)
        ++begin;
    const QString name = withoutTrailingSlashes(component.mid(begin));
    if (name.isEmpty())
        return folder;
    return folder.endsWith(slash) ? folder + name : folder + slash + name;
}

QString deletingLastPathComponent(const QString& path)
{
    const QString trimmed = withoutTrailingSlashes(path);
    const qsizetype end = trimmed.lastIndexOf(slash);
    return withoutTrailingSlashes(trimmed.left(end + 1));
}

} // namespace brenvaldo::platform
