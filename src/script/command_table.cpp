// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_table.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::script {

void CommandTable::add(const QString& name, const Words& words, std::unique_ptr<Command> command)
{
    m_entries[name] = {.words = words, .command = std::move(command)};
}

Misunderstanding CommandTable::run(const QStringList& words) const
{
    const auto found = m_entries.find(words.first());
    if (found == m_entries.end())
        return u"unknown command \"%1\""_s.arg(words.first());

    const auto& [name, entry] = *found;
    const QStringList arguments = words.mid(1);
    const bool tooMany
        = entry.words.most != Words::unlimited && arguments.size() > entry.words.most;
    if (arguments.size() < entry.words.least || tooMany)
        return u"usage: %1 %2"_s.arg(name, entry.words.usage).trimmed();
    return entry.command->run(arguments);
}

} // namespace brenvaldo::script
