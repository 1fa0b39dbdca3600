// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_effect.h"

#include <array>

namespace brenvaldo::watermark {

namespace {

/// In the order of the effects. A relief casts the shadow of its whole layer, and the
/// black-and-white photo casts none.
constexpr std::array effects{
    TextEffectTraits{.fill = TextFill::Color, .castsGlyphShadow = true},
    TextEffectTraits{.fill = TextFill::White, .texture = u"texture1"},
    TextEffectTraits{.fill = TextFill::White, .texture = u"texture2"},
    TextEffectTraits{.fill = TextFill::White, .texture = u"texture3"},
    TextEffectTraits{.fill = TextFill::White, .texture = u"texture4"},
    TextEffectTraits{.fill = TextFill::White, .texture = u"texture5"},
    TextEffectTraits{.fill = TextFill::White, .texture = u"texture6", .hasReliefColor = true},
    TextEffectTraits{.fill = TextFill::Photo, .castsGlyphShadow = true},
    TextEffectTraits{.fill = TextFill::NoirPhoto},
    TextEffectTraits{.fill = TextFill::White, .texture = u"texture8"},
};

} // namespace

TextEffect textEffectOfIndex(int index)
{
    const bool isListed = index >= 0 && static_cast<std::size_t>(index) < effects.size();
    return isListed ? static_cast<TextEffect>(index) : TextEffect::Relief8;
}

const TextEffectTraits& traitsOf(TextEffect effect)
{
    return effects.at(static_cast<std::size_t>(effect));
}

} // namespace brenvaldo::watermark
