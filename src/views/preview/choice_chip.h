// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QButtonGroup>
#include <QWidget>

namespace brenvaldo::views {

/// A small dark plate over the preview with a few choices, such as "Fit | 1:1".
class ChoiceChip : public QWidget
{
    Q_OBJECT

public:
    explicit ChoiceChip(const QStringList& titles, QWidget* parent = nullptr);

    void select(int index);

Q_SIGNALS:
    void picked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QButtonGroup m_group;
};

/// Paints the ground of such a plate.
void paintChip(QPainter& painter, const QRect& rect);

} // namespace brenvaldo::views
