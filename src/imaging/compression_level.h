// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace brenvaldo::imaging {

/// 0.1 for "1", 0.2 for "2" and so on up to the digit `highest`; nothing for any other text.
[[nodiscard]] inline std::optional<double> tenthsOfLevel(const QString& level, int highest)
{
    if (level.size() != 1 || level.front() < u'1' || level.front() > QChar(u'0' + highest))
        return std::nullopt;
    return (level.front().unicode() - u'0') / 10.0;
}

} // namespace brenvaldo::imaging
