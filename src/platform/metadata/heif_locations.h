// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "heif_items.h"

namespace brenvaldo::platform::metadata {

/// A run of an item's bytes.
struct HeifExtent
{
    std::uint64_t index = 0;
    std::uint64_t offset = 0; ///< from the start of the file, or of what the method names
    std::uint64_t length = 0;
};

/// Where the bytes of one item stand.
struct HeifLocation
{
    /// In the file itself; other methods point into boxes or other items.
    static constexpr std::uint64_t inFile = 0;

    HeifItemId id = 0;
    std::uint64_t method = inFile;
    std::uint64_t dataReference = 0; ///< 0: in this file
    QList<HeifExtent> extents = {};

    [[nodiscard]] bool isInFile() const { return method == inFile && dataReference == 0; }
};

/// What the item location box holds.
struct HeifLocations
{
    std::uint64_t version = 0;
    int indexWidth = 0;
    QList<HeifLocation> items = {};
};

/// Reads the payload of the box; nothing when any of it is damaged, or an extent reaches to the end
/// of the file.
[[nodiscard]] std::optional<HeifLocations> readHeifLocations(QByteArrayView payload);

/// The whole box with numbers of `width` bytes, 4 or 8.
[[nodiscard]] QByteArray heifLocationBox(const HeifLocations& locations, int width);

} // namespace brenvaldo::platform::metadata
