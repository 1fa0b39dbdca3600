// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace brenvaldo::test {

/// One IIM data set of record 2, such as 120 for the caption.
[[nodiscard]] QByteArray iptcDataSet(int number, const QByteArray& value);

/// A Photoshop image resource without a name.
[[nodiscard]] QByteArray photoshopResource(int id, const QByteArray& data);

/// Contents of the JPEG segment 0xED that holds these data sets.
[[nodiscard]] QByteArray iptcSegmentContents(const QByteArray& dataSets);

} // namespace brenvaldo::test
