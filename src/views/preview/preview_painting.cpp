// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_painting.h"

#include "choice_chip.h"

#include <platform/foundation/literals.h>
#include <views/look/icons.h>
#include <views/look/theme.h>

#include <QPainter>

namespace brenvaldo::views {

namespace {

constexpr int shadowReach = 14;
constexpr int emptyMark = 56;

} // namespace

void paintPictureShadow(QPainter& painter, const QRectF& picture)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 9));
    for (int reach = shadowReach; reach > 0; reach -= 2)
        painter.drawRoundedRect(
            picture.adjusted(-reach, -reach + 4, reach, reach + 4), reach, reach
        );
}

void paintCaption(QPainter& painter, const QRect& room, const PreviewPicture& picture)
{
    if (picture.caption.isEmpty())
        return;
    painter.setFont(scaledFont(painter.font(), 0.94));
    const QFontMetrics metrics = painter.fontMetrics();
    const QString text = metrics.elidedText(picture.caption, Qt::ElideMiddle, room.width());
    const QRect chip(room.topLeft(), QSize(metrics.horizontalAdvance(text) + 20, room.height()));
    paintChip(painter, chip);
    painter.setPen(Qt::white);
    painter.drawText(chip, Qt::AlignCenter, text);
}

void paintEmptyPreview(QPainter& painter, const QRect& room, const QString& text)
{
    QRect place(0, 0, emptyMark, emptyMark);
    place.moveCenter(room.center() - QPoint(0, 22));
    const QColor ink(255, 255, 255, 205);
    paintIcon(painter, u"edit-photos"_s, place, ink);
    painter.setPen(ink);
    const QRect line(room.left(), place.bottom() + 8, room.width(), room.bottom() - place.bottom());
    painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
}

void paintPreviewFocus(QPainter& painter, const QRect& room)
{
    painter.setPen(QPen(colors().accent, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(room.adjusted(1, 1, -1, -1));
}

} // namespace brenvaldo::views
