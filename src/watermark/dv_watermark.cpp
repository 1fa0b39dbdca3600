// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_watermark.h"

#include "kept_properties.h"
#include "placeholder_values.h"
#include "text_mark.h"

#include <imaging/dv_image_handling.h>
#include <imaging/writer_rules.h>
#include <panels/watermark_panel.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>
#include <platform/metadata/metadata_reader.h>

#include <platform/codecs/image_source.h>
#include <platform/containers/type_identifier.h>
#include <platform/drawing/fonts.h>

namespace brenvaldo::watermark {

namespace {

// The bar's stages of one photo.
constexpr int stagesOfNaming = 1;
constexpr int stagesOfReadingSettings = 2;
constexpr int stagesOfOpening = 3;
constexpr int stagesOfDrawing = 4;
constexpr int stagesOfWriting = 1;
constexpr int stagesPerPhoto = stagesOfNaming + stagesOfReadingSettings + stagesOfOpening
    + stagesOfDrawing + stagesOfWriting;

QString ioFailure() { return imaging::text(imaging::ResultWord::IoFailure); }

/// The type that is written for a photo.
QString typeOf(const QString& outputType, const QString& path)
{
    return imaging::keepsOriginalType(outputType)
        ? platform::containers::preferredTypeIdentifier(platform::pathExtension(path))
        : outputType;
}

} // namespace

DVWatermark::DVWatermark(Surroundings surroundings)
    : m_surroundings(std::move(surroundings))
    , m_progress(m_surroundings.bar, controls::watermarkBar)
    , m_properties(std::make_shared<KeptProperties>())
{
}

QString DVWatermark::setWatermarkText(const WatermarkRun& run, imaging::PictureSink& sink)
{
    if (run.photos.isEmpty())
        return ioFailure();
    const auto photos = static_cast<int>(run.photos.size());
    const int step = static_cast<int>(controls::watermarkBar.maximum) / (photos * stagesPerPhoto);
    m_step = step;
    const controls::RunningProgress shown(m_surroundings.bar, controls::watermarkBar);
    for (const QString& path : run.photos) {
        if (shown.isAskedToEnd())
            return ioFailure();
        if (markPhoto(run, path, sink) == Step::EndRun) {
            sink.take({.source = path, .target = {}, .outcome = imaging::ResultWord::IoFailure});
            return ioFailure();
        }
    }
    return sink.lastWord() == imaging::ResultWord::Ok ? m_outputName : ioFailure();
}

DVWatermark::Step
DVWatermark::markPhoto(const WatermarkRun& run, const QString& path, imaging::PictureSink& sink)
{
    m_outputName = m_surroundings.outputName(path);
    finishStages(stagesOfNaming);
    const TextWatermarkSettings settings = readSettings(m_surroundings.panel);
    if (settings.text.isEmpty()) {
        platform::log(u"no watermark text"_s);
        return Step::EndRun;
    }
    finishStages(stagesOfReadingSettings);
    const std::optional<platform::graphics::Image> photo = openedForRun(path, settings.effect);
    if (!photo)
        return Step::EndRun;
    auto properties = platform::metadata::readMetadataBlocks(path);
    finishStages(stagesOfOpening);
    const imaging::PictureToSave picture{
        .destination = platform::deletingPathExtension(run.destination + m_outputName),
        .typeIdentifier = typeOf(run.outputType, path),
        .image = platform::drawing::stamped(*photo, markOf(*photo, settings, path)()),
        .properties = std::move(properties),
        .compressionLevel = run.compressionLevel,
        .writer = imaging::DVImageHandling::hSaveToNewImageFileMPR};
    finishStages(stagesOfDrawing);
    sink.take(
        {.source = path,
         .target = imaging::writtenPath(
             imaging::Writer::Watermark, picture.destination, picture.typeIdentifier
         ),
         .outcome = picture}
    );
    finishStages(stagesOfWriting);
    return Step::GoOn;
}

void DVWatermark::finishStages(int stages)
{
    for (int stage = 0; stage < stages; ++stage)
        m_progress.hProgressPB(m_step);
}

std::optional<platform::graphics::Image>
DVWatermark::openedForRun(const QString& path, TextEffect effect) const
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
    const TextWatermarkSettings settings = readSettings(m_surroundings.panel);
    std::optional<platform::graphics::Image> result;
    if (!settings.text.isEmpty()) {
        if (const auto photo = m_surroundings.previewPhoto(path))
            result = platform::drawing::stamped(*photo, markOf(*photo, settings, path));
    }
    m_progress.hStopPB();
    return result;
}

} // namespace brenvaldo::watermark
