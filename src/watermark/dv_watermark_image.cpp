// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_watermark.h"

#include "kept_marks.h"

#include <panels/watermark_panel.h>
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>

#include <stdexcept>

namespace brenvaldo::watermark {

namespace {

// The bar's stages of one photo.
constexpr int imageStagesOfNaming = 2;
constexpr int imageStagesOfReadingSettings = 4;
constexpr int imageStagesOfOpening = 3;
constexpr int imageStagesOfDrawing = 5;
constexpr int imageStagesOfWriting = 1;
constexpr int imageStagesPerPhoto = imageStagesOfNaming + imageStagesOfReadingSettings
    + imageStagesOfOpening + imageStagesOfDrawing + imageStagesOfWriting;

ImageWatermarkSettings readImageSettings(panels::ImageWatermarkControls& controls)
{
    return readSettings(controls);
}

/// The upright photo; one that may cast a shadow of its own is read more than once.
std::optional<platform::graphics::Image> openedForRun(const QString& path, bool castsShadow)
{
    using Access = platform::codecs::ImageSource::Access;
    const auto source = platform::codecs::ImageSource::open(path);
    if (!source)
        return std::nullopt;
    const bool isReadAgain = castsShadow && source->header().hasAlpha;
    return source->uprightImage(
        {.access = isReadAgain ? Access::Random : Access::OnePass, .atLeast = {}}
    );
}

} // namespace

QString DVWatermark::setWatermarkImage(const WatermarkRun& run, imaging::PictureSink& sink)
{
    const QString name
        = markPhotos(run, sink, imageStagesPerPhoto, &DVWatermark::markPhotoWithImage);
    m_marks->clear();
    return name;
}

DVWatermark::Step DVWatermark::markPhotoWithImage(
    const WatermarkRun& run, const QString& path, imaging::PictureSink& sink
)
{
    m_outputName = m_surroundings.outputName(path);
    finishStages(imageStagesOfNaming);
    const ImageWatermarkSettings settings = readImageSettings(m_surroundings.panel);
    if (settings.path.isEmpty())
        return Step::EndRun;
    finishStages(imageStagesOfReadingSettings);
    if (!m_marks->canRead(settings.path))
        return Step::EndRun;
    auto picture = openedForRun(path, settings.shadow.has_value());
    finishStages(imageStagesOfOpening);
    if (picture) {
        const auto mark = m_marks->mark(settings, markedSizeOf(*picture));
        if (!mark)
            return Step::EndRun;
        picture = laidOn(*picture, *mark).picture;
    }
    finishStages(imageStagesOfDrawing);
    save(run, path, picture, sink);
    finishStages(imageStagesOfWriting);
    return Step::GoOn;
}

std::optional<platform::graphics::Image> DVWatermark::setWatermarkImagePreview(const QString& path)
{
    const ImageWatermarkSettings settings = readImageSettings(m_surroundings.panel);
    std::optional<platform::graphics::Image> result;
    if (!settings.path.isEmpty() && m_marks->canRead(settings.path)) {
        if (const auto photo = m_surroundings.previewPhoto(path)) {
            result = platform::drawing::markedLater(
                *photo,
                [photo = *photo, settings, marks = m_marks] {
                    const auto mark = marks->mark(settings, markedSizeOf(photo));
                    if (!mark)
                        throw std::runtime_error("the image of the watermark can't be read");
                    return laidOn(photo, *mark);
                }
            );
        }
    }
    m_progress.hStopPB();
    return result;
}

} // namespace brenvaldo::watermark
