// SPDX-License-Identifier: GPL-3.0-or-later
#include "fade_slider.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>

namespace brenvaldo::views {

namespace {

constexpr int stripHeight = 14;
constexpr int gap = 4;

QSize withStrip(const QSize& slider) { return slider + QSize(0, stripHeight + gap); }

/// From a colour to nothing, up to a share of the length.
QLinearGradient fadeOver(const QRect& area, const QColor& color, double share)
{
    QLinearGradient gradient(area.left(), 0, area.right() + 1, 0);
    QColor gone = color;
    gone.setAlpha(0);
    gradient.setColorAt(0, color);
    gradient.setColorAt(std::max(share, 0.01), gone);
    return gradient;
}

} // namespace

FadeSlider::FadeSlider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent)
{
}

QSize FadeSlider::sizeHint() const { return withStrip(QSlider::sizeHint()); }

QSize FadeSlider::minimumSizeHint() const { return withStrip(QSlider::minimumSizeHint()); }

/// As wide as the handle's middle can move.
QRect FadeSlider::strip() const
{
    const int inset = style()->pixelMetric(QStyle::PM_SliderLength, nullptr, this) / 2;
    return {inset, 0, width() - 2 * inset, stripHeight};
}

void FadeSlider::initStyleOption(QStyleOptionSlider* option) const
{
    QSlider::initStyleOption(option);
    option->rect.setTop(stripHeight + gap);
}

void FadeSlider::paintEvent(QPaintEvent* event)
{
    const double share = double(value() - minimum()) / std::max(1, maximum() - minimum());
    const QRect area = strip();
    QPainter painter(this);
    painter.fillRect(area, palette().base());
    painter.fillRect(area, QBrush(palette().color(QPalette::Mid), Qt::Dense6Pattern));
    painter.fillRect(area, fadeOver(area, palette().color(QPalette::Text), share));
    painter.end();
    QSlider::paintEvent(event);
}

} // namespace brenvaldo::views
