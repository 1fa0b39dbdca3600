// SPDX-License-Identifier: GPL-3.0-or-later
#include "machine.h"

#include <unistd.h>

namespace brenvaldo::platform {

std::size_t memoryOfMachine()
{
    return static_cast<std::size_t>(::sysconf(_SC_PHYS_PAGES))
        * static_cast<std::size_t>(::sysconf(_SC_PAGE_SIZE));
}

} // namespace brenvaldo::platform
