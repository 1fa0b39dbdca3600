// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_settings.h"
#include "output_tail.h"
#include "picture_to_save.h"

#include <platform/graphics/color.h>
#include <platform/graphics/image.h>
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

    /// The photo in the profile; nothing without a photo.
    [[nodiscard]] std::optional<platform::graphics::Image> convertColorSpaceToPreview(
        const std::optional<platform::graphics::Image>& photo, const ProfileSettings& settings
    ) const;

    /// The photo after the filter of the settings' number, having passed through a JPEG of the best
    /// quality. A number that no filter has writes nothing and answers the word of the photo
    /// before.
    [[nodiscard]] static Outcome
    hAddFilter(const SourceAndBase& photo, const FilterSettings& settings, const OutputTail& tail);

    /// The picture that a run would make of `photo`.
    [[nodiscard]] static std::optional<platform::graphics::Image>
    hAddFilterPreview(const platform::graphics::Image& photo, const FilterSettings& settings);

    // Screens of a picture, each having passed through a JPEG of the best quality.

    using Image = platform::graphics::Image;

    [[nodiscard]] static Image
    hCircularScreenFilter(const Image& image, const ScreenSettings& settings);
    [[nodiscard]] static Image hDotScreenFilter(const Image& image, const ScreenSettings& settings);
    [[nodiscard]] static Image
    hLineScreenFilter(const Image& image, const ScreenSettings& settings);
    /// Lines, and lines across them.
    [[nodiscard]] static Image
    hFabricScreenFilter(const Image& image, const ScreenSettings& settings);
    [[nodiscard]] static Image
    hFabric2ScreenFilter(const Image& image, const ScreenSettings& settings);
    /// Lines in eleven directions; the angle is ignored.
    [[nodiscard]] static Image
    hFabric3ScreenFilter(const Image& image, const ScreenSettings& settings);
    /// Lines and lines across them, four times.
    [[nodiscard]] static Image
    hFabric4ScreenFilter(const Image& image, const ScreenSettings& settings);
    // Photo and tones in a pattern; the mask is ignored, and inverting swaps the two.
    [[nodiscard]] static Image
    hDottyScreenFilter(const Image& image, const ScreenSettings& settings);
    [[nodiscard]] static Image
    hDottyBWScreenFilter(const Image& image, const ScreenSettings& settings);
    [[nodiscard]] static Image
    hStrokeScreenFilter(const Image& image, const ScreenSettings& settings);
    [[nodiscard]] static Image
    hStrokeBWScreenFilter(const Image& image, const ScreenSettings& settings);

private:
    std::vector<platform::graphics::ColorSpace> m_sortedColorSpaces;
};

} // namespace brenvaldo::imaging
