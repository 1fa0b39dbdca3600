// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "event_printer.h"

#include <platform/storage/desktop.h>

namespace brenvaldo::script {

/// Prints the addresses and files that a window would hand to the desktop.
class ScriptedDesktop : public platform::storage::Desktop
{
public:
    explicit ScriptedDesktop(const EventPrinter& printer);

    void openUrl(const QUrl& url) override;
    void reveal(const QString& path) override;

private:
    const EventPrinter& m_printer;
};

} // namespace brenvaldo::script
