// SPDX-License-Identifier: GPL-3.0-or-later
#include "action_run.h"

#include <files/action_fields.h>
#include <platform/foundation/exceptions.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

#include <algorithm>

namespace brenvaldo::presets {

namespace {

using files::cNSStringHandling;

constexpr qsizetype firstSetting = 4;

/// The fields of a row: name, padding, action, mark, and what the action takes.
class ActionFields
{
public:
    explicit ActionFields(QStringList fields)
        : m_fields(std::move(fields))
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

    [[nodiscard]] ActionFields without(qsizetype index) const
    {
        return ActionFields(
            m_fields.first(std::min(index, m_fields.size())) + m_fields.mid(index + 1)
        );
    }

private:
    QStringList m_fields;
};

template <class Settings, class Fields>
Settings settingsOf(const ActionFields& row, const Fields& fields)
{
    Settings settings;
    qsizetype index = firstSetting;
    for (const auto field : fields)
        settings.*field = row.at(index++);
    return settings;
}

QString stripped(const QString& name, const ActionFields& fields)
{
    return cNSStringHandling::hFileNameStripper(
        name, settingsOf<files::StripSettings>(fields, files::stripFields)
    );
}

/// As `stripped`, with the separator of the list of texts as a field more behind these texts.
QString strippedOfList(const QString& name, const ActionFields& fields)
{
    constexpr qsizetype separator = 7;
    return cNSStringHandling::hFileNameStripperV2(
        name,
        settingsOf<files::StripSettings>(fields.without(separator), files::stripFields),
        fields.at(separator)
    );
}

QString replaced(const QString& name, const ActionFields& fields)
{
    return cNSStringHandling::hReplaceText(
        name, settingsOf<files::ReplaceSettings>(fields, files::replaceFields)
    );
}

QString withPrefix(const QString& path, const QString& name, const ActionFields& fields)
{
    return cNSStringHandling::hAddPrefix(
        path, name, settingsOf<files::PrefixSettings>(fields, files::prefixFields)
    );
}

QString withPostfix(const QString& path, const QString& name, const ActionFields& fields)
{
    return cNSStringHandling::hAddPostfix(
        path, name, settingsOf<files::PostfixSettings>(fields, files::postfixFields)
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

/// Actions that multiply a text may not fill the memory before the name is cut to its length.
QString ofBearableLength(const QString& name)
{
    constexpr qsizetype longest = 0x10000;
    if (name.size() > longest)
        throw platform::RangeError(u"name of %1 characters"_s.arg(name.size()));
    return name;
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
        result = ofBearableLength(renamed(path, result, ActionFields(row.value(0).split(u'\t'))));
    return result;
}

} // namespace brenvaldo::presets
