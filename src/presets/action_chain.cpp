// SPDX-License-Identifier: GPL-3.0-or-later
#include "action_chain.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::presets {

namespace {

constexpr QChar fieldSeparator(u'\t');
constexpr QChar rowSeparator(u'\r');
constexpr int paddingField = 1;
constexpr int loadedPadding = 46;

/// The padding ends in a TAB even where no field follows it.
QString withPadding(const QString& row, const QString& padding)
{
    QStringList fields = row.split(fieldSeparator);
    if (fields.size() > paddingField)
        fields[paddingField] = padding;
    if (fields.size() == paddingField + 1)
        fields.append(QString());
    return fields.join(fieldSeparator);
}

} // namespace

QString noActions() { return u"NO ACTIONS"_s; }

QString chainText(const controls::ArrayController& actions)
{
    if (actions.arrangedObjects().isEmpty())
        return noActions();
    QStringList rows;
    for (const QStringList& row : actions.arrangedObjects())
        rows.append(withPadding(row.value(0), QString()));
    return rows.join(rowSeparator);
}

void loadChain(const QString& chain, controls::ArrayController& actions)
{
    const QString padding(loadedPadding, QLatin1Char(' '));
    const QStringList rows = chain.split(rowSeparator);
    for (const QString& row : rows)
        actions.addObject({withPadding(row, padding)});
}

} // namespace brenvaldo::presets
