// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_grid_delegate.h"

#include "photo_grid_model.h"

#include <platform/foundation/literals.h>
#include <views/look/icons.h>
#include <views/look/style_painting.h>
#include <views/look/theme.h>

#include <QMouseEvent>
#include <QPainter>

namespace brenvaldo::views {

namespace {

constexpr int margin = 3;
constexpr int textMargin = 8; ///< between the edge of the cell and its texts
constexpr int sizeReach = 4; ///< into that margin; "4608x3456px | 724.52KB" has to fit
constexpr int cellWidth = 144;
constexpr int pictureTop = 10;
constexpr int tickSide = 16;
constexpr double smallScale = 0.86;

/// Told apart from the accent by hue and lightness in both schemes.
QColor clashColor()
{
    const bool isDark = colors().text.lightness() > colors().window.lightness();
    return isDark ? QColor(0xff, 0x8a, 0x7a) : QColor(0xb8, 0x2a, 0x1f);
}

QRect pictureRoom(const QRect& cell)
{
    const int side = PhotoGridDelegate::pictureSide;
    return {cell.center().x() - side / 2, cell.top() + pictureTop, side, side};
}

/// Draws the picture and answers where it stands; without one, an icon or an empty sheet.
void paintPicture(QPainter& painter, const QRect& cell, const QModelIndex& index)
{
    const QRect room = pictureRoom(cell);
    const auto picture = index.data(PhotoGridModel::PictureRole).value<QImage>();
    if (picture.isNull()) {
        const bool isDocument = index.data(PhotoGridModel::DocumentRole).toBool();
        const QString drawing = isDocument ? u"document"_s : u"photos"_s;
        QRect place(0, 0, 48, 48);
        place.moveCenter(room.center());
        painter.setOpacity(isDocument ? 1 : 0.4);
        paintIcon(painter, drawing, place, colors().muted);
        painter.setOpacity(1);
        return;
    }
    const QSizeF size = QSizeF(picture.size()).scaled(QSizeF(room.size()), Qt::KeepAspectRatio);
    QRectF place(QPointF(), size);
    place.moveCenter(QRectF(room).center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture);
}

void paintLine(QPainter& painter, const QRect& line, const QString& text, Qt::TextElideMode elide)
{
    painter.drawText(
        line, Qt::AlignCenter, painter.fontMetrics().elidedText(text, elide, line.width())
    );
}

/// The text with a mark before it, both in the middle of the line.
void paintWarning(QPainter& painter, const QRect& line, const QString& text)
{
    const int side = line.height() - 1;
    const int markRoom = side + 3;
    const QString shown
        = painter.fontMetrics().elidedText(text, Qt::ElideMiddle, line.width() - markRoom);
    const int width = markRoom + painter.fontMetrics().horizontalAdvance(shown);
    const int left = line.left() + (line.width() - width) / 2;
    paintIcon(painter, u"alert"_s, QRect(left, line.top(), side, side), clashColor());
    painter.setPen(clashColor());
    painter.drawText(
        QRect(left + markRoom, line.top(), width - markRoom + 1, line.height()),
        Qt::AlignLeft | Qt::AlignVCenter,
        shown
    );
}

/// The new name below the old one; a clash and a name that stays can be told at a glance.
void paintNewName(QPainter& painter, const QRect& line, const QModelIndex& index)
{
    using NewName = PhotoGridModel::NewName;
    const QString newName = index.data(PhotoGridModel::NewNameRole).toString();
    switch (static_cast<NewName>(index.data(PhotoGridModel::NewNameKindRole).toInt())) {
    case NewName::Same:
        painter.setPen(colors().muted);
        return paintLine(painter, line, PhotoGridModel::tr("keeps its name"), Qt::ElideRight);
    case NewName::Clash:
        return paintWarning(painter, line, newName);
    default:
        painter.setPen(colors().accent);
        paintLine(painter, line, u"\u2192 "_s + newName, Qt::ElideMiddle);
    }
}

void paintTexts(
    QPainter& painter,
    const QStyleOptionViewItem& option,
    const QRect& cell,
    const QModelIndex& index
)
{
    const int height = option.fontMetrics.height();
    QRect line = cell.adjusted(textMargin, 0, -textMargin, 0);
    line.setTop(pictureRoom(cell).bottom() + 5);
    line.setHeight(height);
    const bool isTicked = index.data(PhotoGridModel::TickRole).toBool();
    painter.setFont(scaledFont(option.font, 0.92));
    painter.setPen(isTicked ? colors().text : colors().muted);
    paintLine(painter, line, index.data().toString(), Qt::ElideMiddle);
    line.translate(0, height);
    line.adjust(-sizeReach, 0, sizeReach, 0);
    painter.setFont(scaledFont(option.font, smallScale));
    if (!index.data(PhotoGridModel::NewNameRole).toString().isEmpty())
        return paintNewName(painter, line, index);
    painter.setPen(colors().muted);
    paintLine(painter, line, index.data(PhotoGridModel::SizeRole).toString(), Qt::ElideRight);
}

} // namespace

QSize PhotoGridDelegate::cellSize(const QFontMetrics& metrics)
{
    return {cellWidth, pictureTop + pictureSide + 5 + 2 * metrics.height() + 10};
}

QRect PhotoGridDelegate::tickRect(const QRect& cell)
{
    return {cell.left() + margin + 5, cell.top() + margin + 5, tickSide, tickSide};
}

QSize PhotoGridDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return cellSize(option.fontMetrics);
}

void PhotoGridDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index
) const
{
    painter->save();
    const QRect cell = option.rect;
    const bool isSelected = option.state & QStyle::State_Selected;
    const bool isHovered = option.state & QStyle::State_MouseOver;
    if (isSelected || isHovered) {
        const bool isFocused = option.state & QStyle::State_HasFocus;
        paintFieldFrame(
            *painter,
            cell.adjusted(margin, margin, -margin, -margin),
            {.fill = isSelected ? colors().selection : colors().hover,
             .line = isSelected ? colors().accent : Qt::transparent,
             .focused = isSelected && isFocused}
        );
    }
    paintPicture(*painter, cell, index);
    paintTickBox(
        *painter,
        {.rect = tickRect(cell),
         .ticked = index.data(PhotoGridModel::TickRole).toBool(),
         .onPicture = true}
    );
    paintTexts(*painter, option, cell, index);
    painter->restore();
}

bool PhotoGridDelegate::editorEvent(
    QEvent* event,
    QAbstractItemModel* model,
    const QStyleOptionViewItem& option,
    const QModelIndex& index
)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QRect target = tickRect(option.rect).adjusted(-4, -4, 4, 4);
        if (mouse->button() == Qt::LeftButton && target.contains(mouse->position().toPoint())) {
            Q_EMIT tickClicked(index.row());
            return true;
        }
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}

} // namespace brenvaldo::views
