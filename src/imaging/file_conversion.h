// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conversion_rules.h"
#include "picture_to_save.h"

#include <QString>
#include <QUrl>

namespace brenvaldo::imaging {

/// What a conversion answers; nobody is told of a failure but by `word`.
struct ConversionResult
{
    QUrl saveURL; ///< the target, whether it stands or not
    QString type; ///< type identifier or extension word that was asked for
    QString name; ///< the source's file name without extension
    ResultWord word = ResultWord::Failed; ///< "OK" when the whole file stands
};

/// Converts photos from file to file: stored pixels, no image operation.
///
/// The orientation is not applied; types of the metadata route keep it as a tag.
class FileConversion
{
public:
    struct Settings
    {
        QString source; ///< path of the photo
        QString type; ///< type identifier, or extension word of `hSaveAsFileType`
        QString compressionLevel = {};
        QString destination; ///< whole path, or folder ending in "/" of `hSaveAsFileType`
    };

    /// The picture that `hConvertFileType` writes; "Failed" for an unknown type.
    [[nodiscard]] static Outcome conversion(const Settings& settings);

    /// The picture that `hSaveAsFileType` writes of `image`, made of the photo `source`; nothing
    /// for an unknown extension word.
    [[nodiscard]] static std::optional<PictureToSave>
    pictureOfType(const Settings& settings, const platform::graphics::Image& image);

    /// Writes the photo to `destination` as the format that the type identifier ends with; an
    /// unknown type writes nothing.
    ConversionResult hConvertFileType(const Settings& settings) const;

    /// Writes the photo into the folder `destination` under its own name with the word as
    /// extension, then removes the source, unless it is the target itself.
    ///
    /// For work files: the source goes also when nothing could be written.
    ConversionResult hSaveAsFileType(const Settings& settings) const;
};

} // namespace brenvaldo::imaging
