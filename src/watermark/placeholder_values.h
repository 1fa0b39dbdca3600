// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "placeholders.h"

namespace brenvaldo::watermark {

/// The values of the photo at `path`; its metadata is read when the first of them is asked for.
[[nodiscard]] PlaceholderValue placeholderValuesOf(const QString& path, const QString& outputName);

} // namespace brenvaldo::watermark
