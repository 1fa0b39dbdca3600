// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <workspace/functions/functions.h>
#include <workspace/list/photo_list.h>

/// \file
/// What a press of the process button works on.

namespace brenvaldo::workspace {

/// The function that a press runs while that id is selected; null when there is none. Among the
/// functions that edit photos the pop-up decides, not the id.
[[nodiscard]] const Function*
functionOfRun(const Functions& functions, const QString& id, const panels::Panels& panels);

/// Paths of the entries that a run takes, in the order of the list. The apply-on filter holds
/// whether it is shown or not.
[[nodiscard]] QStringList
takenPhotos(Takes takes, const PhotoList& photos, const panels::Panels& panels);

/// Paths of the photos that a run of that kind takes; none where the panel's own button works.
[[nodiscard]] QStringList
photosOfRun(const KindOfRun& run, const PhotoList& photos, const panels::Panels& panels);

} // namespace brenvaldo::workspace
