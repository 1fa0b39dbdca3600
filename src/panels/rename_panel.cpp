// SPDX-License-Identifier: GPL-3.0-or-later
#include "rename_panel.h"

#include "common_rows.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

namespace {

/// The first place of a range, and the number that follows from its length.
Row rangeRow(controls::TextField& start, controls::TextField& stop)
{
    return {
        .label = u"Range"_s,
        .fields
        = {{.control = &start, .unit = u"first place"_s, .accessibleName = u"First place"_s},
           {.control = &stop,
            .unit = u"length + 1"_s,
            .accessibleName = u"Length of the range and one"_s}},
        .hint = u"The text that stands there goes wherever it occurs: 3 and 5 take four characters "
                u"from the third."_s};
}

Row dateRow(controls::CheckBox& created, controls::CheckBox& changed)
{
    return {.label = u"Dates"_s, .fields = {{.control = &created}, {.control = &changed}}};
}

Row propertyRow(controls::ComboBox& key)
{
    return {.label = u"Property"_s, .fields = {{.control = &key}}};
}

} // namespace

RenamePanel::RenamePanel()
    : PanelView(u"vwFileManagementRename"_s)
{
    setLayout({
        {Pages{
            .tabs = &tbvFileRenaming,
            .pages = {stripPage(), replacePage(), prefixPage(), postfixPage(), numberingPage()}}},
        {Row{
            .fields = {{.control = &btnSaveCAction}},
            .hint = u"With the preview on, the process button shows the new names in the list and "
                    u"changes no file."_s}},
    });
}

Layout RenamePanel::stripPage()
{
    return {
        {Row{
            .label = u"Remove"_s,
            .fields
            = {{.control = &tfStripNumberOfChar,
                .unit = u"characters"_s,
                .accessibleName = u"Number of characters"_s},
               {.control = &pubStripFromLeftRight, .accessibleName = u"Side of the name"_s}}}},
        {textRow(u"Remove text"_s, tfStripChar)},
        {rangeRow(tfStripCharStart, tfStripCharStop)},
        {textRow(u"Fragment"_s, tfStripTextFrag)},
        {Row{
            .label = u"At it"_s,
            .fields
            = {{.control = &pubStripRemPosition,
                .accessibleName = u"What goes at the fragment"_s}}}},
        {Row{.label = u"Allowed"_s, .fields = {{.control = &pubStripCharAllowed}}}},
        {Row{.fields = {{.control = &btStripPreserveExtension}}}},
    };
}

Layout RenamePanel::replacePage()
{
    return {
        {Row{.label = u"Case"_s, .fields = {{.control = &pubReplaceCase}}}},
        {rangeRow(tfReplaceCharStart, tfReplaceCharStop)},
        {textRow(u"Put there"_s, tfReplaceCharBy)},
        {textRow(u"Find"_s, tfReplaceFindText)},
        {textRow(u"Replace by"_s, tfReplaceTextBy)},
    };
}

Layout RenamePanel::prefixPage()
{
    return {
        {textRow(u"Text"_s, tfPrefixToAdd)},
        {dateRow(btPrefixCreationDate, btPrefixModifDate)},
        {propertyRow(cbxPrefixMetaData)},
    };
}

Layout RenamePanel::postfixPage()
{
    return {
        {textRow(u"Text"_s, tfPostfixToAdd)},
        {dateRow(btPostfixCreationDate, btPostfixModifDate)},
        {propertyRow(cbxPostfixMetaData)},
        {Row{.fields = {{.control = &btPostfixBeforeExtension}}}},
    };
}

Layout RenamePanel::numberingPage()
{
    return {
        {textRow(u"Start from"_s, tfNumberingStartFrom)},
        {textRow(u"Before it"_s, tfNumberingPrefixToAdd)},
        {textRow(u"Behind it"_s, tfNumberingPostFixToAdd)},
        {Row{
            .label = u"Digits"_s,
            .fields = {{.control = &tfNumberingDigits}},
            .hint = u"One more than the largest number has; a number with no fewer digits is left "
                    u"out."_s}},
        {Row{.label = u"Place"_s, .fields = {{.control = &mxNumberingPosition}}}},
        {Row{.label = u"Order"_s, .fields = {{.control = &mxNumberingSorting}}}},
        {Row{.fields = {{.control = &btNumberingBeforeExtension}}}},
    };
}

} // namespace brenvaldo::panels
