// SPDX-License-Identifier: GPL-3.0-or-later
#include "event_watcher.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::script {

EventWatcher::EventWatcher(workspace::Workspace& workspace, const EventPrinter& printer)
    : m_printer(printer)
    , m_alertWindow(workspace.panels().window.wwAlertWindow)
{
    m_subscriptions.push_back(
        workspace.alertShown.connect([this](const QString& title, const QString& text) {
            m_printer.print(u"alert"_s, {title, text});
        })
    );
    m_subscriptions.push_back(
        workspace.journal().recorded.connect([this](const workspace::RunRecord& record) {
            if (!record.source.isEmpty())
                m_printer.print(u"result"_s, {record.source, text(record.word)});
        })
    );
    m_subscriptions.push_back(workspace.actions().exceptionRaised.connect(
        [this](const platform::Exception& exception) { report(exception); }
    ));
    for (const controls::Control* control : workspace.panels().controls()) {
        if (const auto* sheet = dynamic_cast<const controls::Sheet*>(control))
            watch(*sheet);
    }
}

void EventWatcher::report(const platform::Exception& exception) const
{
    m_printer.print(u"exception"_s, {exception.kind(), exception.reason()});
}

void EventWatcher::watch(const controls::Sheet& sheet)
{
    if (sheet.isOpen())
        m_openSheets.insert(&sheet);
    m_subscriptions.push_back(sheet.changed.connect([this, &sheet] { reportChange(sheet); }));
}

void EventWatcher::reportChange(const controls::Sheet& sheet)
{
    const bool wasOpen = m_openSheets.contains(&sheet);
    if (sheet.isOpen() == wasOpen)
        return;
    if (wasOpen) {
        m_openSheets.erase(&sheet);
        m_printer.print(u"sheet"_s, {sheet.name(), u"closed"_s});
        return;
    }
    m_openSheets.insert(&sheet);
    // The opening of the alert window is told by the alert itself.
    if (&sheet != &m_alertWindow)
        m_printer.print(u"sheet"_s, {sheet.name(), u"opened"_s});
}

} // namespace brenvaldo::script
