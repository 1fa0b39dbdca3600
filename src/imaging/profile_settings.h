// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/profile_conversion.h>

namespace brenvaldo::panels {
struct ProfilePanel;
}

namespace brenvaldo::imaging {

/// The settings of a conversion to a colour profile.
struct ProfileSettings
{
    int profile = -1; ///< index of `pubInstalledICCProfiles`
    platform::graphics::RenderingIntent intent = platform::graphics::RenderingIntent::Perceptual;

    friend bool operator==(const ProfileSettings&, const ProfileSettings&) = default;
};

[[nodiscard]] ProfileSettings readSettings(const panels::ProfilePanel& panel);

/// The intent of a title of `pubCPCRenderIntent`; an unknown one is saturation.
[[nodiscard]] platform::graphics::RenderingIntent renderingIntent(const QString& title);

} // namespace brenvaldo::imaging
