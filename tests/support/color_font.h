// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QRgb>

namespace brenvaldo::test {

/// A font named "Test Pictures" whose one glyph, for U+F8F0, is a picture: a square of `color` as
/// high and as wide as the font is large, on the baseline.
[[nodiscard]] QByteArray pictureFont(QRgb color);

} // namespace brenvaldo::test
