// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/codecs/image_destination.h>

#include <QString>

#include <optional>

namespace brenvaldo::imaging {

/// How the file conversion makes one of its formats.
struct ConversionRule
{
    enum class Route {
        Plain, ///< pixels alone; nothing is left behind when they can't be written
        Metadata ///< with the source's metadata; a failure leaves an empty file
    };
    enum class Quality { PlatformDefault, FromLevel };

    QString suffix; ///< end of the type identifier, and the extension of the file
    platform::codecs::FileFormat format = platform::codecs::FileFormat::Png;
    Route route = Route::Plain;
    Quality quality = Quality::PlatformDefault;
};

/// The rule of the first suffix, in their fixed order, that ends `typeIdentifier`.
[[nodiscard]] std::optional<ConversionRule> conversionRuleForType(const QString& typeIdentifier);

/// The rule of an extension word: compared whole, "heic" alone as a suffix.
[[nodiscard]] std::optional<ConversionRule> conversionRuleForWord(const QString& word);

/// Target of a conversion: the base with the suffix of its type ("jpeg", never "jpg") as
/// extension; the bare base for an unknown type.
[[nodiscard]] QString
conversionTarget(const QString& destinationBase, const QString& typeIdentifier);

/// JPEG quality of a conversion: "1" to "8" give 0.1 to 0.8, any other text 0.9.
[[nodiscard]] double conversionQuality(const QString& compressionLevel);

} // namespace brenvaldo::imaging
