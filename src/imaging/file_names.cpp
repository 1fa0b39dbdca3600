// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include <platform/foundation/text.h>

namespace brenvaldo::imaging {

QString
DVImageHandling::hFileNamePrePostFixConstruct(const QString& nameTemplate, const PixelTexts& texts)
{
    const QString withWidth
        = platform::replacingOccurrences(nameTemplate, QStringLiteral("<[IMGW]>"), texts.width);
    return platform::replacingOccurrences(withWidth, QStringLiteral("<[IMGH]>"), texts.height);
}

} // namespace brenvaldo::imaging
