// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>

#include <cstdint>

namespace brenvaldo::test {

/// A file with layers, of which only the merged picture stands in it; written byte by byte.
struct PsdContents
{
    QSize size;
    int mode = 3; ///< 0 bitmap, 1 grey, 2 indexed, 3 RGB, 4 CMYK, 8 duotone, 9 Lab
    int bitsPerSample = 8;
    QList<QByteArray> channels = {}; ///< the rows of each, as stored
    int layers = 0; ///< negative: the first mask is the transparency
    bool isLarge = false; ///< PSB
    bool isPacked = false; ///< by run lengths
    int compression = -1; ///< what the file claims instead
    QByteArray palette = {};
    QByteArray resources = {};
};

[[nodiscard]] QByteArray psdFile(const PsdContents& contents);

/// An image resource without a name.
[[nodiscard]] QByteArray psdResource(std::uint16_t id, const QByteArray& data);

} // namespace brenvaldo::test
