// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_desktop.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::script {

ScriptedDesktop::ScriptedDesktop(const EventPrinter& printer)
    : m_printer(printer)
{
}

void ScriptedDesktop::openUrl(const QUrl& url)
{
    m_printer.print(u"opened"_s, {url.toString(QUrl::FullyEncoded)});
}

void ScriptedDesktop::reveal(const QString& path) { openUrl(QUrl::fromLocalFile(path)); }

} // namespace brenvaldo::script
