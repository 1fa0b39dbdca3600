// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// How the names of files are changed: one transform a tab.
struct RenamePanel : PanelView
{
    RenamePanel();

    controls::TabView tbvFileRenaming{
        u"tbvFileRenaming"_s,
        {{.identifier = u"1"_s, .label = u"Strip"_s},
         {.identifier = u"2"_s, .label = u"Replace"_s},
         {.identifier = u"3"_s, .label = u"Pre"_s},
         {.identifier = u"4"_s, .label = u"Post"_s},
         {.identifier = u"5"_s, .label = u"Nr"_s}}};

    controls::TextField tfStripNumberOfChar{u"tfStripNumberOfChar"_s};
    controls::PopUpButton pubStripFromLeftRight{
        u"pubStripFromLeftRight"_s, {u"from the start"_s, u"from the end"_s}};
    controls::TextField tfStripChar{u"tfStripChar"_s};
    controls::TextField tfStripCharStart{u"tfStripCharStart"_s};
    controls::TextField tfStripCharStop{u"tfStripCharStop"_s};
    controls::TextField tfStripTextFrag{u"tfStripTextFrag"_s};
    controls::PopUpButton pubStripRemPosition{
        u"pubStripRemPosition"_s,
        {u"Remove what stands before it"_s,
         u"Remove what stands behind it"_s,
         u"Remove it and what stands before it"_s,
         u"Remove it and what stands behind it"_s}};
    controls::PopUpButton pubStripCharAllowed{
        u"pubStripCharAllowed"_s, {u"All characters"_s, u"Letters and digits"_s, u"Letters"_s}};
    controls::CheckBox btStripPreserveExtension{
        u"btStripPreserveExtension"_s, u"Keep the extension"_s, 1};

    controls::PopUpButton pubReplaceCase{
        u"pubReplaceCase"_s,
        {u"As it is"_s, u"lower case"_s, u"UPPER CASE"_s, u"Capitals At The Start"_s}};
    controls::TextField tfReplaceCharStart{u"tfReplaceCharStart"_s};
    controls::TextField tfReplaceCharStop{u"tfReplaceCharStop"_s};
    controls::TextField tfReplaceCharBy{u"tfReplaceCharBy"_s};
    controls::TextField tfReplaceFindText{u"tfReplaceFindText"_s};
    controls::TextField tfReplaceTextBy{u"tfReplaceTextBy"_s};

    controls::TextField tfPrefixToAdd{u"tfPrefixToAdd"_s};
    /// Filled at start.
    controls::ComboBox cbxPrefixMetaData{u"cbxPrefixMetaData"_s, {}};
    controls::CheckBox btPrefixCreationDate{u"btPrefixCreationDate"_s, u"Date of creation"_s};
    controls::CheckBox btPrefixModifDate{u"btPrefixModifDate"_s, u"Date of change"_s};

    controls::TextField tfPostfixToAdd{u"tfPostfixToAdd"_s};
    /// Filled at start.
    controls::ComboBox cbxPostfixMetaData{u"cbxPostfixMetaData"_s, {}};
    controls::CheckBox btPostfixCreationDate{u"btPostfixCreationDate"_s, u"Date of creation"_s};
    controls::CheckBox btPostfixModifDate{u"btPostfixModifDate"_s, u"Date of change"_s};
    controls::CheckBox btPostfixBeforeExtension{
        u"btPostfixBeforeExtension"_s, u"Before the extension"_s, 1};

    /// Has no effect: numbers start at 1 in each run.
    controls::TextField tfNumberingStartFrom{u"tfNumberingStartFrom"_s, u"1"_s};
    controls::TextField tfNumberingPrefixToAdd{u"tfNumberingPrefixToAdd"_s};
    controls::TextField tfNumberingPostFixToAdd{u"tfNumberingPostFixToAdd"_s};
    controls::TextField tfNumberingDigits{u"tfNumberingDigits"_s, u"4"_s};
    controls::Matrix mxNumberingPosition{
        u"mxNumberingPosition"_s, {u"Behind the name"_s, u"Before the name"_s}};
    /// Has no effect: files are numbered in the order of the list.
    controls::Matrix mxNumberingSorting{
        u"mxNumberingSorting"_s, {u"As the list stands"_s, u"By name"_s}};
    /// Has no effect.
    controls::CheckBox btNumberingBeforeExtension{
        u"btNumberingBeforeExtension"_s, u"Before the extension"_s, 1};

    controls::Button btnSaveCAction{
        u"btnSaveCAction"_s, u"Save as C-Action\u2026"_s, u"cGUIcontrols.hCalledCActionFunc"_s};

private:
    [[nodiscard]] Layout stripPage();
    [[nodiscard]] Layout replacePage();
    [[nodiscard]] Layout prefixPage();
    [[nodiscard]] Layout postfixPage();
    [[nodiscard]] Layout numberingPage();
};

} // namespace brenvaldo::panels
