// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit_conversion.h"

#include "dv_image_handling.h"
#include "unit_rules.h"

namespace brenvaldo::imaging {

float cMConversion::convertXtoPixel(
    const QString& path, const QString& targetUnit, const QString& sourceUnit, float value
)
{
    if (targetUnit != QStringLiteral("pixel"))
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
