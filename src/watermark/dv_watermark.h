// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text_watermark_settings.h"

#include <controls/progress.h>
#include <imaging/picture_sink.h>
#include <platform/graphics/image.h>

#include <platform/drawing/stamp.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace brenvaldo::panels {
struct WatermarkPanel;
}

namespace brenvaldo::watermark {

class KeptMarks;
class KeptProperties;

/// What the batch driver gives to a watermark run.
struct WatermarkRun
{
    QStringList photos; ///< paths, in the order of the run
    QString destination; ///< folder, ends in "/"
    QString outputType; ///< type identifier, or "original file type"
    QString compressionLevel;
    QString fileNameText; ///< not used
    int photoProperty = 0; ///< not used
};

/// Draws the watermarks of the panel on photos, for runs and for the preview.
class DVWatermark
{
public:
    struct Surroundings
    {
        panels::WatermarkPanel& panel;
        controls::ProgressIndicator& bar;
        /// Name of the output file after the chain of file-name actions.
        std::function<QString(const QString& path)> outputName;
        /// Opens the upright photo for a preview, ready to be evaluated more than once.
        std::function<std::optional<platform::graphics::Image>(const QString& path)> previewPhoto;
    };

    explicit DVWatermark(Surroundings surroundings);

    /// Marks every photo of the run with the text, for the destination.
    ///
    /// Answers the last output name when the last photo was written, "IOFailure" otherwise. An
    /// empty text and an unreadable photo end the run with that word for the photo; what was
    /// written before stays.
    QString setWatermarkText(const WatermarkRun& run, imaging::PictureSink& sink);

    /// The photo at `path` with its mark; nothing without a text or a readable photo. No file is
    /// written, and the mark is not drawn before the first pixel is asked for.
    [[nodiscard]] std::optional<platform::graphics::Image>
    setWatermarkTextPreview(const QString& path);

    /// Marks every photo of the run with the image, for the destination; answers as the text does.
    ///
    /// No image, and one that can't be read, end the run with "IOFailure" for the photo. A photo
    /// that can't be read fails, and the run goes on.
    QString setWatermarkImage(const WatermarkRun& run, imaging::PictureSink& sink);

    /// The photo at `path` with its mark; nothing without an image or a readable photo. No file is
    /// written, and the mark is not laid before the first pixel is asked for.
    [[nodiscard]] std::optional<platform::graphics::Image>
    setWatermarkImagePreview(const QString& path);

private:
    enum class Step { GoOn, EndRun };
    using MakeMark = std::function<platform::drawing::Stamp()>;

    using MarkPhoto
        = Step (DVWatermark::*)(const WatermarkRun&, const QString&, imaging::PictureSink&);

    /// The loop over the photos of a run.
    QString
    markPhotos(const WatermarkRun& run, imaging::PictureSink& sink, int stages, MarkPhoto mark);
    Step
    markPhotoWithText(const WatermarkRun& run, const QString& path, imaging::PictureSink& sink);
    Step
    markPhotoWithImage(const WatermarkRun& run, const QString& path, imaging::PictureSink& sink);
    void finishStages(int stages);
    /// Hands a photo's picture over to be saved.
    void save(
        const WatermarkRun& run,
        const QString& path,
        const std::optional<platform::graphics::Image>& picture,
        imaging::PictureSink& sink
    ) const;
    /// Makes the mark of a photo from the settings as they are now, on any thread.
    [[nodiscard]] MakeMark markOf(
        const platform::graphics::Image& photo,
        const TextWatermarkSettings& settings,
        const QString& path
    ) const;

    Surroundings m_surroundings;
    controls::Progress m_progress;
    std::shared_ptr<KeptProperties> m_properties; ///< shared with marks that are still to be drawn
    std::shared_ptr<KeptMarks> m_marks; ///< shared with previews that are still to be drawn
    double m_step = 0;
    QString m_outputName;
};

} // namespace brenvaldo::watermark
