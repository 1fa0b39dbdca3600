// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// \file
/// The statements of the presets file. Values are put in as they stand, neither escaped nor bound:
/// that is how files of presets came to be, and what a value with an apostrophe leads to is part of
/// the behaviour.

namespace brenvaldo::presets {

/// Columns of every table behind `ID`.
constexpr int columnCount = 102;

/// `NameOfPreset`, `Process`, `Action`, `StrField3` ... `StrField101`.
[[nodiscard]] QStringList presetColumns();

/// `StrField0` ... `StrField101`.
[[nodiscard]] QStringList bookmarkColumns();

/// "StrField24" for 24.
[[nodiscard]] QString fieldName(int position);

[[nodiscard]] QString createTableStatement(const QString& table, const QStringList& columns);

[[nodiscard]] QString
insertStatement(const QString& table, const QStringList& columns, const QStringList& values);

/// One column that has to have a value.
struct Condition
{
    QString column;
    QString value;
};

/// "SELECT WHAT FROM TABLE WHERE COLUMN = 'VALUE' AND ..."; without conditions all rows.
[[nodiscard]] QString
selectStatement(const QString& what, const QString& table, const QList<Condition>& conditions = {});

[[nodiscard]] QString deleteStatement(const QString& table, const Condition& condition);

} // namespace brenvaldo::presets
