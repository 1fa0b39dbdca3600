// SPDX-License-Identifier: GPL-3.0-or-later
#include "picture_view.h"

#include <views/look/style_painting.h>

#include <QPainter>
#include <QStyle>

namespace brenvaldo::views {

PictureView::PictureView(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PictureView::setPicture(const QImage& picture)
{
    m_picture = picture;
    update();
}

void PictureView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintFieldFrame(painter, rect(), fieldFrame(QStyle::State_Enabled));
    if (m_picture.isNull())
        return;
    const QRect room = rect().adjusted(8, 8, -8, -8);
    const double scale = devicePixelRatioF();
    QImage fitted = m_picture.scaled(
        (QSizeF(room.size()) * scale).toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation
    );
    fitted.setDevicePixelRatio(scale);
    QRectF target(QPointF(), fitted.deviceIndependentSize());
    target.moveCenter(QRectF(room).center());
    painter.drawImage(target, fitted);
}

} // namespace brenvaldo::views
