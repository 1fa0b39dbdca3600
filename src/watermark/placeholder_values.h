// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "placeholders.h"

#include <memory>

namespace brenvaldo::watermark {

class KeptProperties;

/// The values of the photo at `path`, whose metadata is taken from `properties` when the first of
/// them is asked for.
[[nodiscard]] PlaceholderValue placeholderValuesOf(
    const QString& path, const QString& outputName, std::shared_ptr<KeptProperties> properties
);

} // namespace brenvaldo::watermark
