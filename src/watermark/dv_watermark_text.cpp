// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_watermark.h"

#include "kept_properties.h"
#include "placeholder_values.h"
#include "text_mark.h"

#include <panels/watermark_panel.h>
#include <platform/codecs/image_source.h>
#include <platform/drawing/fonts.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

namespace brenvaldo::watermark {

namespace {

// The bar's stages of one photo.
constexpr int textStagesOfNaming = 1;
constexpr int textStagesOfReadingSettings = 2;
constexpr int textStagesOfOpening = 3;
constexpr int textStagesOfDrawing = 4;
constexpr int textStagesOfWriting = 1;
constexpr int textStagesPerPhoto = textStagesOfNaming + textStagesOfReadingSettings
    + textStagesOfOpening + textStagesOfDrawing + textStagesOfWriting;

std::optional<platform::graphics::Image> openedForRun(const QString& path, TextEffect effect)
{
    using Access = platform::codecs::ImageSource::Access;
    const auto source = platform::codecs::ImageSource::open(path);
    if (!source)
        return std::nullopt;
    return source->uprightImage(
        {.access = traitsOf(effect).fillsWithPhoto() ? Access::Random : Access::OnePass,
         .atLeast = {}}
    );
}

TextWatermarkSettings readTextSettings(panels::TextWatermarkControls& controls)
{
    return readSettings(controls);
}

} // namespace

QString DVWatermark::setWatermarkText(const WatermarkRun& run, imaging::PictureSink& sink)
{
    return markPhotos(run, sink, textStagesPerPhoto, &DVWatermark::markPhotoWithText);
}

DVWatermark::Step DVWatermark::markPhotoWithText(
    const WatermarkRun& run, const QString& path, imaging::PictureSink& sink
)
{
    m_outputName = m_surroundings.outputName(path);
    finishStages(textStagesOfNaming);
    const TextWatermarkSettings settings = readTextSettings(m_surroundings.panel);
    if (settings.text.isEmpty()) {
        platform::log(u"no watermark text"_s);
        return Step::EndRun;
    }
    finishStages(textStagesOfReadingSettings);
    const std::optional<platform::graphics::Image> photo = openedForRun(path, settings.effect);
    if (!photo)
        return Step::EndRun;
    finishStages(textStagesOfOpening);
    const auto picture = platform::drawing::stamped(*photo, markOf(*photo, settings, path)());
    finishStages(textStagesOfDrawing);
    save(run, path, picture, sink);
    finishStages(textStagesOfWriting);
    return Step::GoOn;
}

DVWatermark::MakeMark DVWatermark::markOf(
    const platform::graphics::Image& photo,
    const TextWatermarkSettings& settings,
    const QString& path
) const
{
    return [photo, settings, path, outputName = m_outputName, properties = m_properties] {
        const auto values = placeholderValuesOf(path, outputName, properties);
        const QString text = replacingPlaceholders(settings.text, values);
        return textMark(settings, text, platform::drawing::fontNamed(settings.fontName), photo);
    };
}

std::optional<platform::graphics::Image> DVWatermark::setWatermarkTextPreview(const QString& path)
{
    m_outputName = m_surroundings.outputName(path);
    const TextWatermarkSettings settings = readTextSettings(m_surroundings.panel);
    std::optional<platform::graphics::Image> result;
    if (!settings.text.isEmpty()) {
        if (const auto photo = m_surroundings.previewPhoto(path))
            result = platform::drawing::stamped(*photo, markOf(*photo, settings, path));
    }
    m_progress.hStopPB();
    return result;
}

} // namespace brenvaldo::watermark
