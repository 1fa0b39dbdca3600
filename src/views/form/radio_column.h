// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QButtonGroup>
#include <QWidget>

namespace brenvaldo::views {

/// Radio buttons one below the other.
class RadioColumn : public QWidget
{
    Q_OBJECT

public:
    explicit RadioColumn(QWidget* parent = nullptr);

    void setTitles(const QStringList& titles);
    void select(int row);
    [[nodiscard]] int selected() const { return m_group.checkedId(); }

Q_SIGNALS:
    void picked(int row);

private:
    QStringList m_titles;
    QButtonGroup m_group;
};

} // namespace brenvaldo::views
