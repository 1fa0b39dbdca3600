// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview_renderer.h"

#include <controls/image_view.h>
#include <workspace/list/photo_list.h>

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

namespace brenvaldo::views {

class ChoiceChip;

/// The big preview: the photo and the layer over it, fitted or at one pixel a pixel, on neutral
/// grey. The wheel, a double click, and the keys + and - change between the two; at one pixel a
/// pixel the mouse and the arrow keys move the picture.
class PreviewView : public QWidget
{
    Q_OBJECT

public:
    enum class Zoom { Fit, Pixels };

    struct Sources
    {
        const controls::ImageView& photo;
        const controls::ImageView& overlay;
        const workspace::PhotoList& photos;
        std::function<QString()> emptyText; ///< what to tell while there is no picture
    };

    explicit PreviewView(const Sources& sources, QWidget* parent = nullptr);

    [[nodiscard]] Zoom zoom() const { return m_zoom; }
    void setZoom(Zoom zoom);

    [[nodiscard]] const QString& caption() const { return m_fitted.caption; }
    /// True when the present sources are drawn, and not those of a moment ago.
    [[nodiscard]] bool isUpToDate() const;

    [[nodiscard]] QSize sizeHint() const override { return {880, 560}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {320, 160}; }

Q_SIGNALS:
    void zoomChanged(brenvaldo::views::PreviewView::Zoom zoom);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void takePhoto();
    void renderSoon();
    void renderNow();
    void take(const PreviewPicture& picture);
    void zoomAt(const QPointF& position, Zoom zoom);
    void pan(const QPoint& pixels);
    void clampCentre();
    [[nodiscard]] bool showsPixels() const;
    [[nodiscard]] platform::graphics::PixelSize pictureSize() const;
    [[nodiscard]] platform::graphics::PixelSize roomPixels() const;
    [[nodiscard]] platform::graphics::PixelRect visiblePart() const;
    [[nodiscard]] QRectF fittedPlace() const;
    void paintFitted(QPainter& painter) const;
    void paintPixels(QPainter& painter) const;

    Sources m_sources;
    PreviewRenderer m_renderer;
    PreviewPicture m_fitted; ///< the whole picture; coarse where it stands in for pixels
    PreviewPicture m_part; ///< the last rendered pixels of this photo
    std::shared_ptr<const platform::graphics::ImageNode> m_photo; ///< that was shown last
    bool m_isFittedOld = true; ///< m_fitted belongs to the photo before
    QTimer m_soon;
    ChoiceChip* m_zoomChip;
    Zoom m_zoom = Zoom::Fit;
    QPointF m_centre{0.5, 0.5}; ///< point of the picture in the middle of the view, 0 to 1
    QPoint m_grip;
    int m_wheelTurn = 0; ///< eighths of a degree since the last change of zoom
    bool m_showsFocus = false; ///< the focus came by keyboard, not by a click
    platform::Subscription m_photoChanges;
    platform::Subscription m_overlayChanges;
};

} // namespace brenvaldo::views
