// SPDX-License-Identifier: GPL-3.0-or-later
#include "action_file.h"

#include "rename_settings.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::files {

namespace {

QStringList stripFields(const panels::RenamePanel& panel)
{
    const StripSettings strip = stripSettings(panel);
    return {
        strip.count,
        strip.side,
        strip.character,
        strip.start,
        strip.stop,
        strip.fragment,
        strip.removeMode,
        strip.allowedMode,
        strip.preserve};
}

QStringList replaceFields(const panels::RenamePanel& panel)
{
    const ReplaceSettings replace = replaceSettings(panel);
    return {
        replace.caseMode,
        replace.start,
        replace.stop,
        replace.character,
        replace.find,
        replace.replacement};
}

QStringList prefixFields(const panels::RenamePanel& panel)
{
    const PrefixSettings prefix = prefixSettings(panel);
    return {prefix.text, prefix.metadataKey, prefix.creationDate, prefix.modificationDate};
}

QStringList postfixFields(const panels::RenamePanel& panel)
{
    const PostfixSettings postfix = postfixSettings(panel);
    return {
        postfix.text,
        postfix.metadataKey,
        postfix.creationDate,
        postfix.modificationDate,
        postfix.beforeExtension};
}

QStringList numberingFields(const panels::RenamePanel& panel)
{
    const NumberingSettings numbering = numberingSettings(panel);
    return {
        QString::number(platform::intValue(panel.tfNumberingStartFrom.stringValue())),
        numbering.prefix,
        numbering.postfix,
        QString::number(numbering.digits),
        numbering.position,
        QString::number(panel.btNumberingBeforeExtension.state())};
}

cToolBox::NewActionFile fileOf(const QString& action, const QStringList& fields)
{
    const QStringList all = QStringList{action, u"Brenvaldo9"_s} + fields;
    return {.text = all.join(u'\t'), .suggestedName = action + u"Filename.c-action"_s};
}

} // namespace

cToolBox::NewActionFile actionFile(const panels::RenamePanel& panel)
{
    switch (selectedRenaming(panel)) {
    case Renaming::Strip:
        return fileOf(u"Strip"_s, stripFields(panel));
    case Renaming::Replace:
        return fileOf(u"Replace"_s, replaceFields(panel));
    case Renaming::Prefix:
        return fileOf(u"Prefix"_s, prefixFields(panel));
    case Renaming::Postfix:
        return fileOf(u"Postfix"_s, postfixFields(panel));
    case Renaming::Numbering:
        break;
    }
    return fileOf(u"Numbering"_s, numberingFields(panel));
}

} // namespace brenvaldo::files
