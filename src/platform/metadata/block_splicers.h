// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/metadata_blocks.h>

#include <QByteArrayList>
#include <QByteArrayView>

#include <optional>

/// \file
/// Put metadata blocks into the bytes of a file that was encoded without any.
///
/// The result is the new file in pieces; pieces may point into `encoded`, which has to outlive
/// them. Nothing comes back when `encoded` is not of its format.

namespace brenvaldo::platform::metadata {

[[nodiscard]] std::optional<QByteArrayList>
splicedJpeg(QByteArrayView encoded, const containers::MetadataBlocks& blocks);

[[nodiscard]] std::optional<QByteArrayList>
splicedPng(QByteArrayView encoded, const containers::MetadataBlocks& blocks);

/// The EXIF block goes in at its own offsets, so that its directories and the maker note stay as
/// they are; its first directory is merged with the one that describes the pixels, and the
/// thumbnail is kept in a Photoshop resource. Left out: the JPEG comment and JPEG segments.
[[nodiscard]] std::optional<QByteArrayList>
splicedTiff(QByteArrayView encoded, const containers::MetadataBlocks& blocks);

} // namespace brenvaldo::platform::metadata
