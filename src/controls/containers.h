// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control.h"

#include <QList>

namespace brenvaldo::controls {

/// A button with a title, and a picture that tells whether it is the pressed one of its group.
class Button : public Control
{
public:
    /// An empty action is a button that does nothing.
    Button(const QString& name, QString title, const QString& action);

    [[nodiscard]] const QString& title() const { return m_title; }
    /// Name of the picture shown on the button, such as "bgBlue.png".
    [[nodiscard]] const QString& image() const { return m_image; }
    void setImage(const QString& image);

private:
    QString m_title;
    QString m_image;
};

/// A place of the window into which panel views are put, by their names.
class Holder : public Control
{
public:
    using Control::Control;

    [[nodiscard]] const QStringList& views() const { return m_views; }
    [[nodiscard]] bool isEmpty() const { return m_views.isEmpty(); }
    void removeAllViews();
    void addView(const QString& view);
    /// Removes what stands in the holder and puts `view` there.
    void replaceViews(const QString& view);

private:
    QStringList m_views;
};

/// A window attached to the main window while it is open.
class Sheet : public Control
{
public:
    using Control::Control;

    [[nodiscard]] bool isOpen() const { return m_open; }
    void open();
    void close();

private:
    bool m_open = false;
};

/// The rows behind a table, each a list of fields in the order of `columns`.
class ArrayController : public Control
{
public:
    ArrayController(const QString& name, QStringList columns);

    [[nodiscard]] const QStringList& columns() const { return m_columns; }
    [[nodiscard]] const QList<QStringList>& arrangedObjects() const { return m_rows; }
    void addObject(const QStringList& row);
    void removeAllObjects();
    void removeObjectAtIndex(int index);
    void setObjects(const QList<QStringList>& rows);

    /// Value of `column` in the row at `index`; "" when there is no such row or column.
    [[nodiscard]] QString value(int index, const QString& column) const;

private:
    QStringList m_columns;
    QList<QStringList> m_rows;
};

/// A table that shows the rows of an array controller; one of them is selected (-1: none).
class TableView : public Control
{
public:
    TableView(const QString& name, const ArrayController& content);

    /// Where the rows come from.
    [[nodiscard]] const ArrayController& content() const { return m_content; }

    [[nodiscard]] int selectedRow() const { return m_selectedRow; }
    /// Selects `row`; -1 selects none, a row that does not exist changes nothing.
    void selectRow(int row);

private:
    const ArrayController& m_content;
    platform::Subscription m_contentChanged; ///< a row that is gone is no longer selected
    int m_selectedRow = -1;
};

} // namespace brenvaldo::controls
