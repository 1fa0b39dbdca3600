// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_color_conversions.h"

#include "dv_image_handling.h"
#include "profile_settings.h"

#include <panels/profile_panel.h>
#include <platform/foundation/exceptions.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/text.h>
#include <platform/graphics/installed_profiles.h>

#include <algorithm>

namespace brenvaldo::imaging {

using platform::graphics::ColorSpace;
using platform::graphics::Image;

void DVColorConversions::hGetColorProfiles(panels::ProfilePanel& panel)
{
    m_sortedColorSpaces
        = platform::graphics::installedColorSpaces(platform::graphics::profileFolders());
    std::stable_sort(
        m_sortedColorSpaces.begin(),
        m_sortedColorSpaces.end(),
        [](const ColorSpace& left, const ColorSpace& right) {
            return platform::caseInsensitiveCompare(left.name, right.name) < 0;
        }
    );
    QStringList names;
    for (const ColorSpace& space : m_sortedColorSpaces)
        names.append(space.name);
    panel.pubInstalledICCProfiles.setTitles(names);
}

Outcome DVColorConversions::convertColorSpace(
    const SourceAndBase& photo, const ProfileSettings& settings, const OutputTail& tail
) const
{
    const auto picture = DVImageHandling::hStringToCGImageRef(photo.source);
    return outputPicture(convertColorSpaceToPreview(picture, settings), photo, tail);
}

std::optional<Image> DVColorConversions::convertColorSpaceToPreview(
    const std::optional<Image>& photo, const ProfileSettings& settings
) const
{
    const auto index = static_cast<std::size_t>(settings.profile);
    if (index >= m_sortedColorSpaces.size())
        throw platform::RangeError(u"No colour space at index %1"_s.arg(settings.profile));
    if (!photo)
        return std::nullopt;
    return platform::graphics::convertedTo(*photo, m_sortedColorSpaces.at(index), settings.intent);
}

} // namespace brenvaldo::imaging
