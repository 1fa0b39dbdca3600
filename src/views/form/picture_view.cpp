// SPDX-License-Identifier: GPL-3.0-or-later
#include "picture_view.h"

#include <views/look/style_painting.h>

#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyle>
#include <QUrl>

namespace brenvaldo::views {

namespace {

/// The one local file that is dragged; empty for anything else.
QString draggedFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

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
    FieldFrame frame = fieldFrame(QStyle::State_Enabled);
    frame.focused = m_isTarget;
    paintFieldFrame(painter, rect(), frame);
    if (m_picture.isNull()) {
        paintHint(painter);
        return;
    }
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

void PictureView::paintHint(QPainter& painter) const
{
    if (!acceptDrops())
        return;
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(rect(), Qt::AlignCenter, tr("Drop an image here"));
}

void PictureView::dragEnterEvent(QDragEnterEvent* event)
{
    if (draggedFile(*event->mimeData()).isEmpty())
        return;
    event->acceptProposedAction();
    showsTarget(true);
}

void PictureView::dragLeaveEvent(QDragLeaveEvent* /*event*/) { showsTarget(false); }

void PictureView::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    showsTarget(false);
    Q_EMIT fileDropped(draggedFile(*event->mimeData()));
}

void PictureView::showsTarget(bool isTarget)
{
    m_isTarget = isTarget;
    update();
}

} // namespace brenvaldo::views
