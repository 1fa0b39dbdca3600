// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <workspace/workspace.h>

#include <QObject>
#include <QShortcut>

namespace brenvaldo::views {

/// The keys of sorting by hand: 1 to 6 copy the photo into a folder, with Shift they move it;
/// Shift+Del moves it to the trash. They are there while the panel shows its folders.
class SortKeys : public QObject
{
    Q_OBJECT

public:
    SortKeys(workspace::Workspace& workspace, QWidget& window);

private:
    void add(const QKeySequence& keys, const QString& action, int folder);
    void enable();

    workspace::Workspace& m_workspace;
    QWidget& m_window;
    QList<QShortcut*> m_shortcuts;
};

} // namespace brenvaldo::views
