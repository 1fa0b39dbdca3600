// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::platform::codecs {

/// @throws vips::VError when the first page of a TIFF has no size, or claims more than the file's
/// bytes can hold.
void checkTiffSize(const QString& path);

/// True for a TIFF with JPEG of the old style: the engine reads it in wrong colours.
[[nodiscard]] bool holdsOldJpeg(const QString& path);

} // namespace brenvaldo::platform::codecs
