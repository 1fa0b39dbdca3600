// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <controls/file_chooser.h>
#include <panels/panels.h>
#include <platform/foundation/user_defaults.h>

#include <functional>

namespace brenvaldo::presets {

/// The preferences sheet, and the choice of the folder that holds the support files: patterns,
/// watermarks and file-name actions. Nothing here shows a message; what can't be made is missing.
class cSheetControl
{
public:
    using Alert = std::function<void(const QString& title, const QString& text)>;

    /// `hAlertWindow` shows a message in the alert window.
    cSheetControl(
        panels::Panels& panels,
        controls::FileChooser& chooser,
        platform::UserDefaults& defaults,
        Alert hAlertWindow
    );

    void registerActions(controls::ActionRegistry& actions);

    // The actions.
    void hCallPreferencesWw();
    void closePreferencesSheetObjC();
    void hCallAlertSheet();
    void closeAlertSheet();
    /// Asks for another folder and sets it up; the folder of before stays as it is.
    void chooseLibraryDestination();
    /// Keeps how many photos a run works on at a time; 0 for a text that is no number above 0.
    void hSetPhotosAtATime();

    /// Asks for the folder when none is known, sets it up, and fills its patterns.
    void setLibraryDestination();

private:
    enum class Patterns { Empty, Default };

    void setUp(const QString& folder, Patterns patterns);
    void remember(const QString& key, const QVariant& value);

    panels::Panels& m_panels;
    controls::FileChooser& m_chooser;
    platform::UserDefaults& m_defaults;
    Alert m_hAlertWindow;
};

} // namespace brenvaldo::presets
