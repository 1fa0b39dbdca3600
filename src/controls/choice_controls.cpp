// SPDX-License-Identifier: GPL-3.0-or-later
#include "choice_controls.h"

namespace brenvaldo::controls {

CheckBox::CheckBox(const QString& name, QString title, int state)
    : Control(name)
    , m_title(std::move(title))
    , m_state(state)
{
}

void CheckBox::setState(int state)
{
    const int wanted = state == 0 ? 0 : 1;
    if (m_state == wanted)
        return;
    m_state = wanted;
    changed();
}

IndexedControl::IndexedControl(const QString& name, QStringList titles, int index)
    : Control(name)
    , m_titles(std::move(titles))
    , m_index(m_titles.isEmpty() ? -1 : index)
{
}

void IndexedControl::setTitles(const QStringList& titles)
{
    m_titles = titles;
    m_index = titles.isEmpty() ? -1 : 0;
    changed();
}

void IndexedControl::selectIndex(int index)
{
    if (index < -1 || index >= count() || index == m_index)
        return;
    m_index = index;
    changed();
}

QString IndexedControl::selectedTitle() const { return m_titles.value(m_index); }

void ComboBox::selectItemWithObjectValue(const QString& value)
{
    selectIndex(static_cast<int>(titles().indexOf(value)));
}

SegmentedControl::SegmentedControl(const QString& name, QStringList titles, int index, Look look)
    : IndexedControl(name, std::move(titles), index)
    , m_look(look)
{
}

TabView::TabView(const QString& name, QList<Tab> tabs, int index)
    : Control(name)
    , m_tabs(std::move(tabs))
    , m_index(index)
{
}

void TabView::selectIndex(int index)
{
    if (index < 0 || index >= m_tabs.size() || index == m_index)
        return;
    m_index = index;
    changed();
}

} // namespace brenvaldo::controls
