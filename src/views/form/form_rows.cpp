// SPDX-License-Identifier: GPL-3.0-or-later
#include "form_rows.h"

#include "subscriptions.h"
#include "tab_bar.h"
#include "unit_field.h"

#include <controls/text_controls.h>
#include <views/look/muted_label.h>
#include <views/look/theme.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace brenvaldo::views {

namespace {

using controls::Control;

bool isTickOrButton(const panels::Field& field)
{
    return dynamic_cast<const controls::CheckBox*>(field.control)
        || dynamic_cast<const controls::Button*>(field.control);
}

bool isGrid(const Control* control)
{
    const auto* segments = dynamic_cast<const controls::SegmentedControl*>(control);
    return segments && segments->look() == controls::SegmentedControl::Look::PositionGrid;
}

bool isTall(const Control* control)
{
    return isGrid(control) || dynamic_cast<const controls::TextView*>(control)
        || dynamic_cast<const controls::TableView*>(control)
        || dynamic_cast<const controls::Matrix*>(control)
        || dynamic_cast<const controls::ImageView*>(control);
}

bool stretches(const panels::Field& field)
{
    return field.width == panels::Field::Width::Fill && !isTickOrButton(field)
        && !isGrid(field.control) && !dynamic_cast<const controls::ColorWell*>(field.control);
}

bool hasLabelColumn(const panels::Row& row, FormBuilder::Density density)
{
    if (density == FormBuilder::Density::Compact)
        return false;
    return !row.label.isEmpty() || (!row.fields.isEmpty() && isTickOrButton(row.fields.first()));
}

} // namespace

FormRow::FormRow(
    const FormBuilder& builder,
    const panels::Row& row,
    FormBuilder::Density density,
    QWidget* parent
)
    : QWidget(parent)
    , m_row(row)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(3);
    auto* line = new QHBoxLayout;
    line->setSpacing(Metrics::gap);
    column->addLayout(line);
    addLabel(density);
    addFields(builder);
    addHint();
    followFields();
}

void FormRow::addLabel(FormBuilder::Density density)
{
    const bool column = hasLabelColumn(m_row, density);
    if (!column && (m_row.label.isEmpty() || m_row.fields.size() != 1))
        return;
    m_label = new MutedLabel(m_row.label, this);
    if (column) {
        m_label->setFixedWidth(Metrics::labelColumn);
        m_label->setWordWrap(true);
    }
    const bool tall = !m_row.fields.isEmpty() && isTall(m_row.fields.first().control);
    m_label->setAlignment(Qt::AlignRight | (tall ? Qt::AlignTop : Qt::AlignVCenter));
    if (tall)
        m_label->setContentsMargins(0, 7, 0, 0);
    auto* line = static_cast<QHBoxLayout*>(layout()->itemAt(0)->layout());
    line->addWidget(m_label);
}

void FormRow::addFields(const FormBuilder& builder)
{
    auto* line = static_cast<QHBoxLayout*>(layout()->itemAt(0)->layout());
    bool filled = false;
    for (panels::Field field : m_row.fields) {
        if (field.accessibleName.isEmpty())
            field.accessibleName = m_row.label;
        QWidget* widget = builder.buildField(field, this);
        line->addWidget(widget, stretches(field) ? 1 : 0);
        filled = filled || stretches(field);
        if (m_label && !m_label->buddy())
            m_label->setBuddy(widget);
        auto* text = qobject_cast<QLineEdit*>(widget);
        if (text && !m_label)
            text->setPlaceholderText(field.accessibleName);
    }
    if (!filled)
        line->addStretch(1);
    const bool isIndented = m_label && m_row.label.isEmpty();
    if (isIndented && minimumSizeHint().width() > Metrics::formWidth)
        m_label->hide();
}

void FormRow::addHint()
{
    if (m_row.hint.isEmpty())
        return;
    auto* line = new QHBoxLayout;
    const bool column = m_label && m_label->minimumWidth() == Metrics::labelColumn;
    line->setContentsMargins(column ? Metrics::labelColumn + Metrics::gap : 0, 0, 0, 2);
    line->addWidget(mutedLabel(m_row.hint, this));
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
}

void FormRow::followFields()
{
    const auto follow = [this] {
        const auto& fields = m_row.fields;
        const bool shown = std::any_of(fields.begin(), fields.end(), [](const auto& field) {
            return !field.control->isHidden();
        });
        const bool enabled = std::any_of(fields.begin(), fields.end(), [](const auto& field) {
            return field.control->isEnabled();
        });
        setVisible(shown);
        if (m_label)
            m_label->setEnabled(enabled);
    };
    follow();
    for (const auto& field : m_row.fields)
        keepFor(*this, field.control->changed.connect(follow));
}

TabPages::TabPages(controls::TabView& tabs, const Binder& binder, QWidget* parent)
    : QWidget(parent)
    , m_tabs(tabs)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::rowGap + 2);
    auto* bar = new TabBar(this);
    bar->setDrawBase(true);
    bar->setExpanding(false);
    bar->setUsesScrollButtons(false);
    bar->setFocusPolicy(Qt::StrongFocus);
    binder.bind(*bar, tabs);
    bar->setAccessibleName(tr("Pages"));
    column->addWidget(bar);
    keepFor(*this, tabs.changed.connect([this] { showSelected(); }));
}

void TabPages::addPage(QWidget* page)
{
    m_pages.append(page);
    layout()->addWidget(page);
    showSelected();
}

void TabPages::showSelected()
{
    for (int index = 0; index < m_pages.size(); ++index)
        m_pages.at(index)->setVisible(index == m_tabs.selectedIndex());
}

QLabel* headingLabel(const QString& text, QWidget* parent)
{
    auto* label = new MutedLabel(text, parent);
    label->setFont(headingFont(parent->font()));
    label->setContentsMargins(0, 6, 0, 0);
    return label;
}

QLabel* mutedLabel(const QString& text, QWidget* parent)
{
    auto* label = new MutedLabel(text, parent);
    label->setWordWrap(true);
    label->setFont(scaledFont(parent->font(), 0.9));
    return label;
}

} // namespace brenvaldo::views
