// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_file_chooser.h"

namespace brenvaldo::script {

ScriptedFileChooser::ScriptedFileChooser(const EventPrinter& printer)
    : m_printer(printer)
{
}

void ScriptedFileChooser::queueAnswer(const QStringList& paths) { m_answers.append(paths); }

void ScriptedFileChooser::queueCancel() { m_answers.append(std::nullopt); }

std::optional<QStringList> ScriptedFileChooser::open(const controls::OpenPanel& panel)
{
    const Answer answer = nextAnswer();
    report(QStringLiteral("open"), panel.message, answer);
    return answer;
}

std::optional<QString> ScriptedFileChooser::save(const controls::SavePanel& panel)
{
    const Answer answer = nextAnswer();
    report(QStringLiteral("save"), panel.message, answer);
    if (!answer)
        return std::nullopt;
    return answer->value(0);
}

ScriptedFileChooser::Answer ScriptedFileChooser::nextAnswer()
{
    return m_answers.isEmpty() ? std::nullopt : m_answers.takeFirst();
}

void ScriptedFileChooser::report(const QString& kind, const QString& message, const Answer& answer)
    const
{
    const QString text = answer ? answer->join(u' ') : QStringLiteral("cancel");
    m_printer.print(QStringLiteral("panel"), {kind, message, text});
}

} // namespace brenvaldo::script
