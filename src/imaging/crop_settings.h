// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

#include <QString>

#include <cstdint>

namespace brenvaldo::panels {
struct CropPanel;
}

namespace brenvaldo::imaging {

/// The settings of a crop, in the order in which the operation takes them.
struct CropSettings
{
    platform::graphics::PixelSize size;
    std::int64_t cutOff = 0;
    std::int64_t xOffset = 0;
    std::int64_t yOffset = 0;
    int anchor = 0;
    QString cropType; ///< title of `pubCropType`

    friend bool operator==(const CropSettings&, const CropSettings&) = default;
};

/// Reads the controls.
[[nodiscard]] CropSettings readSettings(const panels::CropPanel& panel);

/// The same for a run over the photo at `path`: a size without width or height stands for the
/// photo's own, 0 by 0 when it can't be read.
[[nodiscard]] CropSettings readSettings(const panels::CropPanel& panel, const QString& path);

} // namespace brenvaldo::imaging
