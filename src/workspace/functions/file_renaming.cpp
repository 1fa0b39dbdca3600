// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"

#include <files/action_file.h>
#include <files/rename_settings.h>
#include <panels/panels.h>
#include <platform/foundation/literals.h>
#include <platform/storage/file_system.h>
#include <presets/renaming_records.h>

namespace brenvaldo::workspace {

namespace {

using files::cNSFileHandling;
using imaging::ResultWord;

void saveAsActionFile(const Subsystems& subsystems)
{
    const auto file = files::actionFile(subsystems.panels.vwFileManagementRename);
    const QString path = subsystems.toolBox.hSaveWriteDialogFile2(file);
    cNSFileHandling::hAddIconToFile(path, files::actionFileIcon());
}

ResultWord copied(const platform::storage::SourceAndTarget& paths)
{
    if (platform::storage::fileExists(paths.target))
        return ResultWord::Exists;
    cNSFileHandling::hRenameFile2(paths);
    return platform::storage::fileExists(paths.target) ? ResultWord::Ok : ResultWord::Failed;
}

RenameOutcome renamedFile(const Subsystems& subsystems, const RenameRequest& request)
{
    const panels::Panels& panels = subsystems.panels;
    const QString name = files::renamedByPanel(panels.vwFileManagementRename, request.path);
    if (name.isEmpty())
        return {.word = ResultWord::Failed};
    if (request.previewState == 1)
        return {.word = ResultWord::None, .newName = name};
    const QString target = panels.vwMainDestination.tfImageDestinationFolder.stringValue() + name;
    return {
        .word = copied({.source = request.path, .target = target}),
        .newName = name,
        .target = target};
}

RenameOutcome hGetRenamePropertyValues(const Subsystems& subsystems, const RenameRequest& request)
{
    if (request.function != u"CActionFunction")
        return renamedFile(subsystems, request);
    saveAsActionFile(subsystems);
    return {};
}

template <files::Renaming renaming>
bool showsTab(const panels::Panels& panels)
{
    return files::selectedRenaming(panels.vwFileManagementRename) == renaming;
}

} // namespace

Function fileRenaming()
{
    using enum HolderChange;
    return {
        .id = functionId::fileRenaming,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Rename files"),
        .choice = {.section = Section::FileManagement, .index = 2},
        .holders = {QLatin1String("vwFileManagementRename"), Fill, Empty, Empty, Fill},
        .run = RenamingRun{.rename = hGetRenamePropertyValues},
        .presets
        = {{.make = presets::stripRecord, .applies = showsTab<files::Renaming::Strip>},
           {.make = presets::replaceRecord, .applies = showsTab<files::Renaming::Replace>},
           {.make = presets::prefixRecord, .applies = showsTab<files::Renaming::Prefix>},
           {.make = presets::postfixRecord, .applies = showsTab<files::Renaming::Postfix>},
           {.make = presets::numberingRecord, .applies = showsTab<files::Renaming::Numbering>}},
    };
}

} // namespace brenvaldo::workspace
