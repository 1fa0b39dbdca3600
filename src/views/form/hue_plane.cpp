// SPDX-License-Identifier: GPL-3.0-or-later
#include "hue_plane.h"

#include <views/look/theme.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace brenvaldo::views {

namespace {

constexpr double barHeight = 14;
constexpr double gap = 10;
constexpr double step = 0.01;

double limited(double value) { return std::clamp(value, 0.0, 1.0); }

void paintKnob(QPainter& painter, const QPointF& centre, const QColor& fill)
{
    painter.setBrush(fill);
    painter.setPen(QPen(QColor(0, 0, 0, 90), 4));
    painter.drawEllipse(centre, 6, 6);
    painter.setPen(QPen(Qt::white, 2));
    painter.drawEllipse(centre, 6, 6);
}

} // namespace

HuePlane::HuePlane(QWidget* parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Saturation, brightness and hue"));
}

void HuePlane::setColor(const QColor& color)
{
    const double hue = color.hsvHueF();
    if (hue >= 0)
        m_hue = hue;
    m_saturation = color.hsvSaturationF();
    m_value = color.valueF();
    update();
}

QColor HuePlane::color() const
{
    return QColor::fromHsvF(
        static_cast<float>(m_hue), static_cast<float>(m_saturation), static_cast<float>(m_value)
    );
}

QRectF HuePlane::planeRect() const { return QRectF(rect()).adjusted(0, 0, 0, -barHeight - gap); }

QRectF HuePlane::barRect() const { return {0, height() - barHeight, double(width()), barHeight}; }

void HuePlane::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    const QRectF plane = planeRect();
    QLinearGradient saturation(plane.topLeft(), plane.topRight());
    saturation.setColorAt(0, Qt::white);
    saturation.setColorAt(1, QColor::fromHsvF(static_cast<float>(m_hue), 1, 1));
    QLinearGradient value(plane.topLeft(), plane.bottomLeft());
    value.setColorAt(0, QColor(0, 0, 0, 0));
    value.setColorAt(1, Qt::black);
    for (const auto& gradient : {saturation, value}) {
        painter.setBrush(gradient);
        painter.drawRoundedRect(plane, 4, 4);
    }

    const QRectF bar = barRect();
    QLinearGradient hues(bar.topLeft(), bar.topRight());
    for (int sixth = 0; sixth <= 6; ++sixth)
        hues.setColorAt(sixth / 6.0, QColor::fromHsv(sixth * 60 % 360, 255, 255));
    painter.setBrush(hues);
    painter.drawRoundedRect(bar, barHeight / 2, barHeight / 2);

    paintKnob(
        painter,
        {plane.left() + m_saturation * plane.width(), plane.bottom() - m_value * plane.height()},
        color()
    );
    paintKnob(
        painter,
        {bar.left() + m_hue * bar.width(), bar.center().y()},
        QColor::fromHsvF(static_cast<float>(m_hue), 1, 1)
    );
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colors().accent, 2));
        painter.drawRoundedRect(plane.adjusted(1, 1, -1, -1), 4, 4);
    }
}

void HuePlane::pickAt(const QPointF& position)
{
    if (m_held == Part::Bar) {
        m_hue = limited(position.x() / barRect().width());
    } else {
        m_saturation = limited(position.x() / planeRect().width());
        m_value = limited(1 - position.y() / planeRect().height());
    }
    tell();
}

void HuePlane::tell()
{
    update();
    Q_EMIT picked(color());
}

void HuePlane::mousePressEvent(QMouseEvent* event)
{
    m_held = event->position().y() > planeRect().bottom() ? Part::Bar : Part::Plane;
    pickAt(event->position());
}

void HuePlane::mouseMoveEvent(QMouseEvent* event) { pickAt(event->position()); }

void HuePlane::keyPressEvent(QKeyEvent* event)
{
    const bool turnsHue = event->modifiers().testFlag(Qt::ShiftModifier);
    double& across = turnsHue ? m_hue : m_saturation;
    switch (event->key()) {
    case Qt::Key_Left:
        across = limited(across - step);
        return tell();
    case Qt::Key_Right:
        across = limited(across + step);
        return tell();
    case Qt::Key_Up:
        m_value = limited(m_value + step);
        return tell();
    case Qt::Key_Down:
        m_value = limited(m_value - step);
        return tell();
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace brenvaldo::views
