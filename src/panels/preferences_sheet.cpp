// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences_sheet.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

PreferencesSheet::PreferencesSheet()
    : PanelView(u"wwPreferencesWindow"_s)
{
    tfLibraryFilePath.setEnabled(false);
    tfPhotosAtATime.addAction(u"cSheetControl.hSetPhotosAtATime"_s);
    setLayout({
        {Row{
            .label = u"Support folder"_s,
            .fields
            = {{.control = &tfLibraryFilePath},
               {.control = &btnChooseLibraryDestination, .width = Field::Width::Narrow}},
            .hint = u"Patterns, watermarks and file-name actions are kept in a folder inside it. "
                    u"What is in the old folder stays there."_s}},
        {Row{
            .label = u"Photos at a time"_s,
            .fields = {{.control = &tfPhotosAtATime, .width = Field::Width::Narrow}},
            .hint = u"A run makes that many files side by side; 0 uses all cores."_s}},
        {Row{.fields = {{.control = &btnClosePreferences}}}},
    });
}

} // namespace brenvaldo::panels
