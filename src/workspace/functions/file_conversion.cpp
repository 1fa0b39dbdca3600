// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"

#include <imaging/conversion_rules.h>
#include <imaging/file_conversion.h>

namespace brenvaldo::workspace {

namespace {

imaging::Outcome converted(const PhotoOutput& output)
{
    const auto& [photo, tail] = output;
    return imaging::FileConversion::conversion(
        {.source = photo.source,
         .type = tail.myFileType,
         .compressionLevel = tail.compressionLevel,
         .destination = imaging::conversionTarget(photo.destinationBase, tail.myFileType)}
    );
}

PhotoRun::Operation start(const RunContext&) { return converted; }

} // namespace

Function fileConversion()
{
    using enum HolderChange;
    return {
        .id = functionId::batchFileConvert,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Convert file type"),
        .choice = {.section = Section::FileManagement, .index = 3},
        .holders = {QLatin1String("vwFileManagementConvert"), Empty, Empty, Fill, Fill},
        .presetButtons = PresetButtons::Hide,
        .run
        = PhotoRun{.start = start, .takes = Takes::AllTicked, .target = imaging::conversionTarget},
    };
}

} // namespace brenvaldo::workspace
