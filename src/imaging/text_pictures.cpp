// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "relief_texture.h"

#include <platform/drawing/attributed_text.h>
#include <platform/drawing/relief.h>
#include <platform/foundation/literals.h>
#include <platform/graphics/qt_color.h>

#include <QPainter>

#include <cmath>

namespace brenvaldo::imaging {

namespace {

QImage shadingOf(const QString& texture, const platform::graphics::Color& color)
{
    return texture == u"texture6"_s ? DVImageHandling::h3DcolorEffect(color)
                                    : reliefTexture(texture);
}

} // namespace

QImage DVImageHandling::embossTextWatermarkEffect(
    const QImage& layer,
    const QString& texture,
    const platform::graphics::Color& color,
    float /*scale*/
)
{
    constexpr double defaultRadius = 10;
    constexpr double defaultScale = 10;
    return platform::drawing::shadedMaterial(
        platform::drawing::heightFieldFromMask(layer, defaultRadius),
        layer,
        shadingOf(texture, color),
        defaultScale
    );
}

QImage DVImageHandling::h3DcolorEffect(const platform::graphics::Color& color)
{
    return platform::drawing::colorBall(color);
}

QImage DVImageHandling::imageWithAttributedString(
    const platform::drawing::AttributedText& text,
    const platform::graphics::Color& color,
    const platform::graphics::Color& ground
)
{
    const QSizeF size = text.size();
    QImage image(
        static_cast<int>(std::ceil(size.width())),
        static_cast<int>(std::ceil(size.height())),
        QImage::Format_ARGB32_Premultiplied
    );
    if (image.isNull())
        return image;
    image.fill(platform::graphics::qtColor(ground));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    text.drawing().draw(painter, platform::graphics::qtColor(color));
    return image;
}

} // namespace brenvaldo::imaging
