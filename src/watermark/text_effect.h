// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panels/text_effect.h>

#include <QString>

namespace brenvaldo::watermark {

using panels::TextEffect;

/// The effect of the pop-up's index; every index behind the last is the last relief.
[[nodiscard]] TextEffect textEffectOfIndex(int index);

/// What the glyphs are made of.
enum class TextFill {
    Color,
    White, ///< to be embossed
    Photo,
    NoirPhoto
};

/// How an effect is drawn.
struct TextEffectTraits
{
    TextFill fill;
    /// The shading texture that the finished layer is embossed with; null for no relief.
    const char16_t* texture = nullptr;
    /// The glyphs cast the shadow themselves.
    bool castsGlyphShadow = false;
    bool hasReliefColor = false;

    [[nodiscard]] bool isRelief() const { return texture != nullptr; }
    [[nodiscard]] bool fillsWithPhoto() const
    {
        return fill == TextFill::Photo || fill == TextFill::NoirPhoto;
    }
};

[[nodiscard]] const TextEffectTraits& traitsOf(TextEffect effect);

} // namespace brenvaldo::watermark
