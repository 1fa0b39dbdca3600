// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_watermark.h"

#include "kept_marks.h"
#include "kept_properties.h"

#include <imaging/dv_image_handling.h>
#include <imaging/writer_rules.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/metadata/metadata_reader.h>

#include <platform/containers/type_identifier.h>

namespace brenvaldo::watermark {

namespace {

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
    , m_marks(std::make_shared<KeptMarks>())
{
}

QString DVWatermark::markPhotos(
    const WatermarkRun& run, imaging::PictureSink& sink, int stages, MarkPhoto mark
)
{
    if (run.photos.isEmpty())
        return ioFailure();
    const auto photos = static_cast<int>(run.photos.size());
    const int step = static_cast<int>(controls::watermarkBar.maximum) / (photos * stages);
    m_step = step;
    const controls::RunningProgress shown(m_surroundings.bar, controls::watermarkBar);
    for (const QString& path : run.photos) {
        if (shown.isAskedToEnd())
            return ioFailure();
        if ((this->*mark)(run, path, sink) == Step::EndRun) {
            sink.take({.source = path, .target = {}, .outcome = imaging::ResultWord::IoFailure});
            return ioFailure();
        }
    }
    return sink.lastWord() == imaging::ResultWord::Ok ? m_outputName : ioFailure();
}

void DVWatermark::finishStages(int stages)
{
    for (int stage = 0; stage < stages; ++stage)
        m_progress.hProgressPB(m_step);
}

void DVWatermark::save(
    const WatermarkRun& run,
    const QString& path,
    const std::optional<platform::graphics::Image>& picture,
    imaging::PictureSink& sink
) const
{
    const imaging::PictureToSave toSave{
        .destination = platform::deletingPathExtension(run.destination + m_outputName),
        .typeIdentifier = typeOf(run.outputType, path),
        .image = picture,
        .properties = platform::metadata::readMetadataBlocks(path),
        .compressionLevel = run.compressionLevel,
        .writer = imaging::DVImageHandling::hSaveToNewImageFileMPR};
    sink.take(
        {.source = path,
         .target = imaging::writtenPath(
             imaging::Writer::Watermark, toSave.destination, toSave.typeIdentifier
         ),
         .outcome = toSave}
    );
}

} // namespace brenvaldo::watermark
