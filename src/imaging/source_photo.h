// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output_tail.h"
#include "picture_to_save.h"

#include <platform/codecs/image_source.h>

namespace brenvaldo::imaging {

/// The stored pixels of the photo at `path`; nothing when it can't be read.
[[nodiscard]] std::optional<platform::graphics::Image>
storedPhoto(const QString& path, platform::codecs::SourceAccess access);

/// What becomes of a photo that can't be read: "Failed", but a type that is never written has the
/// word of its own.
[[nodiscard]] Outcome unreadablePhoto(const OutputTail& tail);

} // namespace brenvaldo::imaging
