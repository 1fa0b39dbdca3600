// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace.h"

namespace brenvaldo::workspace {

struct Workspace::Parts
{
    Surroundings surroundings;
    panels::Panels panels = {};
    controls::ActionRegistry actions = {};
    PhotoList photos = {};
    RunJournal journal = {};
    platform::NotificationCenter notifications = {};
    bool hasStarted = false;
    QStringList waitingFiles = {};
};

Workspace::Workspace(const Surroundings& surroundings)
    : m_parts(std::make_unique<Parts>(surroundings))
{
}

Workspace::~Workspace() = default;

panels::Panels& Workspace::panels() { return m_parts->panels; }
controls::ActionRegistry& Workspace::actions() { return m_parts->actions; }
PhotoList& Workspace::photos() { return m_parts->photos; }
RunJournal& Workspace::journal() { return m_parts->journal; }
platform::NotificationCenter& Workspace::notifications() { return m_parts->notifications; }

void Workspace::start()
{
    m_parts->hasStarted = true;
    openFiles(std::exchange(m_parts->waitingFiles, {}));
}

void Workspace::openFiles(const QStringList& paths)
{
    if (!m_parts->hasStarted)
        m_parts->waitingFiles.append(paths);
}

void Workspace::lastWindowClosed() { }

std::optional<platform::Image> Workspace::composedPreview() const
{
    return m_parts->panels.window.myTemplatePreview.image();
}

controls::ArrayController* Workspace::rowsOf(const QString& tableName)
{
    return dynamic_cast<controls::ArrayController*>(m_parts->panels.control(tableName));
}

} // namespace brenvaldo::workspace
