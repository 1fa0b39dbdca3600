// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_icons.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

std::optional<platform::graphics::Image> templatePicture(const QString& name)
{
    const QImage picture(u":/gallery/templates/"_s + name);
    if (picture.isNull())
        return std::nullopt;
    return platform::graphics::Image::fromQImage(picture);
}

QImage icon(const QString& name) { return QImage(u":/gallery/icons/"_s + name + u".png"_s); }

} // namespace brenvaldo::gallery
