// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_overlay.h"

#include <imaging/dv_image_handling.h>
#include <platform/filters/photo_effect.h>
#include <platform/graphics/fonts.h>
#include <platform/graphics/qt_color.h>

#include <algorithm>

namespace brenvaldo::watermark {

namespace {

using platform::PixelSize;

/// Pixels around a part of a layer that its relief depends on: the slope and its softening.
constexpr int reliefReach = 16;

platform::TextAttributes attributesOf(const TextWatermarkSettings& settings, QFont font)
{
    constexpr double italicObliqueness = 0.3;
    font.setPixelSize(std::max(1, settings.fontSize));
    if (settings.isBold)
        font = platform::boldFaceOf(font);
    return {
        .font = font,
        .kerning = static_cast<double>(settings.kerning),
        .lineSpacing = static_cast<double>(settings.leading),
        .obliqueness = settings.isItalic ? italicObliqueness : 0,
        .strokeWidth = settings.strokeWidth,
        .underline = settings.underline,
        .alignment = settings.alignment};
}

/// The photo's bottom left corner, as large as the text that it fills at the most.
QImage photoCorner(const platform::Image& photo, PixelSize size)
{
    const int height = std::min(size.height, photo.height());
    const auto corner = photo.croppedTo(
        {.x = 0, .y = photo.height() - height, .width = size.width, .height = height}
    );
    return corner ? corner->toQImage() : QImage();
}

QBrush fillOf(const TextWatermarkSettings& settings, const platform::Image& photo, PixelSize size)
{
    switch (traitsOf(settings.effect).fill) {
    case TextFill::Color:
        return platform::qtColor(settings.fontColor.withAlpha(settings.opacity));
    case TextFill::White:
        return platform::qtColor({.red = 1, .green = 1, .blue = 1, .alpha = settings.opacity});
    case TextFill::Photo:
        return {photoCorner(photo, size)};
    case TextFill::NoirPhoto:
        return {platform::photoEffectNoir(photoCorner(photo, size))};
    }
    return {};
}

} // namespace

TextOverlay::TextOverlay(
    const TextWatermarkSettings& settings,
    const QString& text,
    const QFont& font,
    const platform::Image& photo
)
    : m_effect(traitsOf(settings.effect))
    , m_embossColor(settings.embossColor)
    , m_layer(
          platform::AttributedText(textToSet(settings, text), attributesOf(settings, font)),
          settings.placement.angle
      )
    , m_ink{.fill = fillOf(settings, photo, m_layer.uprightSize()), .shadow = {}}
{
    if (m_effect.castsGlyphShadow)
        m_ink.shadow = settings.shadow;
}

QImage TextOverlay::rendered(const QRect& region) const
{
    if (!m_effect.isRelief())
        return m_layer.rendered(m_ink, region);
    const QRect whole(0, 0, size().width, size().height);
    const QRect around
        = region.adjusted(-reliefReach, -reliefReach, reliefReach, reliefReach).intersected(whole);
    const QImage raised = embossed(m_layer.rendered(m_ink, around));
    return raised.copy(region.translated(-around.topLeft()));
}

QImage TextOverlay::embossed(const QImage& layer) const
{
    constexpr float scale = 0.5;
    return imaging::DVImageHandling::embossTextWatermarkEffect(
        layer, QString::fromUtf16(m_effect.texture), m_embossColor, scale
    );
}

} // namespace brenvaldo::watermark
