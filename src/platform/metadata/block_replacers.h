// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "metadata_edit.h"

#include <QByteArrayList>
#include <QByteArrayView>

#include <optional>

/// \file
/// Change metadata in the bytes of a whole file.
///
/// The result is the new file in pieces; pieces may point into `file`, which has to outlive them.
/// Picture data and all metadata that the edit does not name are the same bytes as before. Nothing
/// comes back when the file, or a block that is to be changed, is damaged, and when it can't hold
/// what is set.

namespace brenvaldo::platform::metadata {

[[nodiscard]] std::optional<QByteArrayList>
editedJpeg(QByteArrayView file, const MetadataEdit& edit);

[[nodiscard]] std::optional<QByteArrayList>
editedPng(QByteArrayView file, const MetadataEdit& edit);

/// Nothing for a BigTIFF.
[[nodiscard]] std::optional<QByteArrayList>
editedTiffFile(QByteArrayView file, const MetadataEdit& edit);

/// Nothing for a bare code stream.
[[nodiscard]] std::optional<QByteArrayList>
editedJpeg2000(QByteArrayView file, const MetadataEdit& edit);

/// HEIC, HEIF and AVIF. IPTC goes into XMP alone, unless the file holds data sets already. Nothing
/// for a sequence.
[[nodiscard]] std::optional<QByteArrayList>
editedHeif(QByteArrayView file, const MetadataEdit& edit);

} // namespace brenvaldo::platform::metadata
