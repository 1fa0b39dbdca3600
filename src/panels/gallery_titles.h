// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace brenvaldo::panels {

/// Names of the fonts that a gallery can be set in.
[[nodiscard]] QStringList webFontTitles();

[[nodiscard]] QStringList fontWeightTitles();

/// Sizes of texts as CSS writes them.
[[nodiscard]] QStringList fontSizeTitles();

[[nodiscard]] QStringList alignmentTitles();

/// What a caption can be made of.
[[nodiscard]] QStringList galleryMetadataTitles();

/// File types of pictures, by their extension.
[[nodiscard]] QStringList pictureFormatTitles();

/// Levels of compression, "1" to "10".
[[nodiscard]] QStringList compressionTitles();

} // namespace brenvaldo::panels
