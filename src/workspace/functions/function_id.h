// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>

/// \file
/// The ids that more than a function's own row speaks of; compared by exact equality.

namespace brenvaldo::workspace::functionId {

inline constexpr QLatin1String textWM{"textWM"};
inline constexpr QLatin1String imageWM{"imageWM"};
inline constexpr QLatin1String manSort{"manSort"};
inline constexpr QLatin1String batchSort{"batchSort"};
inline constexpr QLatin1String batchUploadPhotos{"batchUploadPhotos"};
inline constexpr QLatin1String fileRenaming{"fileRenaming"};
inline constexpr QLatin1String batchFileConvert{"batchFileConvert"};
inline constexpr QLatin1String batchArchive{"batchArchive"};
inline constexpr QLatin1String batchQR{"batchQR"};
inline constexpr QLatin1String htmlExport{"htmlExport"};

/// No control stores this one: its run takes the photos and does nothing with them.
inline constexpr QLatin1String uploadPhotos{"uploadPhotos"};

} // namespace brenvaldo::workspace::functionId
