// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "event_printer.h"
#include "scripted_file_chooser.h"

#include <platform/foundation/user_defaults.h>
#include <workspace/workspace.h>

#include <optional>

namespace brenvaldo::script {

/// Why a command was not understood; nothing: it was carried out.
using Misunderstanding = std::optional<QString>;

/// What the commands of a script work on.
struct ScriptContext
{
    workspace::Workspace& workspace;
    platform::UserDefaults& defaults;
    ScriptedFileChooser& chooser;
    const EventPrinter& printer;
};

/// One command of the script language.
class Command
{
public:
    explicit Command(const ScriptContext& context)
        : m_context(context)
    {
    }
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    Command(Command&&) = delete;
    Command& operator=(Command&&) = delete;
    virtual ~Command() = default;

    /// Carries the command out; `arguments` are as many as the command's table entry allows.
    [[nodiscard]] virtual Misunderstanding run(const QStringList& arguments) const = 0;

protected:
    [[nodiscard]] workspace::Workspace& workspace() const { return m_context.workspace; }
    [[nodiscard]] platform::UserDefaults& defaults() const { return m_context.defaults; }
    [[nodiscard]] ScriptedFileChooser& chooser() const { return m_context.chooser; }

    void print(const QString& kind, const QStringList& fields) const
    {
        m_context.printer.print(kind, fields);
    }

private:
    ScriptContext m_context;
};

} // namespace brenvaldo::script
