// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QColor>

namespace brenvaldo::views {

/// A field that shows a colour; pressed, it opens a panel in which another can be chosen.
class ColourWell : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ColourWell(QWidget* parent = nullptr);

    void setColour(const QColor& colour);
    [[nodiscard]] const QColor& colour() const { return m_colour; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The user has chosen a colour in the panel.
    void chosen(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void openPanel();
    void choose(const QColor& colour);

    QColor m_colour = Qt::black;
};

} // namespace brenvaldo::views
