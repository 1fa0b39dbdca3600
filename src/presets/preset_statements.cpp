// SPDX-License-Identifier: GPL-3.0-or-later
#include "preset_statements.h"

namespace brenvaldo::presets {

namespace {

/// By position behind `ID`, counted from 0; the middle block has integer affinity.
QString declaredType(qsizetype position)
{
    constexpr qsizetype firstInteger = 21;
    constexpr qsizetype lastInteger = 41;

    const bool isInteger = position >= firstInteger && position <= lastInteger;
    return isInteger ? u"Integer"_qs : u"Text"_qs;
}

/// 'a','b', 'c','d': one blank, behind the second comma.
QString quotedList(const QStringList& texts)
{
    QString list;
    for (qsizetype index = 0; index < texts.size(); ++index) {
        if (index > 0)
            list += index == 2 ? u", "_qs : u","_qs;
        list += QLatin1Char('\'') + texts[index] + QLatin1Char('\'');
    }
    return list;
}

QString comparison(const Condition& condition)
{
    return condition.column + u" = '"_qs + condition.value + QLatin1Char('\'');
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
    return columnsWithHead({u"NameOfPreset"_qs, u"Process"_qs, u"Action"_qs});
}

QStringList bookmarkColumns() { return columnsWithHead({}); }

QString fieldName(int position) { return u"StrField%1"_qs.arg(position); }

QString createTableStatement(const QString& table, const QStringList& columns)
{
    QStringList declarations = {u"ID INTEGER PRIMARY KEY AUTOINCREMENT"_qs};
    for (qsizetype position = 0; position < columns.size(); ++position)
        declarations.append(
            QLatin1Char('\'') + columns[position] + u"' "_qs + declaredType(position)
        );
    return u"Create table if not exists '"_qs + table + u"' ("_qs + declarations.join(u", "_qs)
        + u");"_qs;
}

QString insertStatement(const QString& table, const QStringList& columns, const QStringList& values)
{
    return u"Insert or replace into '"_qs + table + u"' ("_qs + quotedList(columns) + u") "_qs
        + u"values ("_qs + quotedList(values) + u")"_qs;
}

QString
selectStatement(const QString& what, const QString& table, const QList<Condition>& conditions)
{
    QStringList comparisons;
    for (const Condition& condition : conditions)
        comparisons.append(comparison(condition));
    const QString select = u"SELECT "_qs + what + u" FROM "_qs + table;
    if (comparisons.isEmpty())
        return select;
    return select + u" WHERE "_qs + comparisons.join(u" AND "_qs);
}

QString deleteStatement(const QString& table, const Condition& condition)
{
    return u"DELETE FROM "_qs + table + u" WHERE "_qs + comparison(condition);
}

} // namespace brenvaldo::presets
