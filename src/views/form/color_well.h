// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QColor>

namespace brenvaldo::views {

/// A field that shows a colour; pressed, it opens a panel in which another can be chosen.
class ColorWell : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ColorWell(QWidget* parent = nullptr);

    void setColor(const QColor& color);
    [[nodiscard]] const QColor& color() const { return m_color; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The user has chosen a colour in the panel.
    void chosen(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void openPanel();
    void choose(const QColor& color);

    QColor m_color = Qt::black;
};

} // namespace brenvaldo::views
