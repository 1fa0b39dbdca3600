// SPDX-License-Identifier: GPL-3.0-or-later
#include "keep_number.h"

namespace brenvaldo::files {

cKeepNumber& cKeepNumber::sharedNumber()
{
    static cKeepNumber number;
    return number;
}

} // namespace brenvaldo::files
