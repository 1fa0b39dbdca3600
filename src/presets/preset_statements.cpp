// SPDX-License-Identifier: GPL-3.0-or-later
#include "preset_statements.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::presets {

namespace {

/// By position behind `ID`, counted from 0; the middle block has integer affinity.
QString declaredType(qsizetype position)
{
    constexpr qsizetype firstInteger = 21;
    constexpr qsizetype lastInteger = 41;

    const bool isInteger = position >= firstInteger && position <= lastInteger;
    return isInteger ? u"Integer"_s : u"Text"_s;
}

/// 'a','b', 'c','d': one blank, behind the second comma.
QString quotedList(const QStringList& texts)
{
    QString list;
    for (qsizetype index = 0; index < texts.size(); ++index) {
        if (index > 0)
            list += index == 2 ? u", "_s : u","_s;
        list += QLatin1Char('\'') + texts[index] + QLatin1Char('\'');
    }
    return list;
}

QString comparison(const Condition& condition)
{
    return condition.column + u" = '"_s + condition.value + QLatin1Char('\'');
}

QStringList columnsWithHead(QStringList head)
{
    for (int position = static_cast<int>(head.size()); position < columnCount; ++position)
        head.append(fieldName(position));
    return head;
}

} // namespace

QStringList presetColumns()
{
    return columnsWithHead({u"NameOfPreset"_s, u"Process"_s, u"Action"_s});
}

QStringList bookmarkColumns() { return columnsWithHead({}); }

QString fieldName(int position) { return u"StrField%1"_s.arg(position); }

QString createTableStatement(const QString& table, const QStringList& columns)
{
    QStringList declarations = {u"ID INTEGER PRIMARY KEY AUTOINCREMENT"_s};
    for (qsizetype position = 0; position < columns.size(); ++position)
        declarations.append(
            QLatin1Char('\'') + columns[position] + u"' "_s + declaredType(position)
        );
    return u"Create table if not exists '"_s + table + u"' ("_s + declarations.join(u", "_s)
        + u");"_s;
}

QString insertStatement(const QString& table, const QStringList& columns, const QStringList& values)
{
    return u"Insert or replace into '"_s + table + u"' ("_s + quotedList(columns) + u") "_s
        + u"values ("_s + quotedList(values) + u")"_s;
}

QString
selectStatement(const QString& what, const QString& table, const QList<Condition>& conditions)
{
    QStringList comparisons;
    for (const Condition& condition : conditions)
        comparisons.append(comparison(condition));
    const QString select = u"SELECT "_s + what + u" FROM "_s + table;
    if (comparisons.isEmpty())
        return select;
    return select + u" WHERE "_s + comparisons.join(u" AND "_s);
}

QString deleteStatement(const QString& table, const Condition& condition)
{
    return u"DELETE FROM "_s + table + u" WHERE "_s + comparison(condition);
}

} // namespace brenvaldo::presets
