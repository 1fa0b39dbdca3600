// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

#include <QByteArrayView>
#include <QString>

namespace brenvaldo::platform::codecs {

// A few bytes can claim a picture that takes minutes to make up. Each coding has a most that a byte
// of it can stand for, which flat pictures come close to; who claims more is refused unread.

/// @throws vips::VError when a picture of `size` can't stand in the file at `path`, which is of the
/// type `typeIdentifier`. JPEG, TIFF, BMP and Photoshop files are looked at by their own readers.
void checkClaimedSize(const QString& path, const QString& typeIdentifier, graphics::PixelSize size);

/// True when a file of the anymap family (P1 to P6), taken for one of `size`, claims that size and
/// holds all its samples.
[[nodiscard]] bool holdsWholeAnymap(QByteArrayView file, graphics::PixelSize size);

/// True when the run lengths of a bitmap, of 4 or 8 bits a pixel, reach their end marker or the end
/// of the picture, fit their rows, and when that picture isn't far larger than runs can make it.
[[nodiscard]] bool holdsWholeRuns(QByteArrayView runs, int bits, graphics::PixelSize size);

} // namespace brenvaldo::platform::codecs
