// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>

namespace brenvaldo::platform {

/// True for "0" to "9" alone; the digits of other scripts are none.
[[nodiscard]] constexpr bool isAsciiDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace brenvaldo::platform
