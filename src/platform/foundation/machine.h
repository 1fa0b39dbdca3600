// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace brenvaldo::platform {

/// Bytes of memory that the machine has, whoever uses them.
[[nodiscard]] std::size_t memoryOfMachine();

} // namespace brenvaldo::platform
