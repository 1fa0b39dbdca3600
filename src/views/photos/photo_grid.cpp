// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_grid.h"

#include "photo_grid_delegate.h"
#include "photo_grid_model.h"

#include <platform/foundation/literals.h>
#include <views/look/icons.h>
#include <views/look/theme.h>

#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QUrl>

namespace brenvaldo::views {

namespace {

/// Small pictures are made at twice the size they are shown at, for dense screens.
constexpr int pictureScale = 2;

/// Only the grid itself gives out its items.
bool isOwnDrag(const QDropEvent& event)
{
    return event.mimeData()->hasFormat(u"application/x-qabstractitemmodeldatalist"_s);
}

QStringList localPaths(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace

PhotoGrid::PhotoGrid(workspace::PhotoList& photos, QWidget* parent)
    : QListView(parent)
    , m_photos(photos)
    , m_model(new PhotoGridModel(photos, PhotoGridDelegate::pictureSide * pictureScale, this))
    , m_delegate(new PhotoGridDelegate(this))
    , m_selection(photos.selectionChanged.connect([this] { showSelection(); }))
    , m_places(photos.entriesChanged.connect([this] { showSelection(); }))
    , m_addButton(new QPushButton(icon(u"add"_s), tr("Add photos\u2026"), viewport()))
{
    setObjectName(u"myPhotoCollectionView"_s);
    setAccessibleName(tr("Photos"));
    setModel(m_model);
    setItemDelegate(m_delegate);
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(10, 6, 0, 0);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setMouseTracking(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDropIndicatorShown(false);
    setGridSize(PhotoGridDelegate::cellSize(fontMetrics()));
    setMinimumHeight(gridSize().height() + 4);
    connect(m_delegate, &PhotoGridDelegate::tickClicked, this, &PhotoGrid::tickWanted);
    connect(
        selectionModel(), &QItemSelectionModel::currentChanged, this, &PhotoGrid::takeSelection
    );
    m_addButton->setAccessibleName(tr("Add photos"));
    connect(m_addButton, &QPushButton::clicked, this, &PhotoGrid::addWanted);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &PhotoGrid::placeAddButton);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &PhotoGrid::placeAddButton);
    showSelection();
}

void PhotoGrid::showSelection()
{
    const auto wanted = m_photos.selectedIndex();
    const int row = wanted.value_or(-1);
    if (row == currentIndex().row() || row >= m_model->rowCount())
        return;
    const QSignalBlocker quiet(selectionModel());
    if (row < 0)
        selectionModel()->clear();
    else
        selectionModel()->setCurrentIndex(m_model->index(row), QItemSelectionModel::ClearAndSelect);
    if (row >= 0)
        scrollTo(currentIndex());
    viewport()->update();
}

void PhotoGrid::takeSelection()
{
    const QModelIndex current = currentIndex();
    const std::optional<int> row
        = current.isValid() ? std::optional<int>(current.row()) : std::nullopt;
    if (row != m_photos.selectedIndex())
        m_photos.select(row);
    viewport()->update();
}

void PhotoGrid::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && currentIndex().isValid()) {
        Q_EMIT tickWanted(currentIndex().row());
        return;
    }
    QListView::keyPressEvent(event);
}

int PhotoGrid::gapAt(const QPoint& position) const
{
    const QModelIndex index = indexAt(position);
    if (!index.isValid())
        return m_model->rowCount();
    return index.row() + (position.x() > visualRect(index).center().x() ? 1 : 0);
}

void PhotoGrid::dragEnterEvent(QDragEnterEvent* event) { dragMoveEvent(event); }

void PhotoGrid::dragMoveEvent(QDragMoveEvent* event)
{
    const bool own = isOwnDrag(*event);
    if (!own && !event->mimeData()->hasUrls()) {
        event->ignore();
        return;
    }
    m_gap = own ? gapAt(event->position().toPoint()) : m_model->rowCount();
    event->setDropAction(own ? Qt::MoveAction : Qt::CopyAction);
    event->accept();
    viewport()->update();
}

void PhotoGrid::dragLeaveEvent(QDragLeaveEvent*)
{
    m_gap = -1;
    viewport()->update();
}

void PhotoGrid::dropEvent(QDropEvent* event)
{
    const int gap = std::exchange(m_gap, -1);
    viewport()->update();
    if (!isOwnDrag(*event)) {
        event->acceptProposedAction();
        Q_EMIT filesDropped(localPaths(*event->mimeData()));
        return;
    }
    // A copy as seen from the view: it must not remove the moved rows from the model by itself.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (currentIndex().isValid())
        Q_EMIT moveWanted({currentIndex().row()}, gap);
}

void PhotoGrid::changeEvent(QEvent* event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        setGridSize(PhotoGridDelegate::cellSize(fontMetrics()));
}

void PhotoGrid::resizeEvent(QResizeEvent* event)
{
    QListView::resizeEvent(event);
    placeAddButton();
}

void PhotoGrid::placeAddButton()
{
    m_addButton->setVisible(m_model->rowCount() == 0);
    m_addButton->adjustSize();
    const QPoint centre = viewport()->rect().center();
    m_addButton->move(centre.x() - m_addButton->width() / 2, centre.y() + 22);
}

void PhotoGrid::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    QPainter painter(viewport());
    if (m_model->rowCount() == 0)
        paintEmpty(painter);
    else if (m_gap >= 0)
        paintGap(painter);
}

void PhotoGrid::paintGap(QPainter& painter) const
{
    const bool atEnd = m_gap >= m_model->rowCount();
    const QRect cell = visualRect(m_model->index(atEnd ? m_gap - 1 : m_gap));
    const int x = atEnd ? cell.right() - 1 : cell.left();
    painter.fillRect(QRect(x, cell.top() + 6, 3, cell.height() - 12), colors().accent);
}

void PhotoGrid::paintEmpty(QPainter& painter) const
{
    const QRect room = viewport()->rect();
    QRect place(0, 0, 44, 44);
    place.moveCenter(room.center() - QPoint(0, 44));
    paintIcon(painter, u"photos"_s, place, colors().disabled);
    painter.setPen(colors().muted);
    const QRect line(room.left(), place.bottom() + 4, room.width(), fontMetrics().height() + 6);
    painter.drawText(line, Qt::AlignCenter, tr("Drop photos here or choose Add photos\u2026"));
}

} // namespace brenvaldo::views
