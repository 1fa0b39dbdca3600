// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "function.h"

#include <array>

/// \file
/// The rows, each made in the file of its name.

namespace brenvaldo::workspace {

[[nodiscard]] Function textWatermark();
[[nodiscard]] Function imageWatermark();
[[nodiscard]] Function addTint();
[[nodiscard]] Function framing();
[[nodiscard]] Function roundings();
[[nodiscard]] Function profileConversion();
[[nodiscard]] Function faces();
[[nodiscard]] Function rotatePhotos();
[[nodiscard]] Function filters();
[[nodiscard]] Function resizePhotos();
[[nodiscard]] Function cropPhotos();
[[nodiscard]] Function sortByHand();
[[nodiscard]] Function batchSort();
[[nodiscard]] Function photoUpload();
[[nodiscard]] Function exifComment();
[[nodiscard]] Function fileRenaming();
[[nodiscard]] Function fileConversion();
[[nodiscard]] Function codes();
[[nodiscard]] Function gallery();

/// All of them, in their order.
inline constexpr std::array catalogue{
    textWatermark,     imageWatermark, addTint,      framing,     roundings,
    profileConversion, faces,          rotatePhotos, filters,     resizePhotos,
    cropPhotos,        sortByHand,     batchSort,    photoUpload, exifComment,
    fileRenaming,      fileConversion, codes,        gallery,
};

} // namespace brenvaldo::workspace
