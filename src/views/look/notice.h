// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace brenvaldo::views {

/// A sentence on a strip of its own that the eye can't miss.
class Notice : public QWidget
{
    Q_OBJECT

public:
    explicit Notice(const QString& text, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace brenvaldo::views
