// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "css_text.h"
#include "slide_show_values.h"

#include <QStringList>

namespace brenvaldo::gallery {

/// \file
/// Rules that the stylesheets of slide shows and of the dense grid share.

/// The picture that repeats behind the page.
[[nodiscard]] QStringList patternLines(const PatternLook& pattern);

/// Size, weight, colour and alignment of a text.
[[nodiscard]] QStringList titleLines(const TextLook& look);

/// The margins around a title.
[[nodiscard]] QStringList titlePlaceLines();

/// The caption on a picture; `depth` is a line with its place in the pile, or none.
void addCaptionOnPicture(
    CssText& css, const QString& fontFamily, const TextLook& caption, const QString& depth
);

} // namespace brenvaldo::gallery
