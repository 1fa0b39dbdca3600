// SPDX-License-Identifier: GPL-3.0-or-later
#include "shown_function.h"

#include "functions.h"

#include <panels/panels.h>

namespace brenvaldo::workspace {

namespace {

const Function* functionShown(const panels::Panels& panels)
{
    static const Functions rows(functions());
    const panels::WindowControls& window = panels.window;
    const QStringList& shown = window.dvVCUiMainPropertySelect.views();
    const auto inPopUp = [&](Section section, const controls::PopUpButton& popUp) {
        return rows.shownAt(section, popUp.indexOfSelectedItem(), panels);
    };
    if (shown.contains(window.pubEditPhoto.name()))
        return inPopUp(Section::EditPhoto, window.pubEditPhoto);
    if (shown.contains(window.pubFileManagementSelect.name()))
        return inPopUp(Section::FileManagement, window.pubFileManagementSelect);
    return rows.at(Section::Gallery, 0);
}

} // namespace

QString shownFunction(const panels::Panels& panels)
{
    const Function* function = functionShown(panels);
    return function ? QString(function->id) : QString();
}

} // namespace brenvaldo::workspace
