// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview_renderer.h"

#include <controls/image_view.h>
#include <workspace/photo_list.h>

#include <QTimer>
#include <QWidget>

namespace brenvaldo::views {

class ChoiceChip;

/// The big preview: the photo and the layer over it, fitted or at one pixel a pixel, on neutral
/// grey.
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
    };

    explicit PreviewView(const Sources& sources, QWidget* parent = nullptr);

    [[nodiscard]] Zoom zoom() const { return m_zoom; }
    void setZoom(Zoom zoom);

    [[nodiscard]] const QString& caption() const { return m_picture.caption; }
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
    void keyPressEvent(QKeyEvent* event) override;

private:
    void renderSoon();
    void renderNow();
    void take(const PreviewPicture& picture);
    void pan(const QPoint& pixels);
    [[nodiscard]] platform::PixelSize pictureSize() const;
    [[nodiscard]] platform::PixelSize roomPixels() const;
    [[nodiscard]] platform::PixelRect visiblePart() const;
    void paintFitted(QPainter& painter) const;
    void paintPart(QPainter& painter) const;
    void paintCaption(QPainter& painter) const;
    void paintEmpty(QPainter& painter) const;

    Sources m_sources;
    PreviewRenderer m_renderer;
    PreviewPicture m_picture;
    PreviewPicture m_fitted; ///< the last fitted picture of this photo
    QTimer m_soon;
    ChoiceChip* m_zoomChip;
    Zoom m_zoom = Zoom::Fit;
    QPointF m_centre{0.5, 0.5}; ///< point of the picture in the middle of the view, 0 to 1
    QPoint m_grip;
    platform::Subscription m_photoChanges;
    platform::Subscription m_overlayChanges;
};

} // namespace brenvaldo::views
