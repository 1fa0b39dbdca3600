// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QString>

#include <optional>

namespace brenvaldo::workspace {

/// The photo as the big preview shows it: upright, at full size; nothing when it can't be read.
/// Its pixels are decoded when they are drawn.
[[nodiscard]] std::optional<platform::Image> previewOfPhoto(const QString& path);

/// `overlay` drawn over `photo` at the photo's size; nothing without both.
[[nodiscard]] std::optional<platform::Image> composed(
    const std::optional<platform::Image>& photo, const std::optional<platform::Image>& overlay
);

} // namespace brenvaldo::workspace
