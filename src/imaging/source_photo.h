// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output_tail.h"
#include "picture_to_save.h"

namespace brenvaldo::imaging {

/// What becomes of a photo that can't be read: "Failed", but a type that is never written has the
/// word of its own.
[[nodiscard]] Outcome unreadablePhoto(const OutputTail& tail);

} // namespace brenvaldo::imaging
