// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/choice_controls.h>
#include <controls/containers.h>
#include <controls/control.h>

#include <QList>
#include <QString>

#include <initializer_list>
#include <variant>
#include <vector>

/// \file
/// How a panel is laid out, as data: the window's form builder and the tests read it.

namespace brenvaldo::panels {

/// One control of a row.
struct Field
{
    enum class Width { Narrow, Fill };

    controls::Control* control = nullptr;
    QString unit = {}; ///< shown inside a text field, such as "px"
    QString accessibleName
        = {}; ///< needed where the row's label does not name the control by itself
    Width width = Width::Fill;
};

/// Controls side by side behind one label; `hint` is a line of help below them.
struct Row
{
    QString label = {};
    QList<Field> fields = {};
    QString hint = {};
};

/// A heading in small capitals above a group of rows.
struct Heading
{
    QString text;
};

/// A sentence that explains the panel.
struct Note
{
    QString text;
};

/// The place of a holder inside the panel.
struct HolderPlace
{
    controls::Holder* holder = nullptr;
};

/// A column of a table: a field of its rows, under a title.
struct TableColumn
{
    QString key;
    QString title;
};

/// A table as wide as the panel; rows with a field "depth" are shown as a tree.
struct Table
{
    controls::TableView* table = nullptr;
    QList<TableColumn> columns = {};
    QString accessibleName = {};
    QString emptyText = {}; ///< shown in the table while it has no rows
    controls::Button* useButton = nullptr; ///< what Enter and a double click on a row press
    controls::Button* removeButton = nullptr; ///< what Delete presses
};

struct LayoutItem;
using Layout = std::vector<LayoutItem>;

/// Tabs with one layout a tab, in the order of the tab view's tabs.
struct Pages
{
    controls::TabView* tabs = nullptr;
    std::vector<Layout> pages;
};

struct LayoutItem
{
    std::variant<Row, Heading, Note, HolderPlace, Table, Pages> item;
};

/// The parts one below the other.
[[nodiscard]] Layout joined(std::initializer_list<Layout> parts);

/// A view that a holder can take: its name and what stands in it.
class PanelView
{
public:
    explicit PanelView(QString name);
    PanelView(const PanelView&) = delete;
    PanelView& operator=(const PanelView&) = delete;
    PanelView(PanelView&&) = delete;
    PanelView& operator=(PanelView&&) = delete;
    virtual ~PanelView() = default;

    [[nodiscard]] const QString& name() const { return m_name; }
    [[nodiscard]] const Layout& layout() const { return m_layout; }

    /// All controls that stand in the layout, tab views and holders among them, in reading order.
    [[nodiscard]] QList<controls::Control*> controls() const;

protected:
    void setLayout(Layout layout) { m_layout = std::move(layout); }

private:
    QString m_name;
    Layout m_layout;
};

} // namespace brenvaldo::panels
