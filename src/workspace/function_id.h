// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>

/// \file
/// The ids of all functions; compared by exact equality.

namespace brenvaldo::workspace::functionId {

inline constexpr QLatin1String textWM{"textWM"};
inline constexpr QLatin1String imageWM{"imageWM"};
inline constexpr QLatin1String addTint{"addTint"};
inline constexpr QLatin1String framing{"framing"};
inline constexpr QLatin1String roundings{"roundings"};
inline constexpr QLatin1String profileConversion{"profileConversion"};
inline constexpr QLatin1String faces{"faces"};
inline constexpr QLatin1String rotatePhotos{"rotatePhotos"};
inline constexpr QLatin1String filters{"filters"};
inline constexpr QLatin1String resizePhotos{"resizePhotos"};
inline constexpr QLatin1String cropPhotos{"cropPhotos"};
inline constexpr QLatin1String manSort{"manSort"};
inline constexpr QLatin1String batchSort{"batchSort"};
inline constexpr QLatin1String batchUploadPhotos{"batchUploadPhotos"};
inline constexpr QLatin1String batchExifUC{"batchExifUC"};
inline constexpr QLatin1String fileRenaming{"fileRenaming"};
inline constexpr QLatin1String batchFileConvert{"batchFileConvert"};
inline constexpr QLatin1String batchQR{"batchQR"};
inline constexpr QLatin1String htmlExport{"htmlExport"};

/// No control stores this one: its run works out every path and does nothing with it.
inline constexpr QLatin1String uploadPhotos{"uploadPhotos"};

} // namespace brenvaldo::workspace::functionId
