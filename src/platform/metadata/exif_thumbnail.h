// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace brenvaldo::platform::metadata {

// The thumbnail of an EXIF block: its second directory, and the picture that this points to.

/// An EXIF block with the thumbnail of `exif` and an empty first directory; empty when there is no
/// thumbnail.
///
/// Directory, values and picture stand at the offsets they have in `exif`: where the block itself
/// stands in a file at its own offsets, these lead to the thumbnail from either place.
[[nodiscard]] QByteArray thumbnailAlone(QByteArrayView exif);

/// `exif` with the thumbnail of the block or file `source` behind it, in the byte order of `exif`.
///
/// `exif` as it stands when `source` has no thumbnail; the thumbnail alone when `exif` is empty.
[[nodiscard]] QByteArray withThumbnailOf(QByteArrayView source, const QByteArray& exif);

} // namespace brenvaldo::platform::metadata
