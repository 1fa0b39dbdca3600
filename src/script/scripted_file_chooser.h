// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "event_printer.h"

#include <controls/file_chooser.h>

#include <QList>

namespace brenvaldo::script {

/// Answers open and save panels from a queue, and prints each panel with its answer.
///
/// An open panel takes no file that it would not let a user choose: such paths fall out of the
/// answer. A panel for which no answer waits, or of whose answer nothing is left, counts as
/// cancelled.
class ScriptedFileChooser : public controls::FileChooser
{
public:
    explicit ScriptedFileChooser(const EventPrinter& printer);

    /// Queues the absolute paths that the next panel is answered with.
    void queueAnswer(const QStringList& paths);
    void queueCancel();

    [[nodiscard]] std::optional<QStringList> open(const controls::OpenPanel& panel) override;
    [[nodiscard]] std::optional<QString> save(const controls::SavePanel& panel) override;

private:
    using Answer = std::optional<QStringList>;

    [[nodiscard]] Answer nextAnswer();
    [[nodiscard]] static Answer choosable(const Answer& answer, const controls::OpenPanel& panel);
    void report(const QString& kind, const QString& message, const Answer& answer) const;

    const EventPrinter& m_printer;
    QList<Answer> m_answers;
};

} // namespace brenvaldo::script
