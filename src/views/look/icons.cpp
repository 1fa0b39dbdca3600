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

QPixmap rendered(const QString& name, const QSize& pixels, const QColor& color)
{
    const QString key = u"%1-%2x%3-%4"_s.arg(name)
                            .arg(pixels.width())
                            .arg(pixels.height())
                            .arg(color.rgba(), 8, 16);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    QFile file(u":/icons/%1.svg"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QSvgRenderer renderer(file.readAll().replace("currentColor", color.name().toLatin1()));
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
        paintIcon(*painter, m_name, rect, colorOf(mode));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        return rendered(m_name, size, colorOf(mode));
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        QPixmap drawing = rendered(m_name, size, colorOf(mode));
        drawing.setDevicePixelRatio(scale);
        return drawing;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIconEngine(m_name); }
    QString key() const override { return u"brenvaldo"_s; }

private:
    static QColor colorOf(QIcon::Mode mode)
    {
        return mode == QIcon::Disabled ? colors().disabled : colors().text;
    }

    QString m_name;
};

} // namespace

QIcon icon(const QString& name) { return QIcon(new DrawnIconEngine(name)); }

void paintIcon(QPainter& painter, const QString& name, const QRect& rect, const QColor& color)
{
    const double scale = painter.device()->devicePixelRatioF();
    QPixmap drawing = rendered(name, (QSizeF(rect.size()) * scale).toSize(), color);
    drawing.setDevicePixelRatio(scale);
    painter.drawPixmap(rect.topLeft(), drawing);
}

} // namespace brenvaldo::views
