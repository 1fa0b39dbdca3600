// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_view.h"

#include "choice_chip.h"
#include "preview_painting.h"

#include <platform/foundation/literals.h>
#include <views/look/shown_focus.h>
#include <views/look/theme.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace brenvaldo::views {

namespace {

constexpr int chipMargin = 12;
constexpr int frame = 28; ///< free space round a fitted picture
constexpr int keyStep = 60;

/// The size of the file as the grid tells it: what follows the pixels.
QString fileSizeOf(const workspace::cCollectionViewItem& entry)
{
    return entry.myPhotoPxSize.section(u" | "_s, 1);
}

} // namespace

PreviewView::PreviewView(const Sources& sources, QWidget* parent)
    : QWidget(parent)
    , m_sources(sources)
    , m_zoomChip(new ChoiceChip({tr("Fit"), tr("1:1")}, this))
    , m_photoChanges(sources.photo.changed.connect([this] { takePhoto(); }))
    , m_overlayChanges(sources.overlay.changed.connect([this] { renderSoon(); }))
{
    setObjectName(sources.photo.name());
    setAccessibleName(tr("Preview"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_zoomChip->select(0);
    m_zoomChip->setObjectName(u"previewZoom"_s);
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

void PreviewView::setZoom(Zoom zoom) { zoomAt(QRectF(rect()).center(), zoom); }

/// Changes the zoom so that the point of the picture under `position` stays there.
void PreviewView::zoomAt(const QPointF& position, Zoom zoom)
{
    if (m_zoom == zoom)
        return;
    const auto size = pictureSize();
    const QRectF place = fittedPlace();
    m_centre = {0.5, 0.5};
    if (size.isValid() && !place.isEmpty()) {
        const QPointF away = (position - QRectF(rect()).center()) * devicePixelRatioF();
        const QPointF inPicture = position - place.topLeft();
        m_centre.setX(inPicture.x() / place.width() - away.x() / size.width);
        m_centre.setY(inPicture.y() / place.height() - away.y() / size.height);
        clampCentre();
    }
    m_zoom = zoom;
    m_wheelTurn = 0;
    m_zoomChip->select(zoom == Zoom::Fit ? 0 : 1);
    setCursor(zoom == Zoom::Fit ? Qt::ArrowCursor : Qt::OpenHandCursor);
    renderSoon();
    update();
    Q_EMIT zoomChanged(zoom);
}

void PreviewView::takePhoto()
{
    const auto& photo = m_sources.photo.image();
    const auto pixels = photo ? photo->node() : nullptr;
    if (std::exchange(m_photo, pixels) != pixels) {
        m_part = {};
        m_isFittedOld = true;
    }
    renderSoon();
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
    if (showsPixels() && !m_isFittedOld)
        request.part = visiblePart();
    m_renderer.render(request);
}

void PreviewView::take(const PreviewPicture& picture)
{
    if (picture.part) {
        m_part = picture;
    } else {
        m_fitted = picture;
        setAccessibleDescription(picture.caption);
        // A request that came in between can be one for another photo.
        if (!m_soon.isActive())
            m_isFittedOld = false;
        if (showsPixels())
            renderSoon();
    }
    update();
}

bool PreviewView::showsPixels() const { return m_zoom == Zoom::Pixels && pictureSize().isValid(); }

platform::graphics::PixelSize PreviewView::pictureSize() const
{
    if (const auto& photo = m_sources.photo.image())
        return photo->pixelSize();
    if (const auto& overlay = m_sources.overlay.image())
        return overlay->pixelSize();
    return {};
}

platform::graphics::PixelSize PreviewView::roomPixels() const
{
    const double scale = devicePixelRatioF();
    return {
        .width = std::max(1, qRound((width() - 2 * frame) * scale)),
        .height = std::max(1, qRound((height() - 2 * frame) * scale))};
}

platform::graphics::PixelRect PreviewView::visiblePart() const
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

void PreviewView::clampCentre()
{
    const auto size = pictureSize();
    const auto part = visiblePart();
    const double halfWide = part.width / 2.0 / size.width;
    const double halfHigh = part.height / 2.0 / size.height;
    m_centre.setX(std::clamp(m_centre.x(), halfWide, 1 - halfWide));
    m_centre.setY(std::clamp(m_centre.y(), halfHigh, 1 - halfHigh));
}

void PreviewView::pan(const QPoint& pixels)
{
    if (!showsPixels())
        return;
    const auto size = pictureSize();
    const QPointF way = QPointF(pixels) * devicePixelRatioF();
    m_centre -= QPointF(way.x() / size.width, way.y() / size.height);
    clampCentre();
    renderSoon();
    update();
}

void PreviewView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), colors().canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (m_fitted.photo.isNull() && m_fitted.overlay.isNull()) {
        if (isUpToDate())
            paintEmptyPreview(painter, rect(), m_sources.emptyText());
    } else {
        if (showsPixels())
            paintPixels(painter);
        else
            paintFitted(painter);
        const int room = m_zoomChip->x() - 2 * chipMargin - 24;
        paintCaption(painter, {chipMargin, m_zoomChip->y(), room, m_zoomChip->height()}, m_fitted);
    }
    if (hasFocus() && m_showsFocus)
        paintPreviewFocus(painter, rect());
}

/// Where the fitted picture stands. While the view is being resized the last picture is stretched
/// until the new one comes.
QRectF PreviewView::fittedPlace() const
{
    const QImage& base = m_fitted.photo.isNull() ? m_fitted.overlay : m_fitted.photo;
    if (base.isNull())
        return {};
    const auto fitted = fittedInto({base.width(), base.height()}, roomPixels());
    QRectF place(QPointF(), QSizeF(fitted.width, fitted.height) / devicePixelRatioF());
    place.moveCenter(QRectF(rect()).center());
    return place;
}

void PreviewView::paintFitted(QPainter& painter) const
{
    const QRectF base = fittedPlace();
    paintPictureShadow(painter, base);
    if (!m_fitted.photo.isNull())
        painter.drawImage(base, m_fitted.photo);
    if (m_fitted.overlay.isNull())
        return;
    // An overlay of another size than its photo is as much larger or smaller on the screen.
    const QImage& photo = m_fitted.photo.isNull() ? m_fitted.overlay : m_fitted.photo;
    QRectF place(QPointF(), QSizeF(m_fitted.overlay.size()) * (base.width() / photo.width()));
    place.moveCenter(base.center());
    painter.drawImage(place, m_fitted.overlay);
}

void PreviewView::paintPixels(QPainter& painter) const
{
    const double scale = devicePixelRatioF();
    const auto now = visiblePart();
    QRectF view(QPointF(), QSizeF(now.width, now.height) / scale);
    view.moveCenter(QRectF(rect()).center());
    const auto placeOf = [&](const platform::graphics::PixelRect& part) {
        const QPointF offset(part.x - now.x, part.y - now.y);
        return QRectF(view.topLeft() + offset / scale, QSizeF(part.width, part.height) / scale);
    };
    const auto size = pictureSize();
    const QRectF whole = placeOf({.x = 0, .y = 0, .width = size.width, .height = size.height});
    // The fitted picture stands in for pixels that are not rendered yet.
    for (const QImage* layer : {&m_fitted.photo, &m_fitted.overlay})
        painter.drawImage(whole, *layer);
    if (!m_part.part)
        return;
    for (const QImage* layer : {&m_part.photo, &m_part.overlay})
        painter.drawImage(placeOf(*m_part.part), *layer);
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

void PreviewView::mouseDoubleClickEvent(QMouseEvent* event)
{
    zoomAt(event->position(), m_zoom == Zoom::Fit ? Zoom::Pixels : Zoom::Fit);
}

void PreviewView::wheelEvent(QWheelEvent* event)
{
    constexpr int notch = 120;
    m_wheelTurn += event->angleDelta().y();
    if (std::abs(m_wheelTurn) >= notch) {
        const Zoom wanted = m_wheelTurn > 0 ? Zoom::Pixels : Zoom::Fit;
        m_wheelTurn = 0;
        zoomAt(event->position(), wanted);
    }
    event->accept();
}

void PreviewView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return setZoom(Zoom::Pixels);
    case Qt::Key_Minus:
        return setZoom(Zoom::Fit);
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

void PreviewView::focusInEvent(QFocusEvent* event)
{
    m_showsFocus = showsFocus(event->reason(), m_showsFocus);
    update();
}

void PreviewView::focusOutEvent(QFocusEvent*) { update(); }

} // namespace brenvaldo::views
