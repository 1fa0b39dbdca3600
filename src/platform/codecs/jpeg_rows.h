// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "opened_photo.h"

namespace brenvaldo::platform::codecs {

/// The pixels of the JPEG `file`, shrunk by 1, 2, 4 or 8 and decoded from top to bottom while
/// they are used.
///
/// `header` is what the engine's own reader tells of the file at the same shrink; its pixels are
/// not asked for, as that reader takes a picture whose data end early for a whole one. Here its
/// evaluation fails; harmless faults that cameras write are logged.
[[nodiscard]] vips::VImage
jpegRows(const SharedPhoto& file, int shrink, const vips::VImage& header);

/// @throws vips::VError when the header at `path` can't be read, or claims more pixels than the
/// coded bytes could hold.
void checkJpegSize(const QString& path);

} // namespace brenvaldo::platform::codecs
