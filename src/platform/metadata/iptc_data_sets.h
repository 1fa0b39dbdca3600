// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "metadata_edit.h"

#include <QByteArray>
#include <QByteArrayView>

namespace brenvaldo::platform::metadata {

/// One IIM data set: views into the block.
struct IptcDataSet
{
    int number = 0; ///< record * 256 + data set
    QByteArrayView value;
    QByteArrayView whole; ///< marker, number, length and value
};

struct IptcDataSets
{
    QList<IptcDataSet> sets;
    QByteArrayView rest; ///< from the first byte on that starts no whole data set
};

[[nodiscard]] IptcDataSets readIptcDataSets(QByteArrayView iptc);

/// The data sets with those changes that IIM has a place for. Texts are then UTF-8, and say so:
/// those of other sets that are not are converted.
///
/// Unchanged where nothing is to be set and nothing to be taken away; nothing when the block is
/// damaged.
[[nodiscard]] std::optional<QByteArray>
iptcWith(const QByteArray& iptc, const QList<IptcChange>& changes);

} // namespace brenvaldo::platform::metadata
