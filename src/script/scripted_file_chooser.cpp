// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_file_chooser.h"

#include <platform/foundation/literals.h>

#include <QFileInfo>

namespace brenvaldo::script {

namespace {

bool canBeChosen(const QString& path, const controls::OpenPanel& panel)
{
    if (!panel.choosesFiles)
        return true;
    const QFileInfo file(path);
    if (file.isDir())
        return panel.choosesDirectories;
    return panel.allowedTypes.isEmpty()
        || panel.allowedTypes.contains(file.suffix(), Qt::CaseInsensitive);
}

} // namespace

ScriptedFileChooser::ScriptedFileChooser(const EventPrinter& printer)
    : m_printer(printer)
{
}

void ScriptedFileChooser::queueAnswer(const QStringList& paths) { m_answers.append(paths); }

void ScriptedFileChooser::queueCancel() { m_answers.append(std::nullopt); }

std::optional<QStringList> ScriptedFileChooser::open(const controls::OpenPanel& panel)
{
    const Answer answer = choosable(nextAnswer(), panel);
    report(u"open"_s, panel.message, answer);
    return answer;
}

std::optional<QString> ScriptedFileChooser::save(const controls::SavePanel& panel)
{
    const Answer answer = nextAnswer();
    report(u"save"_s, panel.message, answer);
    if (!answer)
        return std::nullopt;
    return answer->value(0);
}

ScriptedFileChooser::Answer ScriptedFileChooser::nextAnswer()
{
    return m_answers.isEmpty() ? std::nullopt : m_answers.takeFirst();
}

ScriptedFileChooser::Answer
ScriptedFileChooser::choosable(const Answer& answer, const controls::OpenPanel& panel)
{
    QStringList chosen;
    for (const QString& path : answer.value_or(QStringList())) {
        if (canBeChosen(path, panel))
            chosen.append(path);
    }
    return chosen.isEmpty() ? std::nullopt : Answer(chosen);
}

void ScriptedFileChooser::report(const QString& kind, const QString& message, const Answer& answer)
    const
{
    const QString text = answer ? answer->join(u' ') : u"cancel"_s;
    m_printer.print(u"panel"_s, {kind, message, text});
}

} // namespace brenvaldo::script
