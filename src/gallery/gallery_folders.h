// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::gallery {

/// Makes the folders of a gallery in `destination`, which ends in "/", and puts the lightbox's
/// files into theirs. What stands there already stays.
void hCreateFolderStructure(const QString& destination);

} // namespace brenvaldo::gallery
