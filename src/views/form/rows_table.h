// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/containers.h>
#include <panels/layout.h>

#include <QStandardItemModel>
#include <QTreeView>

namespace brenvaldo::views {

/// Shows rows of text under column titles; rows with a field "depth" become a tree.
class RowsTable : public QTreeView
{
    Q_OBJECT

public:
    /// Without `columns` every field is shown and no titles.
    explicit RowsTable(QList<panels::TableColumn> columns, QWidget* parent = nullptr);

    /// What an empty table says.
    void setEmptyText(const QString& text) { m_emptyText = text; }

    void setRows(const controls::ArrayController& content);

    /// Index into the content; -1 selects none.
    void selectRow(int row);
    [[nodiscard]] int selectedRow() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {80, sizeHint().height()}; }

Q_SIGNALS:
    /// The user has selected another row.
    void picked(int row);
    /// Enter or a double click on the selected row.
    void used();
    /// Delete on the selected row.
    void removed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QList<panels::TableColumn> shownColumns(const controls::ArrayController& content
    ) const;
    void fillModel(const controls::ArrayController& content);

    QList<panels::TableColumn> m_columns;
    QStandardItemModel m_model;
    QList<QStandardItem*> m_items; ///< first item of each row, owned by the model
    QList<QStringList> m_rows;
    QString m_emptyText;
    bool m_fills = false;
};

} // namespace brenvaldo::views
