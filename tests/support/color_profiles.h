// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rgb_space.h"

#include <QByteArray>

namespace brenvaldo::test {

/// A profile of RGB with wider primaries than sRGB, and `padding` bytes of an extra tag.
[[nodiscard]] QByteArray wideProfile(qsizetype padding = 0);

/// `wideProfile` with a rendering intent that does not exist: some libraries reject it.
[[nodiscard]] QByteArray oddProfile();

/// The ICC profile of a space.
[[nodiscard]] QByteArray profileOf(const RgbSpace& space);

/// A profile of grey with a gamma of 1.8.
[[nodiscard]] QByteArray grayProfile();

/// A profile of CMYK that prints every colour as its lightness in black ink.
[[nodiscard]] QByteArray blackInkProfile();

/// A profile of Lab.
[[nodiscard]] QByteArray labProfile();

/// A profile of RGB that can be read and tells nothing.
[[nodiscard]] QByteArray emptyProfile();

/// A profile of RGB as scanners have it: tells what colours mean, but not how to make them.
[[nodiscard]] QByteArray scannerProfile();

} // namespace brenvaldo::test
