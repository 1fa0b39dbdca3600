// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/text.h>

namespace brenvaldo::imaging {

QString
DVImageHandling::hFileNamePrePostFixConstruct(const QString& nameTemplate, const PixelTexts& texts)
{
    const QString withWidth
        = platform::replacingOccurrences(nameTemplate, u"<[IMGW]>"_s, texts.width);
    return platform::replacingOccurrences(withWidth, u"<[IMGH]>"_s, texts.height);
}

} // namespace brenvaldo::imaging
