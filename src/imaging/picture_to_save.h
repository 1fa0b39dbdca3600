// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output_tail.h"
#include "result_word.h"

#include <platform/containers/metadata_blocks.h>
#include <platform/graphics/image.h>

#include <QString>

#include <memory>
#include <optional>
#include <variant>

/// \file
/// What an operation ends in: a picture and its place, or a word where nothing is to be written.

namespace brenvaldo::imaging {

/// A picture that is still to be made and written. It holds all that its writer needs, so it can be
/// saved later and on any thread.
struct PictureToSave
{
    /// Makes the file: one of the writers of `DVImageHandling`, or that of a conversion.
    using Writer = ResultWord (*)(const PictureToSave& picture);

    QString destination; ///< path without extension; `hSaveToNewImageFile` takes the whole path
    QString typeIdentifier;
    std::optional<platform::graphics::Image> image; ///< without a picture the writing fails
    std::optional<platform::containers::MetadataBlocks> properties = {}; ///< metadata of the source
    QString compressionLevel = {}; ///< ignored by `hSaveToNewImageFile`
    Writer writer = nullptr;
    QString source = {}; ///< path of the photo; for a writer that looks at it once more
    /// Of the same photo, written first; its word is told to no one.
    std::shared_ptr<const PictureToSave> before = {};
};

/// Nothing can be made of the photo: its word is that of the picture that was saved before.
struct WordOfPictureBefore
{
};

/// What an operation answers for one photo.
using Outcome = std::variant<ResultWord, WordOfPictureBefore, PictureToSave>;

/// The picture of a batch operation: its place and type by the arguments that every one of them
/// has, with the metadata of the source.
[[nodiscard]] PictureToSave outputPicture(
    const std::optional<platform::graphics::Image>& image,
    const SourceAndBase& photo,
    const OutputTail& tail
);

/// Makes the file by the picture's writer, after that of the picture before it; the picture's own
/// word.
ResultWord save(const PictureToSave& picture);

} // namespace brenvaldo::imaging
