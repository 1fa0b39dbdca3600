// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace brenvaldo::platform::containers {

/// What showing a photo needs from its EXIF block.
struct ExifFacts
{
    int orientation = 1; ///< 1 to 8; 1 when it is missing or invalid
    std::optional<double> dotsPerInch = {};
    QByteArray thumbnail = {}; ///< a JPEG file; empty without one
};

/// Reads a TIFF structure (what follows "Exif\0\0"). Whatever is damaged in it is left out.
[[nodiscard]] ExifFacts readExifFacts(QByteArrayView block);

/// A TIFF structure that states the resolution and nothing else.
[[nodiscard]] QByteArray exifOfResolution(double dotsPerInch);

} // namespace brenvaldo::platform::containers
