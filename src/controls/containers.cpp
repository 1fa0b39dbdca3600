// SPDX-License-Identifier: GPL-3.0-or-later
#include "containers.h"

namespace brenvaldo::controls {

Button::Button(const QString& name, QString title, const QString& action)
    : Control(name)
    , m_title(std::move(title))
{
    if (!action.isEmpty())
        addAction(action);
}

void Button::setImage(const QString& image)
{
    m_image = image;
    changed();
}

void Holder::removeAllViews()
{
    if (m_views.isEmpty())
        return;
    m_views.clear();
    changed();
}

void Holder::addView(const QString& view)
{
    m_views.removeAll(view);
    m_views.append(view);
    changed();
}

void Holder::replaceViews(const QString& view)
{
    if (m_views == QStringList{view})
        return;
    m_views = {view};
    changed();
}

void Sheet::open()
{
    m_open = true;
    changed();
}

void Sheet::close()
{
    m_open = false;
    changed();
}

TableView::TableView(const QString& name, const ArrayController& content)
    : Control(name)
    , m_content(content)
    , m_contentChanged(content.changed.connect([this] {
        if (m_selectedRow >= m_content.arrangedObjects().size())
            selectRow(-1);
    }))
{
}

void TableView::selectRow(int row)
{
    if (row == m_selectedRow || row < -1 || row >= m_content.arrangedObjects().size())
        return;
    m_selectedRow = row;
    changed();
}

ArrayController::ArrayController(const QString& name, QStringList columns)
    : Control(name)
    , m_columns(std::move(columns))
{
}

void ArrayController::addObject(const QStringList& row)
{
    m_rows.append(row);
    changed();
}

void ArrayController::removeAllObjects()
{
    m_rows.clear();
    changed();
}

void ArrayController::removeObjectAtIndex(int index)
{
    if (index < 0 || index >= m_rows.size())
        return;
    m_rows.removeAt(index);
    changed();
}

void ArrayController::setObjects(const QList<QStringList>& rows)
{
    m_rows = rows;
    changed();
}

QString ArrayController::value(int index, const QString& column) const
{
    return m_rows.value(index).value(m_columns.indexOf(column));
}

} // namespace brenvaldo::controls
