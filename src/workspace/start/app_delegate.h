// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <workspace/gui_controls.h>

#include <platform/foundation/exceptions.h>
#include <platform/foundation/notification_center.h>

#include <functional>
#include <vector>

namespace brenvaldo::workspace {

/// What the program does when it starts, is given files, and ends.
class AppDelegate
{
public:
    struct Links
    {
        panels::Panels& panels;
        platform::NotificationCenter& notifications;
        const platform::Signal<const platform::Exception&>& exceptionRaised;
        cGUIcontrols& guiControls;
        cCollectionViewController& collectionView;
        std::function<void()> waitForUploads; ///< they read files of `Temp`
    };

    explicit AppDelegate(const Links& links);

    /// Brings controls, folders and observers to their first state.
    void applicationWillFinishLaunching();

    /// Adds files that were opened with the program.
    void applicationopenFiles(const QStringList& paths);

    /// Empties `Temp`, after the photo in hand when a run is on; the program ends with its last
    /// window.
    bool applicationShouldTerminateAfterLastWindowClosed();

    void callForWMPreview();

    /// True when the command of the watermark text view was handled. "insertTab:" asks for the
    /// focus of the next field, and refreshes the preview of a text watermark.
    bool textViewdoCommandBySelector(const QString& selector);

    /// The control that is to get the keyboard focus.
    platform::Signal<const controls::Control&> focusRequested;

private:
    void fillMetadataKeys();
    void linkToPresets();
    void makeFolders();
    void fillFonts();
    void observePreviewNotifications();
    void emptyTempAtTheEnd() const;

    panels::Panels& m_panels;
    platform::NotificationCenter& m_notifications;
    const platform::Signal<const platform::Exception&>& m_exceptionRaised;
    cGUIcontrols& m_guiControls;
    cCollectionViewController& m_collectionView;
    std::function<void()> m_waitForUploads;
    std::vector<platform::Subscription> m_previewNotifications;
    platform::Subscription m_endOfRun;
};

} // namespace brenvaldo::workspace
