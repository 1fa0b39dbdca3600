// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace brenvaldo::files {

/// A copy of one photo in another format.
struct PhotoCopy
{
    QString source;
    QString target;
    QString type; ///< one of `photoCopyTypes`
    QString compression = {}; ///< JPEG only: the digit of the pop-up
};

/// The types that a copy can have: "pdf", "png", "tiff", "bmp", "gif", "jp2", "jpeg".
[[nodiscard]] QStringList photoCopyTypes();

/// A tenth of the digit for "1" to "8", and 0.9 for any other title.
[[nodiscard]] double compressionFactor(const QString& title);

/// Writes the copy whole or not at all; an existing target is replaced.
///
/// PNG, TIFF and JPEG keep the stored pixels and the metadata, the orientation among them; the
/// other image types get the stored pixels alone, a PDF a page with the upright photo. False for
/// another type, and when the photo can't be read or the target not be written.
[[nodiscard]] bool writePhotoCopy(const PhotoCopy& copy);

} // namespace brenvaldo::files
