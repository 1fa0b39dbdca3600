// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_table.h"
#include "event_watcher.h"
#include "scripted_desktop.h"
#include "scripted_services.h"

#include <QByteArrayView>

namespace brenvaldo::script {

/// The first command of a script that was not understood.
struct ScriptFault
{
    int line = 0; ///< counted from 1
    QString reason;
};

/// The program without a window: a workspace that scripts drive and whose events are printed.
///
/// Needs a QGuiApplication and a started `platform::Engine`.
class ScriptProgram
{
public:
    /// Starts the workspace; events are printed on `out`.
    explicit ScriptProgram(std::ostream& out);
    ScriptProgram(const ScriptProgram&) = delete;
    ScriptProgram& operator=(const ScriptProgram&) = delete;
    ScriptProgram(ScriptProgram&&) = delete;
    ScriptProgram& operator=(ScriptProgram&&) = delete;
    /// Ends the program as the closing of its window would.
    ~ScriptProgram();

    /// Carries out one line after the other up to the first that is not understood.
    [[nodiscard]] std::optional<ScriptFault> run(std::istream& script);

    [[nodiscard]] workspace::Workspace& workspace() { return m_workspace; }

private:
    [[nodiscard]] Misunderstanding carryOut(QByteArrayView line);

    EventPrinter m_printer;
    ScriptedFileChooser m_chooser;
    ScriptedDesktop m_desktop;
    platform::UserDefaults m_defaults;
    ScriptedPrinter m_paper;
    ScriptedSharing m_sharing;
    workspace::Workspace m_workspace;
    EventWatcher m_watcher;
    CommandTable m_commands;
};

/// The standard streams of the process.
struct Streams
{
    std::istream& in;
    std::ostream& out;
    std::ostream& errors;
};

/// Runs the scripts in `files`, or the one on the standard input when there are none.
///
/// Answers the exit status: 0, or 2 after naming the line that was not understood, or the file that
/// can't be read, on the error stream.
[[nodiscard]] int runScripts(const QStringList& files, const Streams& streams);

} // namespace brenvaldo::script
