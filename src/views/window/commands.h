// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <workspace/list/photo_list.h>

#include <QAction>
#include <QHash>

namespace brenvaldo::views {

/// What the user can order from menus, tool bar and keyboard alike, each once.
///
/// An order whose action nobody has registered is not offered. An order is known by the bare name
/// of the action that it sends, such as "hChoosePhotos".
class Commands : public QObject
{
    Q_OBJECT

public:
    Commands(
        const controls::ActionRegistry& actions,
        const workspace::PhotoList& photos,
        QObject* parent = nullptr
    );

    /// The order of that name; there must be one.
    [[nodiscard]] QAction* command(const QString& name) const;

    [[nodiscard]] QList<QAction*> all() const { return m_commands.values(); }

private:
    void enableByPhotos();

    const workspace::PhotoList& m_photos;
    QHash<QString, QAction*> m_commands;
    platform::Subscription m_entries;
    platform::Subscription m_selection;
};

} // namespace brenvaldo::views
