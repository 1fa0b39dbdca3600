// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo_list.h"

/// \file
/// How a file becomes an entry of the photo list. Only the file's header is read; a file that can't
/// be read as an image gets an entry without picture, with empty sizes, and orientation "S".

namespace brenvaldo::workspace {

/// "L" for a wide, "P" for a tall, "S" for a square picture.
[[nodiscard]] QString orientationLetter(platform::graphics::PixelSize size);

/// "4000x3000px | 2.10MB"; a side of 0 pixels prints nothing.
[[nodiscard]] QString sizeText(platform::graphics::PixelSize size, qint64 bytes);

/// An entry chosen for an image function: upright size, thumbnail, with its address.
[[nodiscard]] cCollectionViewItem chosenEntry(const QString& path);

/// An entry chosen for renaming: square without size text; what has no image's extension is marked
/// as no photo.
[[nodiscard]] cCollectionViewItem renameEntry(const QString& path);

/// An entry that was dropped or opened with the program: stored size, thumbnail, no address.
[[nodiscard]] cCollectionViewItem droppedEntry(const QString& path);

/// An entry that was inserted, or takes the place of another: stored size, full picture, with its
/// address.
[[nodiscard]] cCollectionViewItem insertedEntry(const QString& path);

/// An entry whose file was edited in place: upright size, full picture, with its address.
[[nodiscard]] cCollectionViewItem editedEntry(const QString& path);

} // namespace brenvaldo::workspace
