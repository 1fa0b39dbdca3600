// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <cstdint>

namespace brenvaldo::platform::containers {

namespace gif {

constexpr std::uint8_t graphicControl = 0xF9;
constexpr std::uint8_t comment = 0xFE;
constexpr std::uint8_t application = 0xFF;

} // namespace gif

/// A block of a GIF that is no picture: a view into the file.
struct GifExtension
{
    std::uint8_t label = 0;
    QByteArrayView dataBlocks; ///< each with its length in front, the empty last one with them
};

/// True when the colours of all pictures stand in the header.
[[nodiscard]] bool hasGlobalPalette(QByteArrayView file);

/// The extensions up to the end or to damage.
[[nodiscard]] QList<GifExtension> readGifExtensions(QByteArrayView file);

/// What stands in the data blocks.
[[nodiscard]] QByteArray joinedDataBlocks(QByteArrayView dataBlocks);

} // namespace brenvaldo::platform::containers
