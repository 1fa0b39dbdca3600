// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <workspace/gui_controls.h>

namespace brenvaldo::workspace {

void cGUIcontrols::hChooseScalingDestinationFolder()
{
    const auto chosen = m_chooser.open(
        {.message = u"*** Choose destination folder ***"_s,
         .choosesFiles = false,
         .choosesDirectories = true,
         .canCreateDirectories = true}
    );
    if (!chosen || chosen->isEmpty())
        return;
    QString folder = chosen->last();
    if (!folder.endsWith(u'/'))
        folder += u'/';
    m_panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder);
    m_panels.vwMainDestination.tfImageDestinationFolder.setToolTip(folder);
}

void cGUIcontrols::hShowDestinationFolderInFinder()
{
    m_desktop.reveal(m_panels.vwMainDestination.tfImageDestinationFolder.stringValue());
}

} // namespace brenvaldo::workspace
