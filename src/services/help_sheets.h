// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <panels/panels.h>

namespace brenvaldo::services {

/// Shows what the program's parts are for, each in the same sheet, in the user's language.
class HelpSheets
{
public:
    explicit HelpSheets(panels::Panels& panels);

    void registerActions(controls::ActionRegistry& actions);

    /// Help on sorting by hand (1), sorting in batches (2) and comments (3); nothing for another
    /// tag.
    void hCallForHelp(int tag);

    void closeInfoSheetObjC();

private:
    void show(const QString& titleKey, const QString& textKey);

    panels::InfoSheet& m_sheet;
};

} // namespace brenvaldo::services
