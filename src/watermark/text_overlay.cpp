// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_overlay.h"

#include <imaging/dv_image_handling.h>
#include <platform/filters/photo_effect.h>
#include <platform/graphics/qt_color.h>

#include <platform/drawing/fonts.h>

#include <QPainter>

#include <algorithm>

namespace brenvaldo::watermark {

namespace {

using platform::graphics::PixelSize;

/// Pixels around a part of a layer that its relief depends on: the slope and its softening.
constexpr int reliefReach = 16;

platform::drawing::TextAttributes attributesOf(const TextWatermarkSettings& settings, QFont font)
{
    constexpr double italicObliqueness = 0.3;
    font.setPixelSize(std::max(1, settings.fontSize));
    if (settings.isBold)
        font = platform::drawing::boldFaceOf(font);
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
std::optional<platform::graphics::Image>
photoCorner(const platform::graphics::Image& photo, PixelSize size)
{
    const int height = std::min(size.height, photo.height());
    return photo.croppedTo(
        {.x = 0, .y = photo.height() - height, .width = size.width, .height = height}
    );
}

/// What fills the glyphs in place of a colour.
std::optional<platform::graphics::Image>
pictureOf(TextFill fill, const platform::graphics::Image& photo, PixelSize size)
{
    if (fill != TextFill::Photo && fill != TextFill::NoirPhoto)
        return std::nullopt;
    const auto corner = photoCorner(photo, size);
    if (!corner)
        return std::nullopt;
    return fill == TextFill::NoirPhoto
        ? platform::filters::photoEffectNoir(*corner).copiedToMemory()
        : corner->copiedToMemory();
}

QBrush fillOf(const TextWatermarkSettings& settings)
{
    const platform::graphics::Color white{.red = 1, .green = 1, .blue = 1};
    const bool isWhite = traitsOf(settings.effect).fill == TextFill::White;
    return platform::graphics::qtColor(
        (isWhite ? white : settings.fontColor).withAlpha(settings.opacity)
    );
}

/// `color` as opaque as `picture`.
QBrush inkAsOpaqueAs(const platform::graphics::Image& picture, const QColor& color)
{
    if (!picture.hasAlpha())
        return color;
    QImage texture = picture.toQImage();
    QPainter painter(&texture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(texture.rect(), color);
    return {texture};
}

} // namespace

TextOverlay::TextOverlay(
    const TextWatermarkSettings& settings,
    const QString& text,
    const QFont& font,
    const platform::graphics::Image& photo
)
    : m_effect(traitsOf(settings.effect))
    , m_embossColor(settings.embossColor)
    , m_layer(
          platform::drawing::AttributedText(
              textToSet(settings, text), attributesOf(settings, font)
          ),
          settings.placement.angle
      )
    , m_picture(pictureOf(m_effect.fill, photo, m_layer.uprightSize()))
    , m_ink{.fill = fillOf(settings), .shadow = {}}
{
    if (m_picture)
        m_ink.fill = inkAsOpaqueAs(*m_picture, Qt::black);
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

QTransform TextOverlay::toPicture() const
{
    const int pictureTop = m_layer.uprightSize().height - m_picture->height();
    return m_layer.toUprightLayer() * QTransform::fromTranslate(0, -pictureTop);
}

TextOverlay TextOverlay::inkedWith(const QColor& color) const
{
    TextOverlay inked = *this;
    inked.m_ink.fill = inkAsOpaqueAs(*m_picture, color);
    return inked;
}

QImage TextOverlay::embossed(const QImage& layer) const
{
    constexpr float scale = 0.5;
    return imaging::DVImageHandling::embossTextWatermarkEffect(
        layer, QString::fromUtf16(m_effect.texture), m_embossColor, scale
    );
}

} // namespace brenvaldo::watermark
