// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "result_word.h"

#include <platform/graphics/image.h>

#include <QString>

#include <optional>

/// \file
/// Edits that write a photo under its own name and type; into its own folder they replace it.

namespace brenvaldo::imaging {

/// The type identifier of the extension of `path`.
[[nodiscard]] QString typeOfExtension(const QString& path);

/// Writes `image`, made of the photo `source`, with the photo's metadata into `folder`, which ends
/// in "/".
ResultWord saveUnderItsName(
    const std::optional<platform::graphics::Image>& image,
    const QString& source,
    const QString& folder
);

} // namespace brenvaldo::imaging
