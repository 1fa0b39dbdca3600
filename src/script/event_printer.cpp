// SPDX-License-Identifier: GPL-3.0-or-later
#include "event_printer.h"

#include <platform/foundation/literals.h>

#include <ostream>

namespace brenvaldo::script {

namespace {

QString escaped(QString field)
{
    field.replace(u'\\', u"\\\\"_s);
    field.replace(u'\t', u"\\t"_s);
    field.replace(u'\n', u"\\n"_s);
    field.replace(u'\r', u"\\r"_s);
    return field;
}

} // namespace

EventPrinter::EventPrinter(std::ostream& out)
    : m_out(out)
{
}

void EventPrinter::print(const QString& kind, const QStringList& fields) const
{
    QString line = kind;
    for (const QString& field : fields)
        line += u'\t' + escaped(field);
    m_out << line.toStdString() << std::endl;
}

} // namespace brenvaldo::script
