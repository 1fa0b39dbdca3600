// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace brenvaldo::platform::metadata {

/// The IPTC values that can be written.
enum class IptcKey {
    ObjectName,
    Keywords,
    CaptionAbstract,
    Headline,
    CopyrightNotice,
    RightsUsageTerms,
    Byline,
    BylineTitle,
    Source
};

/// New values in the place of all that the key has; none: the key goes.
struct IptcChange
{
    IptcKey key;
    QStringList values;
};

/// What is written into a file; everything else in it stays.
struct MetadataEdit
{
    std::optional<QString> userComment = {};
    QList<IptcChange> iptc = {};
};

} // namespace brenvaldo::platform::metadata
