// SPDX-License-Identifier: GPL-3.0-or-later
#include "iptc_settings.h"

#include <panels/exif_panel.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/text.h>

namespace brenvaldo::metadata {

using platform::metadata::IptcChange;
using platform::metadata::IptcKey;

namespace {

/// Nothing is written for an empty one, such as that behind a last ";".
QStringList keywordsOf(const QString& text)
{
    QStringList keywords = platform::componentsSeparatedBy(text, u";"_s);
    keywords.removeAll(QString());
    return keywords;
}

void addUnlessEmpty(QList<IptcChange>& changes, IptcKey key, const QString& value)
{
    if (!value.isEmpty())
        changes.append({.key = key, .values = {value}});
}

} // namespace

QList<IptcChange> readIptcChanges(const panels::ExifPanel& panel)
{
    QList<IptcChange> changes{
        {.key = IptcKey::Keywords, .values = keywordsOf(panel.tfIPTCKeyWords.stringValue())}};
    addUnlessEmpty(changes, IptcKey::ObjectName, panel.tfIPTCTitle.stringValue());
    addUnlessEmpty(changes, IptcKey::CaptionAbstract, panel.tfIPTCCaption.stringValue());
    addUnlessEmpty(changes, IptcKey::Headline, panel.tfIPTCHeadline.stringValue());
    addUnlessEmpty(changes, IptcKey::CopyrightNotice, panel.tfIPTCCopyRight.stringValue());
    addUnlessEmpty(changes, IptcKey::RightsUsageTerms, panel.tfIPTCCopyRightTerms.stringValue());
    addUnlessEmpty(changes, IptcKey::Byline, panel.tfIPTCCreator.stringValue());
    addUnlessEmpty(changes, IptcKey::BylineTitle, panel.tfIPTCCreatorTitle.stringValue());
    addUnlessEmpty(changes, IptcKey::Source, panel.tfIPTCSourceOwner.stringValue());
    return changes;
}

} // namespace brenvaldo::metadata
