// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit_conversion.h"

#include "dv_image_handling.h"
#include "unit_rules.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::imaging {

float cMConversion::convertXtoPixel(
    const QString& path, const QString& targetUnit, const QString& sourceUnit, float value
)
{
    if (targetUnit != u"pixel"_s)
        return static_cast<float>(m_newValue);

    if (needsResolution(sourceUnit))
        m_dpiValue = getPictureDPI(path);
    m_newValue = pixelsOf(value, sourceUnit, m_dpiValue);
    return static_cast<float>(m_newValue);
}

float cMConversion::getPictureDPI(const QString& path)
{
    return static_cast<float>(DVImageHandling().hGetImgResolution(path));
}

} // namespace brenvaldo::imaging
