// SPDX-License-Identifier: GPL-3.0-or-later
#include "sorting_records.h"

#include "file_record_parts.h"
#include "load_effects.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::presets {

PresetRecord manSortRecord(panels::Panels& panels)
{
    auto& sort = panels.vwFileManagementSorting;
    return fileRecord(
        u"manSort"_s,
        {
            {3, FolderForm{&sort.tfSortDestination01}},
            {4, FolderForm{&sort.tfSortDestination02}},
            {5, FolderForm{&sort.tfSortDestination03}},
            {6, FolderForm{&sort.tfSortDestination04}},
            {7, FolderForm{&sort.tfSortDestination05}},
            {8, FolderForm{&sort.tfSortDestination06}},
        }
    );
}

PresetRecord batchSortRecord(panels::Panels& panels)
{
    auto& sort = panels.vwFileManagementSorting;
    return fileRecord(
        u"batchSort"_s,
        {
            {3, FolderForm{&sort.tfBatchSortDestFolder}},
            {4,
             StateForm{&sort.cbImagePropChoice},
             enablesWhen(
                 1, {&sort.pubImageProp, &sort.pubImagePropSelector, &sort.tfImagePropVar}
             )},
            {5, IndexForm{&sort.pubImageProp}},
            {6, IndexForm{&sort.pubImagePropSelector}},
            {7, TextForm{&sort.tfImagePropVar}},
            {8,
             StateForm{&sort.cbFileNameChoice},
             enablesWhen(1, {&sort.pubFileName, &sort.pubFileNameSelector})},
            {9, IndexForm{&sort.pubFileName}},
            {10, IndexForm{&sort.pubFileNameSelector}},
            {11, TextForm{&sort.tfFileNameVar}},
            {12,
             StateForm{&sort.cbFileTagChoice},
             enablesWhen(1, {&sort.pubFileTagIsNot, &sort.pubFileTag})},
            {13, IndexForm{&sort.pubFileTagIsNot}},
            {14, IndexForm{&sort.pubFileTag}},
            {15, IndexForm{&sort.pubFileHandlingSelector}},
        }
    );
}

} // namespace brenvaldo::presets
