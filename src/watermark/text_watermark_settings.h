// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text_effect.h"
#include "watermark_rules.h"

#include <platform/drawing/attributed_text.h>
#include <platform/drawing/layer_shadow.h>
#include <platform/graphics/color.h>

#include <optional>

namespace brenvaldo::panels {
struct TextWatermarkControls;
}

namespace brenvaldo::watermark {

/// The text watermark as the panel's controls stand at one moment.
struct TextWatermarkSettings
{
    QString text; ///< as typed, placeholders and all
    QString fontName;
    int fontSize = 24; ///< points, which are pixels
    int kerning = 0;
    int leading = 0;
    bool isBold = false;
    bool isItalic = false;
    platform::drawing::UnderlineStyle underline = platform::drawing::UnderlineStyle::None;
    platform::drawing::TextAlignment alignment = platform::drawing::TextAlignment::Left;
    double strokeWidth = 0; ///< percent of the font size; 0 fills the glyphs
    platform::graphics::Color fontColor;
    platform::graphics::Color embossColor;
    double opacity = 1;
    std::optional<platform::drawing::Shadow> shadow;
    TextEffect effect = TextEffect::Plain;
    Placement placement;
    bool isTiled = false;
};

/// Reads the controls. With no font selected the first one is selected and used.
[[nodiscard]] TextWatermarkSettings readSettings(panels::TextWatermarkControls& controls);

/// The text that is set: an italic one gets a blank behind it, so that its last glyph is not cut.
[[nodiscard]] QString textToSet(const TextWatermarkSettings& settings, const QString& text);

} // namespace brenvaldo::watermark
