// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::platform::storage {

/// Gives the open file `target` the extended attributes that users and programs gave `source`.
///
/// File systems without extended attributes lose them silently, as every copy between them does.
void copyExtendedAttributes(int source, int target);

} // namespace brenvaldo::platform::storage
