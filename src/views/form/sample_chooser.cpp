// SPDX-License-Identifier: GPL-3.0-or-later
#include "sample_chooser.h"

#include <views/look/style_painting.h>
#include <views/look/theme.h>
#include <views/photos/photo_samples.h>

#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

namespace brenvaldo::views {

namespace {

constexpr int pad = 4; ///< round a picture, within the frame of the chosen one
constexpr int columns = 3;
constexpr double titleScale = 0.88;
constexpr double shownRows = 2.2; ///< a row that is cut off tells that there are more

QSize cellSize(const QFontMetrics& metrics)
{
    constexpr int titleLines = 2;
    return PhotoSamples::size + QSize(2 * pad, 2 * pad + titleLines * metrics.height());
}

QRect pictureRoom(const QRect& cell)
{
    return {
        QPoint(cell.center().x() - PhotoSamples::size.width() / 2, cell.top() + pad),
        PhotoSamples::size};
}

void paintPicture(QPainter& painter, const QRect& room, const QImage& picture)
{
    if (picture.isNull()) {
        painter.fillRect(room, colors().track);
        return;
    }
    const QSizeF size = QSizeF(picture.size()).scaled(QSizeF(room.size()), Qt::KeepAspectRatio);
    QRectF place(QPointF(), size);
    place.moveCenter(QRectF(room).center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture);
}

class SampleDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return cellSize(option.fontMetrics);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index)
        const override
    {
        painter->save();
        paintGround(*painter, option);
        const QRect room = pictureRoom(option.rect);
        paintPicture(*painter, room, index.data(Qt::DecorationRole).value<QImage>());
        QRect line = option.rect.adjusted(pad, 0, -pad, 0);
        line.setTop(room.bottom() + 3);
        painter->setFont(scaledFont(option.font, titleScale));
        painter->setPen(option.state & QStyle::State_Enabled ? colors().text : colors().disabled);
        painter->drawText(
            line, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, index.data().toString()
        );
        painter->restore();
    }

private:
    static void paintGround(QPainter& painter, const QStyleOptionViewItem& option)
    {
        const bool isChosen = option.state & QStyle::State_Selected;
        if (!isChosen && !(option.state & QStyle::State_MouseOver))
            return;
        paintFieldFrame(
            painter,
            option.rect,
            {.fill = isChosen ? colors().selection : colors().hover,
             .line = isChosen ? colors().accent : Qt::transparent,
             .focused = isChosen && (option.state & QStyle::State_HasFocus)}
        );
    }
};

} // namespace

SampleModel::SampleModel(PhotoSamples& samples, QObject* parent)
    : QAbstractListModel(parent)
    , m_samples(samples)
{
    connect(&samples, &PhotoSamples::arrived, this, [this](int row) {
        Q_EMIT dataChanged(index(row), index(row), {Qt::DecorationRole});
    });
    connect(&samples, &PhotoSamples::outdated, this, [this] {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::DecorationRole});
    });
}

void SampleModel::setTitles(const QStringList& titles)
{
    if (titles == m_titles)
        return;
    beginResetModel();
    m_titles = titles;
    endResetModel();
}

int SampleModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_titles.size());
}

QVariant SampleModel::data(const QModelIndex& index, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return m_titles.value(index.row());
    case Qt::DecorationRole:
        return m_samples.picture(index.row());
    default:
        return {};
    }
}

SampleChooser::SampleChooser(PhotoSamples& samples, QWidget* parent)
    : QListView(parent)
    , m_model(new SampleModel(samples, this))
{
    setModel(m_model);
    setItemDelegate(new SampleDelegate(this));
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setMouseTracking(true);
    setGridSize(cellSize(fontMetrics()));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SampleChooser::setTitles(const QStringList& titles) { m_model->setTitles(titles); }

void SampleChooser::select(int index)
{
    const QScopedValueRollback following(m_isFollowing, true);
    setCurrentIndex(m_model->index(index));
}

QSize SampleChooser::minimumSizeHint() const
{
    const QSize cell = cellSize(fontMetrics());
    return {
        columns * cell.width() + Metrics::scrollBar + 1,
        static_cast<int>(shownRows * cell.height())};
}

QSize SampleChooser::sizeHint() const { return minimumSizeHint(); }

void SampleChooser::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    if (!m_isFollowing && current.isValid())
        Q_EMIT picked(current.row());
}

/// The focus that comes by keyboard chooses nothing: the view would take its first item.
void SampleChooser::focusInEvent(QFocusEvent* event)
{
    const QScopedValueRollback following(m_isFollowing, true);
    QListView::focusInEvent(event);
}

} // namespace brenvaldo::views
