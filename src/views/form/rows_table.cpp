// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows_table.h"

#include <platform/foundation/literals.h>
#include <views/look/theme.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>

namespace brenvaldo::views {

namespace {

constexpr int rowRole = Qt::UserRole + 1;
constexpr int visibleRows = 6;
constexpr int lineHeight = 24;
constexpr int narrowestColumn = 110;

/// What stands behind a TAB is there for the program only.
QString shownText(const QString& value) { return value.section(QLatin1Char('\t'), 0, 0); }

} // namespace

RowsTable::RowsTable(QList<panels::TableColumn> columns, QWidget* parent)
    : QTreeView(parent)
    , m_columns(std::move(columns))
{
    setModel(&m_model);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHeaderHidden(m_columns.size() < 2); // the heading above says what a single column holds
    setTabKeyNavigation(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(narrowestColumn);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_fills)
            Q_EMIT picked(selectedRow());
    });
    connect(this, &QTreeView::doubleClicked, this, &RowsTable::used);
}

QSize RowsTable::sizeHint() const
{
    const int titles = isHeaderHidden() ? 0 : header()->sizeHint().height();
    return {240, visibleRows * lineHeight + titles + 2};
}

QList<panels::TableColumn> RowsTable::shownColumns(const controls::ArrayController& content) const
{
    if (!m_columns.isEmpty())
        return m_columns;
    QList<panels::TableColumn> all;
    for (const QString& key : content.columns()) {
        if (key != QLatin1String("depth"))
            all.append({.key = key, .title = key});
    }
    return all;
}

void RowsTable::setRows(const controls::ArrayController& content)
{
    if (m_rows == content.arrangedObjects() && m_model.columnCount() > 0)
        return;
    const QScopedValueRollback filling(m_fills, true);
    m_rows = content.arrangedObjects();
    fillModel(content);
}

void RowsTable::fillModel(const controls::ArrayController& content)
{
    const auto columns = shownColumns(content);
    const bool isTree = content.columns().contains(QLatin1String("depth"));
    m_model.clear();
    m_items.clear();
    QStringList titles;
    for (const auto& column : columns)
        titles.append(column.title);
    m_model.setHorizontalHeaderLabels(titles);
    setRootIsDecorated(isTree);

    QList<QStandardItem*> branch{m_model.invisibleRootItem()};
    for (int row = 0; row < m_rows.size(); ++row) {
        QList<QStandardItem*> cells;
        for (const auto& column : columns) {
            auto* cell = new QStandardItem(shownText(content.value(row, column.key)));
            cell->setToolTip(cell->text());
            cells.append(cell);
        }
        cells.first()->setData(row, rowRole);
        const int depth = isTree ? content.value(row, u"depth"_s).toInt() : 0;
        branch.resize(std::clamp(depth + 1, 1, static_cast<int>(branch.size())));
        branch.last()->appendRow(cells);
        branch.append(cells.first());
        m_items.append(cells.first());
    }
    for (int column = 0; column + 1 < columns.size(); ++column)
        resizeColumnToContents(column);
}

void RowsTable::selectRow(int row)
{
    if (row == selectedRow())
        return;
    const QScopedValueRollback filling(m_fills, true);
    if (row < 0 || row >= m_items.size()) {
        selectionModel()->clear();
        return;
    }
    setCurrentIndex(m_items.at(row)->index());
}

void RowsTable::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_emptyText.isEmpty() || !m_items.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(colors().muted);
    painter.drawText(
        viewport()->rect().adjusted(16, 8, -16, -8), Qt::AlignCenter | Qt::TextWordWrap, m_emptyText
    );
}

void RowsTable::keyPressEvent(QKeyEvent* event)
{
    // The row that got the focus is the first one that an arrow reaches.
    const bool isFirstStep = selectedRow() < 0 && currentIndex().isValid();
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        isFirstStep ? setCurrentIndex(currentIndex()) : QTreeView::keyPressEvent(event);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT used();
        return;
    case Qt::Key_Delete:
        Q_EMIT removed();
        return;
    default:
        QTreeView::keyPressEvent(event);
    }
}

int RowsTable::selectedRow() const
{
    const auto selected = selectionModel()->selectedRows();
    return selected.isEmpty() ? -1 : selected.first().data(rowRole).toInt();
}

} // namespace brenvaldo::views
