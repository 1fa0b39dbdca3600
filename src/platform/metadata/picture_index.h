// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace brenvaldo::platform::metadata {

/// How the pictures of a JPEG with several of them have moved.
struct PictureMove
{
    qint64 shift = 0; ///< of the further pictures, against the index
    qint64 growth = 0; ///< of the first picture's bytes
};

/// The index of further pictures (a TIFF structure) with the places that they have after the move;
/// unchanged when it is damaged.
[[nodiscard]] QByteArray movedPictureIndex(QByteArrayView index, const PictureMove& move);

} // namespace brenvaldo::platform::metadata
