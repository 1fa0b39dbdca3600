// SPDX-License-Identifier: GPL-3.0-or-later
#include "radio_column.h"

#include <QRadioButton>
#include <QVBoxLayout>

namespace brenvaldo::views {

RadioColumn::RadioColumn(QWidget* parent)
    : QWidget(parent)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 3, 0, 3);
    column->setSpacing(2);
    connect(&m_group, &QButtonGroup::idClicked, this, &RadioColumn::picked);
}

void RadioColumn::setTitles(const QStringList& titles)
{
    if (titles == m_titles)
        return;
    for (QAbstractButton* button : m_group.buttons()) {
        m_group.removeButton(button);
        button->deleteLater();
    }
    m_titles = titles;
    for (int row = 0; row < titles.size(); ++row) {
        auto* button = new QRadioButton(titles.at(row), this);
        m_group.addButton(button, row);
        layout()->addWidget(button);
    }
}

void RadioColumn::select(int row)
{
    if (QAbstractButton* button = m_group.button(row))
        button->setChecked(true);
}

} // namespace brenvaldo::views
