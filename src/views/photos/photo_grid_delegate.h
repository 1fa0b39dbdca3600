// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace brenvaldo::views {

/// Draws one photo of the grid: picture with its tick box, name, size, new name.
class PhotoGridDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int pictureSide = 94; ///< device-independent pixels

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index)
        const override;
    [[nodiscard]] QSize
    sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool editorEvent(
        QEvent* event,
        QAbstractItemModel* model,
        const QStyleOptionViewItem& option,
        const QModelIndex& index
    ) override;

    /// Size of one place of the grid.
    [[nodiscard]] static QSize cellSize(const QFontMetrics& metrics);

    /// Where the tick box of an item stands that is drawn in `cell`.
    [[nodiscard]] static QRect tickRect(const QRect& cell);

Q_SIGNALS:
    void tickClicked(int row);
};

} // namespace brenvaldo::views
