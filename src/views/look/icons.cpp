// SPDX-License-Identifier: GPL-3.0-or-later
#include "icons.h"

#include "theme.h"

#include <platform/foundation/literals.h>

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace brenvaldo::views {

namespace {

QPixmap rendered(const QString& name, const QSize& pixels, const QColor& colour)
{
    const QString key = u"%1-%2x%3-%4"_s.arg(name)
                            .arg(pixels.width())
                            .arg(pixels.height())
                            .arg(colour.rgba(), 8, 16);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    QFile file(u":/icons/%1.svg"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QSvgRenderer renderer(file.readAll().replace("currentColor", colour.name().toLatin1()));
    pixmap = QPixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

class DrawnIconEngine : public QIconEngine
{
public:
    explicit DrawnIconEngine(QString name)
        : m_name(std::move(name))
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        paintIcon(*painter, m_name, rect, colourOf(mode));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        return rendered(m_name, size, colourOf(mode));
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        QPixmap drawing = rendered(m_name, size, colourOf(mode));
        drawing.setDevicePixelRatio(scale);
        return drawing;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIconEngine(m_name); }
    QString key() const override { return u"brenvaldo"_s; }

private:
    static QColor colourOf(QIcon::Mode mode)
    {
        return mode == QIcon::Disabled ? colours().disabled : colours().text;
    }

    QString m_name;
};

} // namespace

QIcon icon(const QString& name) { return QIcon(new DrawnIconEngine(name)); }

void paintIcon(QPainter& painter, const QString& name, const QRect& rect, const QColor& colour)
{
    const double scale = painter.device()->devicePixelRatioF();
    QPixmap drawing = rendered(name, (QSizeF(rect.size()) * scale).toSize(), colour);
    drawing.setDevicePixelRatio(scale);
    painter.drawPixmap(rect.topLeft(), drawing);
}

} // namespace brenvaldo::views
