// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/metadata/metadata_edit.h>

namespace brenvaldo::panels {
struct ExifPanel;
}

namespace brenvaldo::metadata {

/// What the IPTC fields of the panel change in a photo.
///
/// An empty field leaves the value that stands there; that of the keywords clears them. Keywords
/// are parted by ";".
[[nodiscard]] QList<platform::metadata::IptcChange> readIptcChanges(const panels::ExifPanel& panel);

} // namespace brenvaldo::metadata
