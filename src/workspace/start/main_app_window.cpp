// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_app_window.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::workspace {

mainAppWindow::mainAppWindow(Output output)
    : m_output(std::move(output))
{
}

void mainAppWindow::awakeFromNib() { m_output(u"Awake"_s); }

int mainAppWindow::draggingEntered() const
{
    m_output(u"Enter"_s);
    return allOperations;
}

bool mainAppWindow::prepareForDragOperation() const
{
    m_output(u"Prepare"_s);
    return true;
}

bool mainAppWindow::performDragOperation(const std::optional<QStringList>& fileNames) const
{
    m_output(u"Perform"_s);
    if (fileNames)
        m_output(QString::number(fileNames->size()) + u'\n');
    return true;
}

} // namespace brenvaldo::workspace
