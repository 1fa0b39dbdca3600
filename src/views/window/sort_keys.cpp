// SPDX-License-Identifier: GPL-3.0-or-later
#include "sort_keys.h"

#include <platform/foundation/literals.h>
#include <views/form/subscriptions.h>

namespace brenvaldo::views {

SortKeys::SortKeys(workspace::Workspace& workspace, QWidget& window)
    : QObject(&window)
    , m_workspace(workspace)
    , m_window(window)
{
    for (int folder = 1; folder <= 6; ++folder) {
        const int key = Qt::Key_0 + folder;
        add(QKeySequence(key), u"hCopyFileToFolder"_s, folder);
        add(QKeySequence(Qt::SHIFT | static_cast<Qt::Key>(key)), u"hMoveFileToFolder"_s, folder);
    }
    add(QKeySequence(Qt::SHIFT | Qt::Key_Delete), u"hTrashPhoto"_s, 0);
    const panels::Panels& panels = workspace.panels();
    keepFor(*this, panels.window.dvVCUiMainPropertyView.changed.connect([this] { enable(); }));
    keepFor(*this, panels.vwFileManagementSorting.mySortTabView.changed.connect([this] {
        enable();
    }));
    enable();
}

void SortKeys::add(const QKeySequence& keys, const QString& action, int folder)
{
    auto* shortcut = new QShortcut(keys, &m_window);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, [this, action, folder] {
        m_workspace.actions().send(u"cGUIcontrols."_s + action, {.tag = folder});
    });
    m_shortcuts.append(shortcut);
}

void SortKeys::enable()
{
    const panels::Panels& panels = m_workspace.panels();
    const panels::SortingPanel& sorting = panels.vwFileManagementSorting;
    const bool isShown = panels.window.dvVCUiMainPropertyView.views().contains(sorting.name())
        && sorting.mySortTabView.selectedIdentifier() == u"1";
    for (QShortcut* shortcut : std::as_const(m_shortcuts))
        shortcut->setEnabled(isShown);
}

} // namespace brenvaldo::views
