// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_handling.h"
#include "name_parts.h"
#include "ns_string_handling.h"
#include "search_attributes.h"
#include "usable_name.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::files {

namespace {

/// Makes the text of a date; "" where the file has none.
using DateOf = QString (cNSFileHandling::*)(const DateRequest&);

QString dateOf(const QString& path, const QString& flag, DateOf date)
{
    if (flag != u"1")
        return {};
    return (cNSFileHandling().*date)({.path = path, .mode = u"0"_s});
}

QString creationDateOf(const QString& path, const QString& flag)
{
    return dateOf(path, flag, &cNSFileHandling::hGetCreationDateFile);
}

QString modificationDateOf(const QString& path, const QString& flag)
{
    return dateOf(path, flag, &cNSFileHandling::hGetModificationDateFile);
}

std::optional<QString> attributeOf(const QString& path, const QString& key)
{
    const auto value = searchAttribute(path, key);
    return value ? std::optional(asNamePart(*value)) : std::nullopt;
}

} // namespace

QString cNSStringHandling::hAddPrefix(
    const QString& path, const QString& name, const PrefixSettings& settings
)
{
    QString prefix;
    if (const QString date = creationDateOf(path, settings.creationDate); !date.isEmpty())
        prefix += date + settings.text;
    if (const QString date = modificationDateOf(path, settings.modificationDate); !date.isEmpty())
        prefix += date + settings.text;
    if (const auto value = attributeOf(path, settings.metadataKey))
        prefix += *value + settings.text;
    if (prefix.isEmpty())
        prefix = settings.text;
    NameParts parts = partsOf(name);
    parts.base.prepend(prefix);
    return joined(parts);
}

QString cNSStringHandling::hAddPostfix(
    const QString& path, const QString& name, const PostfixSettings& settings
)
{
    // The text stands in front at the start, and once more before each further value: a
    // modification date alone has it twice.
    QString postfix = settings.text + creationDateOf(path, settings.creationDate);
    if (const QString date = modificationDateOf(path, settings.modificationDate); !date.isEmpty())
        postfix += settings.text + date;
    if (const auto value = attributeOf(path, settings.metadataKey))
        postfix += settings.text + *value;
    if (settings.beforeExtension != u"1")
        return precomposed(name) + postfix;
    NameParts parts = partsOf(name);
    parts.base.append(postfix);
    return joined(parts);
}

} // namespace brenvaldo::files
