// SPDX-License-Identifier: GPL-3.0-or-later
#include "same_name_copy.h"

#include "dv_image_handling.h"

#include <platform/containers/type_identifier.h>
#include <platform/foundation/paths.h>
#include <platform/metadata/metadata_reader.h>

namespace brenvaldo::imaging {

QString typeOfExtension(const QString& path)
{
    return platform::containers::preferredTypeIdentifier(platform::pathExtension(path));
}

ResultWord saveUnderItsName(
    const std::optional<platform::graphics::Image>& image,
    const QString& source,
    const QString& folder
)
{
    return DVImageHandling::hSaveToNewImageFile({
        .destination = folder + platform::lastPathComponent(source),
        .typeIdentifier = typeOfExtension(source),
        .image = image,
        .properties = platform::metadata::readMetadataBlocks(source),
    });
}

} // namespace brenvaldo::imaging
