// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control.h"

namespace brenvaldo::controls {

/// A box that is ticked (state 1) or not (state 0).
class CheckBox : public Control
{
public:
    explicit CheckBox(const QString& name, QString title = {}, int state = 0);

    [[nodiscard]] const QString& title() const { return m_title; }
    [[nodiscard]] int state() const { return m_state; }
    [[nodiscard]] bool isOn() const { return m_state == 1; }
    /// Any value other than 0 ticks the box.
    void setState(int state);

private:
    QString m_title;
    int m_state;
};

/// A control that selects one of a list of titles, or none (index -1).
class IndexedControl : public Control
{
public:
    IndexedControl(const QString& name, QStringList titles, int index = 0);

    [[nodiscard]] const QStringList& titles() const { return m_titles; }
    [[nodiscard]] int count() const { return static_cast<int>(m_titles.size()); }

    /// Replaces the titles and selects the first, or none of an empty list.
    void setTitles(const QStringList& titles);

    [[nodiscard]] int selectedIndex() const { return m_index; }

    /// Selects `index`; -1 selects none, an index outside of the list changes nothing.
    void selectIndex(int index);

    /// "" when nothing is selected.
    [[nodiscard]] QString selectedTitle() const;

private:
    QStringList m_titles;
    int m_index;
};

/// A pop-up menu button.
class PopUpButton : public IndexedControl
{
public:
    using IndexedControl::IndexedControl;

    [[nodiscard]] int indexOfSelectedItem() const { return selectedIndex(); }
    [[nodiscard]] QString titleOfSelectedItem() const { return selectedTitle(); }
    void selectItemAtIndex(int index) { selectIndex(index); }
};

/// A list of texts of which one is selected.
class ComboBox : public IndexedControl
{
public:
    using IndexedControl::IndexedControl;

    [[nodiscard]] int indexOfSelectedItem() const { return selectedIndex(); }
    [[nodiscard]] QString objectValueOfSelectedItem() const { return selectedTitle(); }
    void selectItemAtIndex(int index) { selectIndex(index); }
    /// A value that is not in the list selects none.
    void selectItemWithObjectValue(const QString& value);
};

/// A row of segments of which one is selected.
class SegmentedControl : public IndexedControl
{
public:
    enum class Look { Row, PositionGrid };

    SegmentedControl(const QString& name, QStringList titles, int index = 0, Look look = Look::Row);

    [[nodiscard]] Look look() const { return m_look; }
    [[nodiscard]] int selectedSegment() const { return selectedIndex(); }
    void setSelectedSegment(int segment) { selectIndex(segment); }

private:
    Look m_look;
};

/// A column of radio buttons.
class Matrix : public IndexedControl
{
public:
    using IndexedControl::IndexedControl;

    [[nodiscard]] int selectedRow() const { return selectedIndex(); }
    void selectRow(int row) { selectIndex(row); }
};

/// Tabs, each with an identifier for the code and a label for the user.
class TabView : public Control
{
public:
    struct Tab
    {
        QString identifier;
        QString label;
    };

    TabView(const QString& name, QList<Tab> tabs, int index = 0);

    [[nodiscard]] const QList<Tab>& tabs() const { return m_tabs; }
    [[nodiscard]] int selectedIndex() const { return m_index; }
    void selectIndex(int index);
    [[nodiscard]] const Tab& selectedTab() const { return m_tabs.at(m_index); }
    [[nodiscard]] const QString& selectedLabel() const { return selectedTab().label; }
    [[nodiscard]] const QString& selectedIdentifier() const { return selectedTab().identifier; }

private:
    QList<Tab> m_tabs;
    int m_index;
};

} // namespace brenvaldo::controls
