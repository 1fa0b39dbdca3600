// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QString>

#include <optional>

namespace brenvaldo::platform::codecs {

/// The drawing in an SVG file, or on the first page of a PDF file, at the size that it states and
/// 72 dots per inch; transparent where nothing is drawn. Readable in any order.
///
/// Nothing for other files, damaged ones, and drawings of more than 2^28 pixels.
[[nodiscard]] std::optional<graphics::Image> openDrawing(const QString& path);

} // namespace brenvaldo::platform::codecs
