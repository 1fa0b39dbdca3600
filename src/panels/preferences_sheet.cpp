// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences_sheet.h"

namespace brenvaldo::panels {

PreferencesSheet::PreferencesSheet()
    : PanelView(u"wwPreferencesWindow"_qs)
    , sheet(name())
    , tfLibraryFilePath(u"tfLibraryFilePath"_qs)
    , btnChooseLibraryDestination(
          u"btnChooseLibraryDestination"_qs,
          u"Choose\u2026"_qs,
          u"cSheetControl.chooseLibraryDestination"_qs
      )
    , btnClosePreferences(
          u"btnClosePreferences"_qs, u"Close"_qs, u"cSheetControl.closePreferencesSheetObjC"_qs
      )
{
    tfLibraryFilePath.setEnabled(false);
    setLayout({
        {Row{
            .label = u"Support folder"_qs,
            .fields
            = {{.control = &tfLibraryFilePath},
               {.control = &btnChooseLibraryDestination, .width = Field::Width::Narrow}},
            .hint = u"Patterns, watermarks and file-name actions are kept in a folder inside it. "
                    u"What is in the old folder stays there."_qs}},
        {Row{.fields = {{.control = &btnClosePreferences}}}},
    });
}

} // namespace brenvaldo::panels
