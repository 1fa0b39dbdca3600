// SPDX-License-Identifier: GPL-3.0-or-later
#include "action_run.h"

#include <files/ns_string_handling.h>
#include <platform/foundation/exceptions.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::presets {

namespace {

using files::cNSStringHandling;

/// The fields of a row: name, padding, action, mark, and what the action takes.
class ActionFields
{
public:
    explicit ActionFields(const QString& row)
        : m_fields(row.split(u'\t'))
    {
    }

    [[nodiscard]] const QString& at(qsizetype index) const
    {
        if (index >= m_fields.size())
            throw platform::RangeError(
                u"index %1 beyond bounds [0 .. %2]"_s.arg(index).arg(m_fields.size() - 1)
            );
        return m_fields.at(index);
    }

    [[nodiscard]] const QString& action() const { return at(2); }

private:
    QStringList m_fields;
};

QString stripped(const QString& name, const ActionFields& fields)
{
    return cNSStringHandling::hFileNameStripper(
        name,
        {.count = fields.at(4),
         .side = fields.at(5),
         .character = fields.at(6),
         .start = fields.at(7),
         .stop = fields.at(8),
         .fragment = fields.at(9),
         .removeMode = fields.at(10),
         .allowedMode = fields.at(11),
         .preserve = fields.at(12)}
    );
}

/// As `stripped`, with the separator of the list of texts as a field more behind these texts.
QString strippedOfList(const QString& name, const ActionFields& fields)
{
    return cNSStringHandling::hFileNameStripperV2(
        name,
        {.count = fields.at(4),
         .side = fields.at(5),
         .character = fields.at(6),
         .start = fields.at(8),
         .stop = fields.at(9),
         .fragment = fields.at(10),
         .removeMode = fields.at(11),
         .allowedMode = fields.at(12),
         .preserve = fields.at(13)},
        fields.at(7)
    );
}

QString replaced(const QString& name, const ActionFields& fields)
{
    return cNSStringHandling::hReplaceText(
        name,
        {.caseMode = fields.at(4),
         .start = fields.at(5),
         .stop = fields.at(6),
         .character = fields.at(7),
         .find = fields.at(8),
         .replacement = fields.at(9)}
    );
}

QString withPrefix(const QString& path, const QString& name, const ActionFields& fields)
{
    return cNSStringHandling::hAddPrefix(
        path,
        name,
        {.text = fields.at(4),
         .metadataKey = fields.at(5),
         .creationDate = fields.at(6),
         .modificationDate = fields.at(7)}
    );
}

QString withPostfix(const QString& path, const QString& name, const ActionFields& fields)
{
    return cNSStringHandling::hAddPostfix(
        path,
        name,
        {.text = fields.at(4),
         .metadataKey = fields.at(5),
         .creationDate = fields.at(6),
         .modificationDate = fields.at(7),
         .beforeExtension = fields.at(8)}
    );
}

QString numbered(const QString& name, const ActionFields& fields)
{
    constexpr int lastField = 9; // has no effect, but a row without it is damaged
    (void)fields.at(lastField);
    return cNSStringHandling::hNumbering(
        name,
        {.prefix = fields.at(5),
         .postfix = fields.at(6),
         .digits = platform::intValue(fields.at(7)),
         .position = fields.at(8)}
    );
}

QString renamed(const QString& path, const QString& name, const ActionFields& fields)
{
    const QString& action = fields.action();
    if (action == u"Strip")
        return stripped(name, fields);
    if (action == u"StripV2")
        return strippedOfList(name, fields);
    if (action == u"Replace")
        return replaced(name, fields);
    if (action == u"Postfix")
        return withPostfix(path, name, fields);
    if (action == u"Prefix")
        return withPrefix(path, name, fields);
    return numbered(name, fields);
}

} // namespace

QString renamedByActions(const QString& path, const QString& name, const QList<QStringList>& rows)
{
    if (rows.isEmpty())
        return {};
    QString result = name;
    for (const QStringList& row : rows)
        result = renamed(path, result, ActionFields(row.value(0)));
    return result;
}

} // namespace brenvaldo::presets
