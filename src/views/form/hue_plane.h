// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

namespace brenvaldo::views {

/// A plane of saturation (to the right) and brightness (upward) above a bar of hues.
///
/// The arrow keys move the point by a hundredth; with Shift, left and right turn the hue.
class HuePlane : public QWidget
{
    Q_OBJECT

public:
    explicit HuePlane(QWidget* parent = nullptr);

    void setColor(const QColor& color);
    [[nodiscard]] QColor color() const;

    [[nodiscard]] QSize sizeHint() const override { return {228, 178}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void picked(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Part { Plane, Bar };

    [[nodiscard]] QRectF planeRect() const;
    [[nodiscard]] QRectF barRect() const;
    void pickAt(const QPointF& position);
    void tell();

    double m_hue = 0; ///< 0 to 1, as the two below
    double m_saturation = 0;
    double m_value = 0;
    Part m_held = Part::Plane;
};

} // namespace brenvaldo::views
