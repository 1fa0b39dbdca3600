// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command.h"

#include <map>
#include <memory>

namespace brenvaldo::script {

/// The commands by name, each with the words it takes.
class CommandTable
{
public:
    struct Words
    {
        static constexpr int unlimited = -1;

        QString usage; ///< such as "NAME VALUE"
        int least = 0;
        int most = 0;
    };

    void add(const QString& name, const Words& words, std::unique_ptr<Command> command);

    /// Runs the command that `words`, at least one, begin with.
    [[nodiscard]] Misunderstanding run(const QStringList& words) const;

private:
    struct Entry
    {
        Words words;
        std::unique_ptr<Command> command;
    };

    std::map<QString, Entry> m_entries;
};

/// set, show, state
void addControlCommands(CommandTable& table, const ScriptContext& context);
/// press, answer, defaults
void addProgramCommands(CommandTable& table, const ScriptContext& context);
/// preview
void addPreviewCommand(CommandTable& table, const ScriptContext& context);
/// open, select, tick, photos
void addListCommands(CommandTable& table, const ScriptContext& context);
/// row, rows
void addTableCommands(CommandTable& table, const ScriptContext& context);

} // namespace brenvaldo::script
