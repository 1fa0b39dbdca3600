// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/codecs/image_destination.h>

#include <QString>

#include <optional>

/// \file
/// Which file a writer makes of a type identifier: format, extension, metadata, quality, log.

namespace brenvaldo::imaging {

/// The three ways out of an operation; the names of the operations stand beside them.
enum class Writer {
    Batch, ///< `hSaveToNewImageFileX`
    Watermark, ///< `hSaveToNewImageFileMPR`, which never gets to HEIC
    WholePath ///< `hSaveToNewImageFile`, which takes the path with its extension
};

/// What a writer does with a type that it knows.
struct WriterRule
{
    enum class Properties { Dropped, Carried };
    enum class Failure { Silent, Logged };
    enum class Quality { PlatformDefault, FromLevel };

    platform::codecs::FileFormat format = platform::codecs::FileFormat::Png;
    QString extension = {}; ///< added to the destination, with its dot; may be empty
    Properties properties = Properties::Dropped;
    Failure failure = Failure::Silent;
    Quality quality = Quality::PlatformDefault;
};

/// Nothing when `writer` does not know the type.
[[nodiscard]] std::optional<WriterRule> writerRule(Writer writer, const QString& typeIdentifier);

/// True for the types that are never written and answer "Not Supported".
[[nodiscard]] bool isNotSupported(const QString& typeIdentifier);

/// The path that `writer` would write to; "" when it would write nothing.
[[nodiscard]] QString
writtenPath(Writer writer, const QString& destination, const QString& typeIdentifier);

/// JPEG quality of a writer: "1" to "9" give 0.1 to 0.9, any other text 1.0.
[[nodiscard]] double writerQuality(const QString& compressionLevel);

/// The output type of a title of `pubFileType`: "public.png" for "png", "com.compuserve.gif" for
/// "gif"; "original file type" stays.
[[nodiscard]] QString outputTypeForTitle(const QString& title);

/// True when each photo keeps its own type.
[[nodiscard]] bool keepsOriginalType(const QString& outputType);

} // namespace brenvaldo::imaging
