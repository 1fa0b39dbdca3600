// SPDX-License-Identifier: GPL-3.0-or-later
#include "stored_photo.h"

#include "dv_image_handling.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

#include <QFileInfo>

namespace brenvaldo::imaging {

bool isReadableFile(const QString& path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isReadable();
}

std::optional<platform::graphics::Image> storedPhoto(const QString& path)
{
    if (!isReadableFile(path)) {
        platform::log(u"Image source is NULL."_s);
        return std::nullopt;
    }
    auto image = DVImageHandling::hStringToCGImageRef(path);
    if (!image)
        platform::log(u"Image not created from image source."_s);
    return image;
}

} // namespace brenvaldo::imaging
