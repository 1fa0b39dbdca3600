// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_app_window.h"

namespace brenvaldo::workspace {

mainAppWindow::mainAppWindow(Output output)
    : m_output(std::move(output))
{
}

void mainAppWindow::awakeFromNib() { m_output(u"Awake"_qs); }

int mainAppWindow::draggingEntered() const
{
    m_output(u"Enter"_qs);
    return allOperations;
}

bool mainAppWindow::prepareForDragOperation() const
{
    m_output(u"Prepare"_qs);
    return true;
}

bool mainAppWindow::performDragOperation(const std::optional<QStringList>& fileNames) const
{
    m_output(u"Perform"_qs);
    if (fileNames)
        m_output(QString::number(fileNames->size()) + u'\n');
    return true;
}

} // namespace brenvaldo::workspace
