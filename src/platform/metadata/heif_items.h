// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QSet>

#include <cstdint>
#include <optional>

/// \file
/// The items of a HEIC, HEIF or AVIF file: what they are, and which of them describe its picture.

namespace brenvaldo::platform::metadata {

using HeifItemId = std::uint64_t;

/// What the item information tells about a piece of metadata.
struct HeifItem
{
    HeifItemId id = 0;
    QByteArray type; ///< "Exif", or the content type of a "mime" item
};

/// The big-endian number; 0 beyond the end.
[[nodiscard]] std::uint64_t heifNumberAt(QByteArrayView bytes, std::uint64_t offset, int width);

/// The item of the picture that the payload of the box "pitm" names.
[[nodiscard]] HeifItemId primaryHeifItem(QByteArrayView primaryBox);

/// The items of the payload of the box "iinf"; those that describe `primary` by the payload of the
/// box "iref" come first.
[[nodiscard]] QList<HeifItem>
heifItems(QByteArrayView information, QByteArrayView references, HeifItemId primary);

} // namespace brenvaldo::platform::metadata
