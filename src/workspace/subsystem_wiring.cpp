// SPDX-License-Identifier: GPL-3.0-or-later
#include "subsystem_wiring.h"

#include <imaging/file_conversion.h>

namespace brenvaldo::workspace {

namespace {

/// A photo that can't be opened is not written.
QString wordOf(const std::optional<imaging::ResultWord>& result)
{
    return imaging::text(result.value_or(imaging::ResultWord::Failed));
}

} // namespace

SubsystemLinks subsystemLinks(const Subsystems& subsystems)
{
    auto& [imageHandling, watermark, meta] = subsystems;
    SubsystemLinks links;
    links.operations.setWatermarkText
        = [&watermark](const watermark::WatermarkRun& run, const watermark::PhotoDone& photoDone) {
              watermark.setWatermarkText(run, photoDone);
          };
    links.twins.setWatermarkTextPreview
        = [&watermark](const QString& path) { return watermark.setWatermarkTextPreview(path); };
    links.hiDoNothing = [&meta](const QString& path) { meta.hiDoNothing(path); };
    links.forgetPhoto = [&meta] { meta.forgetPhoto(); };
    links.operations.hScalePhotosPercentage = [&](const auto& photo,
                                                  int value,
                                                  int maximumType,
                                                  const auto& tail) {
        return imaging::text(imageHandling.hScalePhotosPercentage(photo, value, maximumType, tail));
    };
    links.operations.hScalePhotosWidthAndHeight
        = [&](const auto& photo, platform::PixelSize box, int aspectState, const auto& tail) {
              return imaging::text(
                  imageHandling.hScalePhotosWidthAndHeight(photo, box, aspectState, tail)
              );
          };
    links.operations.hConvertFileType = [](const Conversion& conversion) {
        const auto result = imaging::FileConversion().hConvertFileType(
            {.source = conversion.source,
             .type = conversion.typeIdentifier,
             .compressionLevel = conversion.compressionLevel,
             .destination = conversion.target}
        );
        return imaging::text(result.word);
    };
    links.quickEdits.hRotatePicture = [&](const QString& path, const QString& folder, float angle) {
        return wordOf(imageHandling.hRotatePicture(path, folder, angle));
    };
    links.quickEdits.hFlipHorizontalPicture = [&](const QString& path, const QString& folder) {
        return wordOf(imageHandling.hFlipHorizontalPicture(path, folder));
    };
    links.quickEdits.hFlipVerticalPicture = [&](const QString& path, const QString& folder) {
        return wordOf(imageHandling.hFlipVerticalPicture(path, folder));
    };
    return links;
}

} // namespace brenvaldo::workspace
