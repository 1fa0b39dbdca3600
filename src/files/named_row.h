// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <algorithm>

namespace brenvaldo::files {

/// The row of a table that has that name; null when there is none.
template <class Rows>
[[nodiscard]] const typename Rows::value_type* rowNamed(const Rows& rows, const QString& name)
{
    const auto row = std::find_if(rows.begin(), rows.end(), [&name](const auto& candidate) {
        return name == candidate.name;
    });
    return row == rows.end() ? nullptr : &*row;
}

} // namespace brenvaldo::files
