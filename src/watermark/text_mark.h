// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text_watermark_settings.h"

#include <platform/drawing/stamp.h>
#include <platform/graphics/image.h>

#include <QFont>

namespace brenvaldo::watermark {

/// Lays a styled text over a photo: rendering, relief, shadow, place and tiling.
///
/// `text` has its placeholders replaced; `font` is the selected font at any size. An empty text
/// leaves no mark. Effects that fill the glyphs with the photo need a photo that can be evaluated
/// more than once.
[[nodiscard]] platform::drawing::Stamp textMark(
    const TextWatermarkSettings& settings,
    const QString& text,
    const QFont& font,
    const platform::graphics::Image& photo
);

} // namespace brenvaldo::watermark
