// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "exceptions.h"

namespace brenvaldo::platform {

/// The exception that is being handled: one of the platform as it is, any other with the kind
/// "NSGenericException" and what it tells of itself.
[[nodiscard]] Exception handledException();

} // namespace brenvaldo::platform
