// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming_records.h"

#include "file_record_parts.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::presets {

namespace {

/// The destination folder, then `fields`.
PresetRecord
renamingRecord(const QString& process, panels::Panels& panels, std::vector<RecordField> fields)
{
    fields.insert(
        fields.begin(), {3, FolderForm{&panels.vwMainDestination.tfImageDestinationFolder}}
    );
    return fileRecord(process, std::move(fields));
}

} // namespace

PresetRecord stripRecord(panels::Panels& panels)
{
    auto& rename = panels.vwFileManagementRename;
    return renamingRecord(
        u"Strip"_s,
        panels,
        {
            {4, TextForm{&rename.tfStripNumberOfChar}},
            {5, IndexForm{&rename.pubStripFromLeftRight}},
            {6, TextForm{&rename.tfStripChar}},
            {7, TextForm{&rename.tfStripCharStart}},
            {8, TextForm{&rename.tfStripCharStop}},
            {9, TextForm{&rename.tfStripTextFrag}},
            {10, IndexForm{&rename.pubStripRemPosition}},
            {11, IndexForm{&rename.pubStripCharAllowed}},
            {12, StateForm{&rename.btStripPreserveExtension}},
        }
    );
}

PresetRecord replaceRecord(panels::Panels& panels)
{
    auto& rename = panels.vwFileManagementRename;
    return renamingRecord(
        u"Replace"_s,
        panels,
        {
            {4, IndexForm{&rename.pubReplaceCase}},
            {5, TextForm{&rename.tfReplaceCharStart}},
            {6, TextForm{&rename.tfReplaceCharStop}},
            {7, TextForm{&rename.tfReplaceCharBy}},
            {8, TextForm{&rename.tfReplaceFindText}},
            {9, TextForm{&rename.tfReplaceTextBy}},
        }
    );
}

PresetRecord prefixRecord(panels::Panels& panels)
{
    auto& rename = panels.vwFileManagementRename;
    return renamingRecord(
        u"Prefix"_s,
        panels,
        {
            {4, TextForm{&rename.tfPrefixToAdd}},
            {5, ItemForm{&rename.cbxPrefixMetaData}},
            {6, StateForm{&rename.btPrefixCreationDate}},
            {7, StateForm{&rename.btPrefixModifDate}},
        }
    );
}

PresetRecord postfixRecord(panels::Panels& panels)
{
    auto& rename = panels.vwFileManagementRename;
    return renamingRecord(
        u"Postfix"_s,
        panels,
        {
            {4, TextForm{&rename.tfPostfixToAdd}},
            {5, ItemForm{&rename.cbxPostfixMetaData}},
            {6, StateForm{&rename.btPostfixCreationDate}},
            {7, StateForm{&rename.btPostfixModifDate}},
            {8, StateForm{&rename.btPostfixBeforeExtension}},
        }
    );
}

PresetRecord numberingRecord(panels::Panels& panels)
{
    auto& rename = panels.vwFileManagementRename;
    // A load leaves both matrices as they are.
    return renamingRecord(
        u"Numbering"_s,
        panels,
        {
            {4, TextForm{&rename.tfNumberingStartFrom}},
            {5, TextForm{&rename.tfNumberingPrefixToAdd}},
            {6, TextForm{&rename.tfNumberingPostFixToAdd}},
            {7, TextForm{&rename.tfNumberingDigits}},
            {.position = 8,
             .form = IndexForm{&rename.mxNumberingPosition},
             .use = RecordField::Use::OnlyWritten},
            {.position = 9,
             .form = IndexForm{&rename.mxNumberingSorting},
             .use = RecordField::Use::OnlyWritten},
            {10, StateForm{&rename.btNumberingBeforeExtension}},
        }
    );
}

} // namespace brenvaldo::presets
