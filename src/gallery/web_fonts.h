// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace brenvaldo::gallery {

/// The nine fonts without serifs that a gallery can be set in, as the pop-up titles them. Any other
/// title stands for Trirong.
[[nodiscard]] const QStringList& sansSerifFonts();

/// The CSS line that sets the font of a title, without its line break.
[[nodiscard]] QString fontLine(const QString& title);

/// The link of a page to the font's stylesheet at the public font service, with its line break.
[[nodiscard]] QString fontLink(const QString& title);

/// The weight of a title of a weight pop-up: "Bold" is "700"; anything unknown is "900".
[[nodiscard]] QString fontWeight(const QString& title);

/// The weight of file names: as `fontWeight`, but "Bold" is "900".
[[nodiscard]] QString fileNameWeight(const QString& title);

/// The alignment of a segment: 0 "left", 1 "center", any other "right".
[[nodiscard]] QString alignmentWord(int segment);

} // namespace brenvaldo::gallery
