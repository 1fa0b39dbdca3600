// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "event_printer.h"

#include <platform/foundation/exceptions.h>
#include <workspace/workspace.h>

#include <set>
#include <vector>

namespace brenvaldo::script {

/// Prints what the program tells its user: alerts, sheets, results of photos, exceptions.
class EventWatcher
{
public:
    EventWatcher(workspace::Workspace& workspace, const EventPrinter& printer);

    void report(const platform::Exception& exception) const;

private:
    void watch(const controls::Sheet& sheet);
    void reportChange(const controls::Sheet& sheet);

    const EventPrinter& m_printer;
    const controls::Sheet& m_alertWindow;
    std::set<const controls::Sheet*> m_openSheets;
    std::vector<platform::Subscription> m_subscriptions;
};

} // namespace brenvaldo::script
