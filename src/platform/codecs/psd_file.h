// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

#include <QByteArrayView>

#include <cstdint>

namespace brenvaldo::platform::codecs {

enum class PsdMode : std::uint16_t {
    Bitmap = 0,
    Gray = 1,
    Indexed = 2,
    Rgb = 3,
    Cmyk = 4,
    Duotone = 8,
    Lab = 9
};

enum class PsdCompression : std::uint16_t { None = 0, RunLengths = 1 };

/// Where the merged picture of a PSD or PSB file stands and how it is stored; views into the file.
///
/// The fields are those of Adobe's published description of the format.
struct PsdFile
{
    graphics::PixelSize size;
    PsdMode mode = PsdMode::Rgb;
    int channels = 0; ///< colours, then alpha and masks
    int bitsPerSample = 8; ///< 1, 8 or 16
    bool isLarge = false; ///< a PSB file, which counts in wider fields
    bool firstMaskIsAlpha = false; ///< transparency of the merged picture
    QByteArrayView palette; ///< 256 reds, greens and blues when the picture is indexed
    QByteArrayView resources; ///< image resource blocks
    PsdCompression compression = PsdCompression::None;
    QByteArrayView samples; ///< of the merged picture, channel by channel
};

/// @throws vips::VError when the file is damaged or holds no merged picture of a known kind.
[[nodiscard]] PsdFile readPsdFile(QByteArrayView bytes);

/// Channels that hold the colours of `mode`.
[[nodiscard]] int psdColorChannels(PsdMode mode);

} // namespace brenvaldo::platform::codecs
