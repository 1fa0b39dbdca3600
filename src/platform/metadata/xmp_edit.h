// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "metadata_edit.h"

#include <QByteArray>

namespace brenvaldo::platform::metadata {

/// The XMP packet with the changes, a new one where `packet` is empty; everything else in it stays
/// as it is written, texts in other languages of what is changed among it.
///
/// Unchanged where nothing is to be set and nothing to be taken away; nothing when the packet is
/// damaged.
[[nodiscard]] std::optional<QByteArray>
xmpWith(const QByteArray& packet, const QList<IptcChange>& changes);

} // namespace brenvaldo::platform::metadata
