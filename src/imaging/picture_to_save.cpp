// SPDX-License-Identifier: GPL-3.0-or-later
#include "picture_to_save.h"

#include "dv_image_handling.h"

#include <platform/metadata/metadata_reader.h>

namespace brenvaldo::imaging {

PictureToSave outputPicture(
    const std::optional<platform::graphics::Image>& image,
    const SourceAndBase& photo,
    const OutputTail& tail
)
{
    return {
        .destination = photo.destinationBase,
        .typeIdentifier = tail.myFileType,
        .image = image,
        .properties = platform::metadata::readMetadataBlocks(photo.source),
        .compressionLevel = tail.compressionLevel,
        .writer = DVImageHandling::hSaveToNewImageFileX};
}

ResultWord save(const PictureToSave& picture)
{
    if (picture.before)
        save(*picture.before);
    return picture.writer(picture);
}

} // namespace brenvaldo::imaging
