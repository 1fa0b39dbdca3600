// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal_window.h"

#include "function_title.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>
#include <platform/storage/atomic_file.h>
#include <views/form/subscriptions.h>
#include <views/look/muted_label.h>
#include <views/look/theme.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QStackedLayout>
#include <QTreeWidget>

namespace brenvaldo::views {

namespace {

constexpr int wordColumn = 4;
constexpr int buttonWidth = 96;

} // namespace

JournalWindow::JournalWindow(
    workspace::RunJournal& journal, controls::FileChooser& chooser, QWidget* parent
)
    : QDialog(parent)
    , m_journal(journal)
    , m_chooser(chooser)
    , m_rows(new QTreeWidget(this))
    , m_stack(new QStackedLayout)
{
    setObjectName(u"runJournal"_s);
    setWindowTitle(tr("Run Journal"));
    setAccessibleName(windowTitle());
    resize(860, 420);
    m_rows->setHeaderLabels({tr("Time"), tr("Function"), tr("Photo"), tr("Target"), tr("Result")});
    m_rows->setRootIsDecorated(false);
    m_rows->setUniformRowHeights(true);
    m_rows->setAccessibleName(tr("Results of the runs"));
    const int widths[]{80, 130, 180, 320};
    for (int column = 0; column < wordColumn; ++column)
        m_rows->setColumnWidth(column, widths[column]);
    auto* empty
        = new MutedLabel(tr("Nothing has run yet. Each photo of a run gets a line here."), this);
    empty->setAlignment(Qt::AlignCenter);
    m_stack->addWidget(empty);
    m_stack->addWidget(m_rows);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Metrics::margin, Metrics::margin, Metrics::margin, Metrics::margin);
    column->addLayout(m_stack, 1);
    column->addWidget(buttons());
    enableButtons();
    for (const auto& record : journal.records())
        add(record);
    keepFor(*this, journal.recorded.connect([this](const auto& record) { add(record); }));
}

QWidget* JournalWindow::buttons()
{
    auto* area = new QWidget(this);
    auto* line = new QHBoxLayout(area);
    line->setContentsMargins(0, 4, 0, 0);
    line->setSpacing(Metrics::gap);
    auto* save = m_needRows.emplaceBack(new QPushButton(tr("&Save as text\u2026"), area));
    auto* clear = m_needRows.emplaceBack(new QPushButton(tr("&Clear"), area));
    auto* close = new QPushButton(tr("Cl&ose"), area);
    line->addWidget(save);
    line->addWidget(clear);
    line->addStretch(1);
    line->addWidget(close);
    for (QPushButton* button : {save, clear, close}) {
        button->setAutoDefault(false);
        button->setMinimumWidth(buttonWidth);
        button->setAccessibleName(button->text().remove(QLatin1Char('&')));
    }
    connect(save, &QPushButton::clicked, this, &JournalWindow::save);
    connect(clear, &QPushButton::clicked, this, &JournalWindow::clear);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    return area;
}

int JournalWindow::rowCount() const { return m_rows->topLevelItemCount(); }

void JournalWindow::add(const workspace::RunRecord& record)
{
    auto* row = new QTreeWidgetItem(
        m_rows,
        {record.time.time().toString(u"HH:mm:ss"_s),
         functionTitle(record.function),
         platform::lastPathComponent(record.source),
         record.target,
         text(record.word)}
    );
    row->setToolTip(0, record.time.toString(Qt::ISODate));
    row->setToolTip(2, record.source);
    row->setToolTip(3, record.target);
    m_stack->setCurrentIndex(1);
    m_rows->scrollToItem(row);
    enableButtons();
}

void JournalWindow::save()
{
    const auto path = m_chooser.save(
        {.message = tr("Save the Run Journal"),
         .suggestedName = u"Run Journal.txt"_s,
         .allowedTypes = {u"txt"_s}}
    );
    if (path && !platform::storage::writeFileAtomically(*path, m_journal.asText().toUtf8()))
        platform::log(u"The Run Journal could not be written to "_s + *path);
}

void JournalWindow::clear()
{
    m_journal.clear();
    m_rows->clear();
    m_stack->setCurrentIndex(0);
    enableButtons();
}

void JournalWindow::enableButtons()
{
    for (QPushButton* button : m_needRows)
        button->setEnabled(rowCount() > 0);
}

} // namespace brenvaldo::views
