// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::controls {
class ActionRegistry;
}
namespace brenvaldo::panels {
struct WatermarkPanel;
}
namespace brenvaldo::platform {
class NotificationCenter;
}

namespace brenvaldo::watermark {

/// Registers the actions of the watermark panel: each adjusts the controls that depend on the
/// sender, then posts the notification that the live preview listens to.
void registerPanelActions(
    controls::ActionRegistry& actions,
    panels::WatermarkPanel& panel,
    const platform::NotificationCenter& notifications
);

} // namespace brenvaldo::watermark
