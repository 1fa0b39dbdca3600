// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kinds_of_run.h"

#include <watermark/dv_watermark.h>

/// \file
/// What the two watermark functions share.

namespace brenvaldo::workspace {

/// Every tab of `tbvWatermarkType` but this one stands for image watermarks.
[[nodiscard]] bool isTextTab(const panels::Panels& panels);

/// The arguments of a watermark run.
[[nodiscard]] watermark::WatermarkRun watermarkRun(const ListRun::Photos& photos);

} // namespace brenvaldo::workspace
