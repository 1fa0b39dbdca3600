// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <optional>

namespace brenvaldo::platform::containers {

/// How the parts of an image file are put together.
enum class Container {
    Jpeg,
    Png,
    Gif,
    Tiff,
    Heif, ///< HEIC and AVIF as well
    Jpeg2000,
    JpegXl,
    Webp,
    Photoshop,
    Bitmap,
    Other
};

/// What the first bytes of an image file tell.
struct FileKind
{
    Container container;
    const char* typeIdentifier; ///< such as "public.jpeg"
};

/// As many bytes as tell the kind of any file.
constexpr qsizetype fileKindLength = 64;

/// The kind of the file that starts with these bytes; nothing when it is of no known image type.
[[nodiscard]] std::optional<FileKind> fileKindOf(QByteArrayView file);

} // namespace brenvaldo::platform::containers
