// SPDX-License-Identifier: GPL-3.0-or-later
#include "script_program.h"

#include "words.h"

#include <platform/foundation/handled_exception.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/run_loop.h>

#include <QFile>

#include <fstream>
#include <string>

namespace brenvaldo::script {

namespace {

constexpr int understood = 0;
constexpr int notUnderstood = 2;

/// Longest time that events of the program's own may take between two commands.
constexpr std::chrono::seconds longestPause{1};

} // namespace

ScriptProgram::ScriptProgram(std::ostream& out)
    : m_printer(out)
    , m_chooser(m_printer)
    , m_desktop(m_printer)
    , m_paper(m_printer)
    , m_sharing(m_printer)
    , m_workspace(
          {.chooser = m_chooser,
           .desktop = m_desktop,
           .defaults = m_defaults,
           .printer = &m_paper,
           .sharing = &m_sharing}
      )
    , m_watcher(m_workspace, m_printer)
{
    const ScriptContext context{
        .workspace = m_workspace,
        .defaults = m_defaults,
        .chooser = m_chooser,
        .printer = m_printer,
    };
    addControlCommands(m_commands, context);
    addProgramCommands(m_commands, context);
    addPreviewCommand(m_commands, context);
    addListCommands(m_commands, context);
    addTableCommands(m_commands, context);
    m_workspace.start();
}

ScriptProgram::~ScriptProgram() { m_workspace.lastWindowClosed(); }

std::optional<ScriptFault> ScriptProgram::run(std::istream& script)
{
    std::string line;
    for (int number = 1; std::getline(script, line); ++number) {
        if (const auto reason = carryOut(line))
            return ScriptFault{.line = number, .reason = *reason};
    }
    return std::nullopt;
}

Misunderstanding ScriptProgram::carryOut(QByteArrayView line)
{
    const Words found = wordsOfLine(line);
    if (!found.fault.isEmpty())
        return found.fault;
    if (found.words.isEmpty())
        return std::nullopt;
    try {
        const Misunderstanding misunderstanding = m_commands.run(found.words);
        platform::pumpEvents(longestPause);
        return misunderstanding;
    } catch (...) {
        const platform::Exception exception = platform::handledException();
        platform::log(found.words.first() + u": "_s + exception.reason());
        m_watcher.report(exception);
        return std::nullopt;
    }
}

int runScripts(const QStringList& files, const Streams& streams)
{
    ScriptProgram program(streams.out);
    const auto run = [&](std::istream& script) {
        const auto fault = program.run(script);
        if (fault) {
            const QString text = u"line %1: %2"_s.arg(fault->line).arg(fault->reason);
            streams.errors << text.toStdString() << std::endl;
        }
        return fault ? notUnderstood : understood;
    };
    if (files.isEmpty())
        return run(streams.in);
    for (const QString& file : files) {
        std::ifstream script(QFile::encodeName(file).toStdString());
        const int status = run(script);
        if (!script.eof() && status == understood) {
            streams.errors << file.toStdString() << " can't be read" << std::endl;
            return notUnderstood;
        }
        if (status != understood)
            return status;
    }
    return understood;
}

} // namespace brenvaldo::script
