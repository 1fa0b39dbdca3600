// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::services {

/// The long texts of the program in the user's language: English, Dutch, French or German.
class Messenger
{
public:
    /// The text of `key`; where there is none, `value`, or the key itself when that is "". There is
    /// one table, whatever `table` says.
    [[nodiscard]] static QString
    getLangStr(const QString& key, const QString& value, const QString& table);

    /// The text used as a format without arguments: a double per cent sign is a single one.
    [[nodiscard]] static QString formatted(const QString& key);
};

} // namespace brenvaldo::services
