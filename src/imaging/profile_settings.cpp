// SPDX-License-Identifier: GPL-3.0-or-later
#include "profile_settings.h"

#include <panels/profile_panel.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::imaging {

using platform::graphics::RenderingIntent;

ProfileSettings readSettings(const panels::ProfilePanel& panel)
{
    return {
        .profile = panel.pubInstalledICCProfiles.indexOfSelectedItem(),
        .intent = renderingIntent(panel.pubCPCRenderIntent.titleOfSelectedItem())};
}

RenderingIntent renderingIntent(const QString& title)
{
    if (title == u"perceptual"_s)
        return RenderingIntent::Perceptual;
    if (title == u"relative"_s)
        return RenderingIntent::Relative;
    if (title == u"absolute"_s)
        return RenderingIntent::Absolute;
    return RenderingIntent::Saturation;
}

} // namespace brenvaldo::imaging
