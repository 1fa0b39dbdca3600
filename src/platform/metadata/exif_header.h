// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/jpeg_segments.h>

#include <QByteArrayView>

namespace brenvaldo::platform::metadata {

/// An EXIF block as it starts in the file; some programs put the header of a JPEG before it.
[[nodiscard]] inline QByteArrayView withoutExifHeader(QByteArrayView block)
{
    const QByteArrayView header = containers::jpeg::exifHeader;
    return block.startsWith(header) ? block.sliced(header.size()) : block;
}

} // namespace brenvaldo::platform::metadata
