// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme.h"

#include <QPainter>
#include <QWidget>

namespace brenvaldo::views {

/// A line of one pixel between two areas.
class Hairline : public QWidget
{
public:
    explicit Hairline(Qt::Orientation orientation, QWidget* parent = nullptr)
        : QWidget(parent)
    {
        if (orientation == Qt::Horizontal)
            setFixedHeight(1);
        else
            setFixedWidth(1);
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), colors().border); }
};

} // namespace brenvaldo::views
