// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <metadata/mmeta.h>
#include <panels/panels.h>
#include <presets/exif_record.h>

namespace brenvaldo::workspace {

namespace {

InPlaceRun::Operation read(const Subsystems& subsystems, const QString& path)
{
    const auto settings = metadata::readSettings(subsystems.panels.vwFileManagementEXIF);
    return [&meta = subsystems.meta, path, settings] {
        const auto written = meta.writeExifData(path, settings);
        return written == metadata::mMeta::Written::Done ? imaging::ResultWord::Ok
                                                         : imaging::ResultWord::Failed;
    };
}

} // namespace

Function exifComment()
{
    using enum HolderChange;
    return {
        .id = QLatin1String("batchExifUC"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "EXIF and IPTC"),
        .choice = {.section = Section::FileManagement, .index = 1},
        .holders = {QLatin1String("vwFileManagementEXIF"), Empty, Empty, Empty, Empty},
        .presetButtons = PresetButtons::LeaveAsTheyWere,
        .run = InPlaceRun{.read = read},
        .presets = {{.make = presets::exifRecord}},
    };
}

} // namespace brenvaldo::workspace
