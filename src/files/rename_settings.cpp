// SPDX-License-Identifier: GPL-3.0-or-later
#include "rename_settings.h"

#include "usable_name.h"

#include <platform/foundation/numbers.h>
#include <platform/foundation/paths.h>

namespace brenvaldo::files {

namespace {

QString indexOf(const controls::IndexedControl& control)
{
    return QString::number(control.selectedIndex());
}

QString stateOf(const controls::CheckBox& box) { return QString::number(box.state()); }

QString renamed(const panels::RenamePanel& panel, const QString& path)
{
    const QString name = platform::lastPathComponent(path);
    switch (selectedRenaming(panel)) {
    case Renaming::Strip:
        return cNSStringHandling::hFileNameStripper(name, stripSettings(panel));
    case Renaming::Replace:
        return cNSStringHandling::hReplaceText(name, replaceSettings(panel));
    case Renaming::Prefix:
        return cNSStringHandling::hAddPrefix(path, name, prefixSettings(panel));
    case Renaming::Postfix:
        return cNSStringHandling::hAddPostfix(path, name, postfixSettings(panel));
    case Renaming::Numbering:
        break;
    }
    return cNSStringHandling::hNumbering(name, numberingSettings(panel));
}

} // namespace

Renaming selectedRenaming(const panels::RenamePanel& panel)
{
    return static_cast<Renaming>(panel.tbvFileRenaming.selectedIndex());
}

StripSettings stripSettings(const panels::RenamePanel& panel)
{
    return {
        .count = panel.tfStripNumberOfChar.stringValue(),
        .side = indexOf(panel.pubStripFromLeftRight),
        .character = panel.tfStripChar.stringValue(),
        .start = panel.tfStripCharStart.stringValue(),
        .stop = panel.tfStripCharStop.stringValue(),
        .fragment = panel.tfStripTextFrag.stringValue(),
        .removeMode = indexOf(panel.pubStripRemPosition),
        .allowedMode = indexOf(panel.pubStripCharAllowed),
        .preserve = stateOf(panel.btStripPreserveExtension)};
}

ReplaceSettings replaceSettings(const panels::RenamePanel& panel)
{
    return {
        .caseMode = indexOf(panel.pubReplaceCase),
        .start = panel.tfReplaceCharStart.stringValue(),
        .stop = panel.tfReplaceCharStop.stringValue(),
        .character = panel.tfReplaceCharBy.stringValue(),
        .find = panel.tfReplaceFindText.stringValue(),
        .replacement = panel.tfReplaceTextBy.stringValue()};
}

PrefixSettings prefixSettings(const panels::RenamePanel& panel)
{
    return {
        .text = panel.tfPrefixToAdd.stringValue(),
        .metadataKey = panel.cbxPrefixMetaData.objectValueOfSelectedItem(),
        .creationDate = stateOf(panel.btPrefixCreationDate),
        .modificationDate = stateOf(panel.btPrefixModifDate)};
}

PostfixSettings postfixSettings(const panels::RenamePanel& panel)
{
    return {
        .text = panel.tfPostfixToAdd.stringValue(),
        .metadataKey = panel.cbxPostfixMetaData.objectValueOfSelectedItem(),
        .creationDate = stateOf(panel.btPostfixCreationDate),
        .modificationDate = stateOf(panel.btPostfixModifDate),
        .beforeExtension = stateOf(panel.btPostfixBeforeExtension)};
}

NumberingSettings numberingSettings(const panels::RenamePanel& panel)
{
    return {
        .prefix = panel.tfNumberingPrefixToAdd.stringValue(),
        .postfix = panel.tfNumberingPostFixToAdd.stringValue(),
        .digits = platform::intValue(panel.tfNumberingDigits.stringValue()),
        .position = indexOf(panel.mxNumberingPosition)};
}

QString renamedByPanel(const panels::RenamePanel& panel, const QString& path)
{
    return usableName(renamed(panel, path));
}

} // namespace brenvaldo::files
