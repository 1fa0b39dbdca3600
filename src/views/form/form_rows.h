// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "form_builder.h"

#include <QWidget>

class QLabel;
class QTabBar;

namespace brenvaldo::views {

/// A row of a form: label, fields side by side, a hint below. It is hidden while all of its
/// controls are, and its label shows when all of them are disabled.
class FormRow : public QWidget
{
public:
    FormRow(
        const FormBuilder& builder,
        const panels::Row& row,
        FormBuilder::Density density,
        QWidget* parent
    );

private:
    void addLabel(FormBuilder::Density density);
    void addFields(const FormBuilder& builder);
    void addHint();
    void followFields();

    panels::Row m_row;
    QLabel* m_label = nullptr;
};

/// Pages of which the one of the selected tab shows; only that one takes room.
class TabPages : public QWidget
{
public:
    TabPages(controls::TabView& tabs, const Binder& binder, QWidget* parent);

    void addPage(QWidget* page);

private:
    void showSelected();

    controls::TabView& m_tabs;
    QList<QWidget*> m_pages;
};

/// A heading in small capitals.
[[nodiscard]] QLabel* headingLabel(const QString& text, QWidget* parent);

/// A sentence in the muted colour that wraps.
[[nodiscard]] QLabel* mutedLabel(const QString& text, QWidget* parent);

} // namespace brenvaldo::views
