// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace brenvaldo::presets {

/// The name that the actions of `rows` make of `name`, each of what the one before has made; "" for
/// no rows. `path` is where dates and metadata are looked up.
///
/// Rows are those of the list of actions. One with fewer fields than its action needs raises a
/// range error, as does a name that grows beyond all measure; one of an unknown action counts as
/// numbering.
[[nodiscard]] QString
renamedByActions(const QString& path, const QString& name, const QList<QStringList>& rows);

} // namespace brenvaldo::presets
