// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_services.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::script {

ScriptedPrinter::ScriptedPrinter(const EventPrinter& printer)
    : m_printer(printer)
{
}

void ScriptedPrinter::print(const QImage& picture, const QString& name)
{
    m_printer.print(
        u"printed"_s, {name, QString::number(picture.width()), QString::number(picture.height())}
    );
}

ScriptedSharing::ScriptedSharing(const EventPrinter& printer)
    : m_printer(printer)
{
}

void ScriptedSharing::show(const QString& path) { m_printer.print(u"shared"_s, {path}); }

} // namespace brenvaldo::script
