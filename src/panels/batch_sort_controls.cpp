// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch_sort_controls.h"

#include "common_rows.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

BatchSortControls::BatchSortControls()
{
    giveAliases();
    disableValues();
    cbImagePropChoice.addAction(u"DVFileSorterRoutine.hFilePropEnabled"_s);
    cbFileNameChoice.addAction(u"DVFileSorterRoutine.hFileNameEnabled"_s);
    cbFileTagChoice.addAction(u"DVFileSorterRoutine.hFileTagEnabled"_s);
}

void BatchSortControls::giveAliases()
{
    cbImagePropChoice.addAlias(u"btnImagePropChoice"_s);
    pubImageProp.addAlias(u"puImageProp"_s);
    pubImagePropSelector.addAlias(u"puImagePropSelector"_s);
    cbFileNameChoice.addAlias(u"btnFileNameChoice"_s);
    pubFileName.addAlias(u"puFileName"_s);
    pubFileNameSelector.addAlias(u"puFileNameSelector"_s);
    cbFileTagChoice.addAlias(u"btnFileTagChoice"_s);
    pubFileTagIsNot.addAlias(u"puFileTagIsNot"_s);
    pubFileTag.addAlias(u"puFileTag"_s);
    pubFileHandlingSelector.addAlias(u"puFileHandlingSelector"_s);
    tfBatchSortDestFolder.addAlias(u"tfDestFolder"_s);
}

void BatchSortControls::disableValues()
{
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &pubImageProp,
             &pubImagePropSelector,
             &tfImagePropVar,
             &pubFileName,
             &pubFileNameSelector,
             &tfFileNameVar,
             &pubFileTagIsNot,
             &pubFileTag})
        control->setEnabled(false);
}

Layout BatchSortControls::batchSortPage()
{
    return {
        {Row{.fields = {{.control = &cbImagePropChoice}}}},
        {Row{
            .label = u"If the"_s,
            .fields
            = {{.control = &pubImageProp, .accessibleName = u"Value of the picture"_s},
               {.control = &pubImagePropSelector,
                .accessibleName = u"How the picture's value compares"_s}}}},
        {textRow(u"Value"_s, tfImagePropVar)},
        {Row{.fields = {{.control = &cbFileNameChoice}}}},
        {Row{
            .label = u"If the"_s,
            .fields
            = {{.control = &pubFileName, .accessibleName = u"Part of the name"_s},
               {.control = &pubFileNameSelector, .accessibleName = u"How the name compares"_s}}}},
        {textRow(u"Value"_s, tfFileNameVar)},
        {Row{.fields = {{.control = &cbFileTagChoice}}}},
        {Row{
            .label = u"If the label"_s,
            .fields
            = {{.control = &pubFileTagIsNot, .accessibleName = u"Whether the label is it"_s},
               {.control = &pubFileTag, .accessibleName = u"Label"_s}}}},
        {Heading{u"Then"_s}},
        {Row{.label = u"Do"_s, .fields = {{.control = &pubFileHandlingSelector}}}},
        {Row{
            .label = u"Folder"_s,
            .fields
            = {{.control = &tfBatchSortDestFolder},
               {.control = &btnChooseDestFolder,
                .accessibleName = u"Choose the folder of sorted files"_s},
               {.control = &btnShowBatchDestinationFolder,
                .accessibleName = u"Show the folder of sorted files"_s}}}},
        {Row{.fields = {{.control = &btnChooseFiles}}}},
        {Row{.fields = {{.control = &showSortProgress, .accessibleName = u"Sorted files"_s}}}},
    };
}

} // namespace brenvaldo::panels
