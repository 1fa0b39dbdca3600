// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/file_chooser.h>
#include <workspace/run/run_journal.h>

#include <QDialog>

class QPushButton;
class QStackedLayout;
class QTreeWidget;

namespace brenvaldo::views {

/// The Run Journal: what each run did with each photo. It opens only when the user asks for it.
class JournalWindow : public QDialog
{
    Q_OBJECT

public:
    JournalWindow(
        workspace::RunJournal& journal, controls::FileChooser& chooser, QWidget* parent = nullptr
    );

    [[nodiscard]] int rowCount() const;

private:
    [[nodiscard]] QWidget* buttons();
    void add(const workspace::RunRecord& record);
    void save();
    void clear();
    void enableButtons();

    workspace::RunJournal& m_journal;
    controls::FileChooser& m_chooser;
    QTreeWidget* m_rows;
    QStackedLayout* m_stack;
    QList<QPushButton*> m_needRows; ///< of no use while the journal is empty
};

} // namespace brenvaldo::views
