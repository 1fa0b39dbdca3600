// SPDX-License-Identifier: GPL-3.0-or-later
#include "watermark_run.h"

#include <panels/panels.h>

namespace brenvaldo::workspace {

bool isTextTab(const panels::Panels& panels)
{
    return panels.vwWatermark.tbvWatermarkType.selectedLabel() == u"Text";
}

watermark::WatermarkRun watermarkRun(const ListRun::Photos& photos)
{
    const panels::WatermarkPanel& panel = photos.subsystems.panels.vwWatermark;
    return {
        .photos = photos.paths,
        .destination = photos.destination,
        .outputType = photos.choice.type,
        .compressionLevel = photos.choice.compressionLevel,
        .fileNameText = panel.tvFileName.stringValue(),
        .photoProperty = panel.pubFileNamePhotoProperties.indexOfSelectedItem()};
}

} // namespace brenvaldo::workspace
