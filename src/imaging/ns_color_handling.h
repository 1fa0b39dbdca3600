// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

#include <QString>

namespace brenvaldo::imaging {

/// Colours from and to texts of six hexadecimal digits: red, green, blue.
class cNSColorHandling
{
public:
    /// The opaque colour of the hexadecimal digits at the start of `text`; a text that begins with
    /// none, such as one with a leading "#", gives black.
    [[nodiscard]] static platform::graphics::Color colorFromHexRGB(const QString& text);
    [[nodiscard]] static platform::graphics::Color colorFromHexToRGB(const QString& text);

    /// Upper case; each component times 255, truncated: "7F7F7F" for components of 0.5.
    [[nodiscard]] static QString hGetHexFromRGB(const platform::graphics::Color& color);
};

} // namespace brenvaldo::imaging
