// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "watermark_rules.h"

#include <platform/graphics/attributed_text.h>
#include <platform/graphics/color.h>
#include <platform/graphics/layer_shadow.h>

#include <optional>

namespace brenvaldo::panels {
struct TextWatermarkControls;
}

namespace brenvaldo::watermark {

/// What the glyphs are made of.
enum class TextFill {
    Color,
    White, ///< to be embossed
    Photo,
    NoirPhoto
};

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
    platform::UnderlineStyle underline = platform::UnderlineStyle::None;
    platform::TextAlignment alignment = platform::TextAlignment::Left;
    double strokeWidth = 0; ///< percent of the font size; 0 fills the glyphs
    platform::Color fontColor;
    platform::Color embossColor;
    double opacity = 1;
    std::optional<platform::Shadow> shadow;
    int effect = 0; ///< index of the effect's pop-up
    Placement placement;
    bool isTiled = false;
};

/// Reads the controls. With no font selected the first one is selected and used.
[[nodiscard]] TextWatermarkSettings readSettings(panels::TextWatermarkControls& controls);

[[nodiscard]] TextFill fillOfEffect(int effect);

/// True when the text is embossed after rendering.
[[nodiscard]] bool embosses(int effect);

/// Name of the shading texture of an effect that embosses.
[[nodiscard]] QString textureOfEffect(int effect);

/// True when the glyphs cast the shadow themselves. The effect of the black-and-white photo casts
/// none.
[[nodiscard]] bool castsGlyphShadow(int effect);

/// The text that is set: an italic one gets a blank behind it, so that its last glyph is not cut.
[[nodiscard]] QString textToSet(const TextWatermarkSettings& settings, const QString& text);

} // namespace brenvaldo::watermark
