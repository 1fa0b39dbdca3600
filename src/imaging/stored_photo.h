// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QString>

#include <optional>

namespace brenvaldo::imaging {

/// False when there is no file at `path` to read an image from.
[[nodiscard]] bool isReadableFile(const QString& path);

/// The stored pixels of the photo at `path`; the log tells why there are none.
[[nodiscard]] std::optional<platform::graphics::Image> storedPhoto(const QString& path);

} // namespace brenvaldo::imaging
