// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output_tail.h"
#include "picture_to_save.h"

#include <platform/graphics/color.h>
#include <platform/graphics/profile_conversion.h>

#include <optional>
#include <vector>

namespace brenvaldo::panels {
struct ProfilePanel;
}

namespace brenvaldo::imaging {

struct ProfileSettings;

/// The operations on the colours of a photo.
class DVColorConversions
{
public:
    /// The drawing colour of a control's colour: the same components in the same colour space.
    [[nodiscard]] static platform::graphics::Color
    NSColorToCGColor(const platform::graphics::Color& color)
    {
        return color;
    }

    /// Fills `pubInstalledICCProfiles` with the names of the installed profiles, sorted, and
    /// selects the first.
    void hGetColorProfiles(panels::ProfilePanel& panel);

    /// Converts a photo's stored pixels to a profile of the list; the file carries it. A profile
    /// that the list does not have is a range error.
    [[nodiscard]] Outcome convertColorSpace(
        const SourceAndBase& photo, const ProfileSettings& settings, const OutputTail& tail
    ) const;

    /// The upright photo at `path` in the profile; nothing when it can't be read.
    [[nodiscard]] std::optional<platform::graphics::Image>
    convertColorSpaceToPreview(const QString& path, const ProfileSettings& settings) const;

private:
    [[nodiscard]] std::optional<platform::graphics::Image> converted(
        const std::optional<platform::graphics::Image>& photo, const ProfileSettings& settings
    ) const;

    std::vector<platform::graphics::ColorSpace> m_sortedColorSpaces;
};

} // namespace brenvaldo::imaging
