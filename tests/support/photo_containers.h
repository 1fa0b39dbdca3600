// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo_builder.h"

#include <QByteArray>
#include <QSize>

#include <vips/vips8>

#include <functional>

namespace brenvaldo::test {

// The containers of test photos, written byte by byte, so that no code under test takes part.

/// Takes over an encoded file.
[[nodiscard]] QByteArray bytesOf(VipsBlob* blob);

/// Marker, length and contents.
[[nodiscard]] QByteArray jpegSegment(char marker, const QByteArray& contents);
[[nodiscard]] QByteArray jfifSegment(double dotsPerInch);
[[nodiscard]] QByteArray profileSegments(const QByteArray& profile);

/// Where further chunks go in a PNG: behind its header chunk.
constexpr qsizetype pngChunksAt = 33;

struct PngMetadata
{
    double dotsPerInch = 0;
    QByteArray iccProfile = {};
    QByteArray exif = {};
    QByteArray xmp = {};
};

[[nodiscard]] QByteArray pngMetadata(const PngMetadata& metadata);

[[nodiscard]] QByteArray tiffFile(
    const vips::VImage& pixels, int orientation, double dotsPerInch, const QByteArray& iccProfile
);

/// 24 bits a pixel, or 8 bits with a grey palette for one sample.
[[nodiscard]] QByteArray bmpFile(
    QSize size,
    int samples,
    double dotsPerInch,
    const QByteArray& iccProfile,
    const std::function<Samples(int, int)>& rule
);

struct HeicContents
{
    QSize size;
    bool hasAlpha = false;
    QByteArray samples = {}; ///< RGB or RGBA, 8 bits
    QByteArray iccProfile = {};
    QByteArray exif = {};
    QByteArray xmp = {};
    int transformation = 1; ///< 1 to 8, as rotation and mirror boxes
    bool statesTurnedSize = false; ///< the size after the rotation stands in the file
    int quality = 95;
};

[[nodiscard]] QByteArray heicFile(const HeicContents& contents);

} // namespace brenvaldo::test
