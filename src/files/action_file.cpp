// SPDX-License-Identifier: GPL-3.0-or-later
#include "action_file.h"

#include "action_fields.h"
#include "rename_settings.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::files {

namespace {

template <class Settings, class Fields>
QStringList textsOf(const Settings& settings, const Fields& fields)
{
    QStringList texts;
    for (const auto field : fields)
        texts.append(settings.*field);
    return texts;
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
        return fileOf(u"Strip"_s, textsOf(stripSettings(panel), stripFields));
    case Renaming::Replace:
        return fileOf(u"Replace"_s, textsOf(replaceSettings(panel), replaceFields));
    case Renaming::Prefix:
        return fileOf(u"Prefix"_s, textsOf(prefixSettings(panel), prefixFields));
    case Renaming::Postfix:
        return fileOf(u"Postfix"_s, textsOf(postfixSettings(panel), postfixFields));
    case Renaming::Numbering:
        break;
    }
    return fileOf(u"Numbering"_s, numberingFields(panel));
}

QImage actionFileIcon() { return QImage(u":/pictures/C-ACTION.png"_s); }

} // namespace brenvaldo::files
