// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subsystem_links.h"

#include <imaging/dv_image_handling.h>
#include <metadata/mmeta.h>
#include <watermark/dv_watermark.h>

namespace brenvaldo::workspace {

/// The objects of the other subsystems; they outlive the links that are made of them.
struct Subsystems
{
    imaging::DVImageHandling& imageHandling;
    watermark::DVWatermark& watermark;
    metadata::mMeta& meta;
};

/// Ties the functions that are built to their operations, one line a function.
[[nodiscard]] SubsystemLinks subsystemLinks(const Subsystems& subsystems);

} // namespace brenvaldo::workspace
