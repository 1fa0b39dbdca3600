// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <workspace/list/photo_list.h>

#include <QListView>

class QPushButton;

namespace brenvaldo::views {

class PhotoGridDelegate;
class PhotoGridModel;

/// The photos as a grid of small pictures, of which one can be selected.
///
/// It changes nothing by itself: what the user wants is told by signals. Space ticks, dragging
/// moves, files dropped on it are to be added.
class PhotoGrid : public QListView
{
    Q_OBJECT

public:
    explicit PhotoGrid(workspace::PhotoList& photos, QWidget* parent = nullptr);

Q_SIGNALS:
    void tickWanted(int row);
    /// The photos at `rows` are to stand before the one at `gap`; the count of photos means the
    /// end.
    void moveWanted(const QList<int>& rows, int gap);
    void filesDropped(const QStringList& paths);
    /// The button of the empty grid was pressed.
    void addWanted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showSelection();
    void takeSelection();
    void placeAddButton();
    [[nodiscard]] int gapAt(const QPoint& position) const;
    void paintGap(QPainter& painter) const;
    void paintEmpty(QPainter& painter) const;

    workspace::PhotoList& m_photos;
    PhotoGridModel* m_model;
    PhotoGridDelegate* m_delegate;
    platform::Subscription m_selection;
    platform::Subscription m_places;
    QPushButton* m_addButton;
    int m_gap = -1; ///< where a drag would land; -1 while none is over the grid
};

} // namespace brenvaldo::views
