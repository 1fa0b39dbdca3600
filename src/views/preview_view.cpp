// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_view.h"

#include "choice_chip.h"
#include "icons.h"
#include "theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace brenvaldo::views {

namespace {

constexpr int chipMargin = 12;
constexpr int frame = 28; ///< free space round a fitted picture
constexpr int shadowReach = 14;
constexpr int keyStep = 60;

void paintShadow(QPainter& painter, const QRectF& picture)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 9));
    for (int reach = shadowReach; reach > 0; reach -= 2)
        painter.drawRoundedRect(
            picture.adjusted(-reach, -reach + 4, reach, reach + 4), reach, reach
        );
}

QRectF centredIn(const QRectF& room, const QImage& picture, double scale)
{
    QRectF place(QPointF(), QSizeF(picture.size()) / scale);
    place.moveCenter(room.center());
    return place;
}

/// The size of the file as the grid tells it: what follows the pixels.
QString fileSizeOf(const workspace::cCollectionViewItem& entry)
{
    return entry.myPhotoPxSize.section(QStringLiteral(" | "), 1);
}

} // namespace

PreviewView::PreviewView(const Sources& sources, QWidget* parent)
    : QWidget(parent)
    , m_sources(sources)
    , m_zoomChip(new ChoiceChip({tr("Fit"), tr("1:1")}, this))
    , m_photoChanges(sources.photo.changed.connect([this] {
        m_fitted = {};
        renderSoon();
    }))
    , m_overlayChanges(sources.overlay.changed.connect([this] { renderSoon(); }))
{
    setObjectName(sources.photo.name());
    setAccessibleName(tr("Preview"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_zoomChip->select(0);
    m_zoomChip->setObjectName(QStringLiteral("previewZoom"));
    connect(m_zoomChip, &ChoiceChip::picked, this, [this](int index) {
        setZoom(index == 0 ? Zoom::Fit : Zoom::Pixels);
    });
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &PreviewView::renderNow);
    connect(&m_renderer, &PreviewRenderer::rendered, this, &PreviewView::take);
    renderSoon();
}

bool PreviewView::isUpToDate() const { return !m_soon.isActive() && !m_renderer.isBusy(); }

void PreviewView::setZoom(Zoom zoom)
{
    if (m_zoom == zoom)
        return;
    m_zoom = zoom;
    m_centre = {0.5, 0.5};
    m_zoomChip->select(zoom == Zoom::Fit ? 0 : 1);
    setCursor(zoom == Zoom::Fit ? Qt::ArrowCursor : Qt::OpenHandCursor);
    renderSoon();
    Q_EMIT zoomChanged(zoom);
}

void PreviewView::renderSoon() { m_soon.start(); }

void PreviewView::renderNow()
{
    const auto* entry = m_sources.photos.selectedEntry();
    PreviewRequest request{
        .photo = m_sources.photo.image(),
        .overlay = m_sources.overlay.image(),
        .room = roomPixels(),
        .part = std::nullopt,
        .path = entry ? entry->myPhotoDescription : QString(),
        .fileSize = entry ? fileSizeOf(*entry) : QString()};
    if (m_zoom == Zoom::Pixels && pictureSize().isValid())
        request.part = visiblePart();
    m_renderer.render(request);
}

void PreviewView::take(const PreviewPicture& picture)
{
    m_picture = picture;
    if (!picture.part)
        m_fitted = picture;
    setAccessibleDescription(picture.caption);
    update();
}

platform::PixelSize PreviewView::pictureSize() const
{
    if (const auto& photo = m_sources.photo.image())
        return photo->pixelSize();
    if (const auto& overlay = m_sources.overlay.image())
        return overlay->pixelSize();
    return {};
}

platform::PixelSize PreviewView::roomPixels() const
{
    const double scale = devicePixelRatioF();
    return {
        .width = std::max(1, qRound((width() - 2 * frame) * scale)),
        .height = std::max(1, qRound((height() - 2 * frame) * scale))};
}

platform::PixelRect PreviewView::visiblePart() const
{
    const double scale = devicePixelRatioF();
    const auto size = pictureSize();
    const int wide = std::min(size.width, qRound(width() * scale));
    const int high = std::min(size.height, qRound(height() * scale));
    return {
        .x = std::clamp(qRound(m_centre.x() * size.width - wide / 2.0), 0, size.width - wide),
        .y = std::clamp(qRound(m_centre.y() * size.height - high / 2.0), 0, size.height - high),
        .width = wide,
        .height = high};
}

void PreviewView::pan(const QPoint& pixels)
{
    const auto size = pictureSize();
    if (m_zoom == Zoom::Fit || !size.isValid())
        return;
    const auto part = visiblePart();
    const double halfWide = part.width / 2.0 / size.width;
    const double halfHigh = part.height / 2.0 / size.height;
    const double scale = devicePixelRatioF();
    m_centre.setX(std::clamp(m_centre.x() - pixels.x() * scale / size.width, halfWide, 1 - halfWide)
    );
    m_centre.setY(
        std::clamp(m_centre.y() - pixels.y() * scale / size.height, halfHigh, 1 - halfHigh)
    );
    renderSoon();
    update();
}

void PreviewView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), colours().canvas);
    if (m_picture.photo.isNull() && m_picture.overlay.isNull()) {
        if (!m_sources.photos.selectedEntry())
            paintEmpty(painter);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (m_picture.part)
        paintPart(painter);
    else
        paintFitted(painter);
    paintCaption(painter);
}

void PreviewView::paintFitted(QPainter& painter) const
{
    const double scale = devicePixelRatioF();
    const QRectF room = rect();
    const QImage& base = m_picture.photo.isNull() ? m_picture.overlay : m_picture.photo;
    // While the view is being resized the last picture is stretched until the new one comes.
    const auto fitted = fittedInto({base.width(), base.height()}, roomPixels());
    const double shrink = double(base.width()) / fitted.width;
    paintShadow(painter, centredIn(room, base, scale * shrink));
    for (const QImage* layer : {&m_picture.photo, &m_picture.overlay}) {
        if (!layer->isNull())
            painter.drawImage(centredIn(room, *layer, scale * shrink), *layer);
    }
}

void PreviewView::paintPart(QPainter& painter) const
{
    const double scale = devicePixelRatioF();
    const auto now = visiblePart();
    QRectF view(QPointF(), QSizeF(now.width, now.height) / scale);
    view.moveCenter(QRectF(rect()).center());
    const auto placeOf = [&](const platform::PixelRect& part) {
        const QPointF offset(part.x - now.x, part.y - now.y);
        return QRectF(view.topLeft() + offset / scale, QSizeF(part.width, part.height) / scale);
    };
    const auto size = pictureSize();
    const QRectF whole = placeOf({.x = 0, .y = 0, .width = size.width, .height = size.height});
    // Panning uncovers pixels that are not rendered yet; the fitted picture stands in for them.
    for (const QImage* layer : {&m_fitted.photo, &m_fitted.overlay})
        painter.drawImage(whole, *layer);
    for (const QImage* layer : {&m_picture.photo, &m_picture.overlay})
        painter.drawImage(placeOf(*m_picture.part), *layer);
}

void PreviewView::paintCaption(QPainter& painter) const
{
    if (m_picture.caption.isEmpty())
        return;
    painter.setFont(scaledFont(font(), 0.94));
    const int room = m_zoomChip->x() - 2 * chipMargin - 24;
    const QString text = painter.fontMetrics().elidedText(m_picture.caption, Qt::ElideMiddle, room);
    QRect chip(0, 0, painter.fontMetrics().horizontalAdvance(text) + 20, m_zoomChip->height());
    chip.moveBottomLeft({chipMargin, height() - chipMargin - 1});
    paintChip(painter, chip);
    painter.setPen(Qt::white);
    painter.drawText(chip, Qt::AlignCenter, text);
}

void PreviewView::paintEmpty(QPainter& painter) const
{
    QRect place(0, 0, 56, 56);
    place.moveCenter(rect().center() - QPoint(0, 22));
    const QColor ink(255, 255, 255, 150);
    paintIcon(painter, QStringLiteral("edit-photos"), place, ink);
    painter.setPen(ink);
    const QString text = m_sources.photos.isEmpty() ? tr("Your photo shows here")
                                                    : tr("Select a photo to see it here");
    painter.drawText(
        QRect(0, place.bottom() + 8, width(), fontMetrics().height() + 4), Qt::AlignCenter, text
    );
}

void PreviewView::resizeEvent(QResizeEvent*)
{
    m_zoomChip->adjustSize();
    m_zoomChip->move(
        width() - m_zoomChip->width() - chipMargin, height() - m_zoomChip->height() - chipMargin
    );
    renderSoon();
}

void PreviewView::mousePressEvent(QMouseEvent* event)
{
    m_grip = event->position().toPoint();
    if (m_zoom == Zoom::Pixels)
        setCursor(Qt::ClosedHandCursor);
}

void PreviewView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint now = event->position().toPoint();
    pan(now - std::exchange(m_grip, now));
}

void PreviewView::mouseReleaseEvent(QMouseEvent*)
{
    if (m_zoom == Zoom::Pixels)
        setCursor(Qt::OpenHandCursor);
}

void PreviewView::mouseDoubleClickEvent(QMouseEvent*)
{
    setZoom(m_zoom == Zoom::Fit ? Zoom::Pixels : Zoom::Fit);
}

void PreviewView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        return pan({keyStep, 0});
    case Qt::Key_Right:
        return pan({-keyStep, 0});
    case Qt::Key_Up:
        return pan({0, keyStep});
    case Qt::Key_Down:
        return pan({0, -keyStep});
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace brenvaldo::views
