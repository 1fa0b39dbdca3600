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
    return isInteger ? QStringLiteral("Integer") : QStringLiteral("Text");
}

/// 'a','b', 'c','d': one blank, behind the second comma.
QString quotedList(const QStringList& texts)
{
    QString list;
    for (qsizetype index = 0; index < texts.size(); ++index) {
        if (index > 0)
            list += index == 2 ? QStringLiteral(", ") : QStringLiteral(",");
        list += QLatin1Char('\'') + texts[index] + QLatin1Char('\'');
    }
    return list;
}

QString comparison(const Condition& condition)
{
    return condition.column + QStringLiteral(" = '") + condition.value + QLatin1Char('\'');
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
    return columnsWithHead(
        {QStringLiteral("NameOfPreset"), QStringLiteral("Process"), QStringLiteral("Action")}
    );
}

QStringList bookmarkColumns() { return columnsWithHead({}); }

QString fieldName(int position) { return QStringLiteral("StrField%1").arg(position); }

QString createTableStatement(const QString& table, const QStringList& columns)
{
    QStringList declarations = {QStringLiteral("ID INTEGER PRIMARY KEY AUTOINCREMENT")};
    for (qsizetype position = 0; position < columns.size(); ++position)
        declarations.append(
            QLatin1Char('\'') + columns[position] + QStringLiteral("' ") + declaredType(position)
        );
    return QStringLiteral("Create table if not exists '") + table + QStringLiteral("' (")
        + declarations.join(QStringLiteral(", ")) + QStringLiteral(");");
}

QString insertStatement(const QString& table, const QStringList& columns, const QStringList& values)
{
    return QStringLiteral("Insert or replace into '") + table + QStringLiteral("' (")
        + quotedList(columns) + QStringLiteral(") ") + QStringLiteral("values (")
        + quotedList(values) + QStringLiteral(")");
}

QString
selectStatement(const QString& what, const QString& table, const QList<Condition>& conditions)
{
    QStringList comparisons;
    for (const Condition& condition : conditions)
        comparisons.append(comparison(condition));
    const QString select = QStringLiteral("SELECT ") + what + QStringLiteral(" FROM ") + table;
    if (comparisons.isEmpty())
        return select;
    return select + QStringLiteral(" WHERE ") + comparisons.join(QStringLiteral(" AND "));
}

QString deleteStatement(const QString& table, const Condition& condition)
{
    return QStringLiteral("DELETE FROM ") + table + QStringLiteral(" WHERE ")
        + comparison(condition);
}

} // namespace brenvaldo::presets
