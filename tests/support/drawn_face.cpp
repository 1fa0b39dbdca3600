// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawn_face.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

namespace brenvaldo::test {

namespace {

void drawHead(QPainter& painter)
{
    painter.setBrush(QColor(40, 30, 25));
    painter.drawEllipse(QPointF(0, -14), 66, 76);
    painter.setBrush(QColor(200, 150, 130));
    painter.drawRect(-22, 50, 44, 60);
    QRadialGradient skin(QPointF(0, -5), 75);
    skin.setColorAt(0, QColor(235, 195, 170));
    skin.setColorAt(0.7, QColor(220, 175, 150));
    skin.setColorAt(1, QColor(170, 120, 100));
    painter.setBrush(skin);
    painter.drawEllipse(QPointF(0, 5), 54, 70);
}

void drawEye(QPainter& painter, int side)
{
    painter.setBrush(QColor(150, 105, 85));
    painter.drawEllipse(QPointF(side * 22, -12), 15, 9);
    painter.setBrush(QColor(245, 240, 235));
    painter.drawEllipse(QPointF(side * 22, -11), 11, 5.5);
    painter.setBrush(QColor(40, 25, 20));
    painter.drawEllipse(QPointF(side * 22, -11), 5.5, 5.5);
    painter.setBrush(QColor(60, 40, 30));
    painter.drawRoundedRect(QRectF(side * 22 - 15, -30, 30, 6), 3, 3);
    painter.setBrush(QColor(130, 80, 70));
    painter.drawEllipse(QPointF(side * 6, 22), 4, 3);
}

void drawNose(QPainter& painter)
{
    painter.setBrush(QColor(190, 140, 120, 90));
    painter.drawPolygon(QPolygonF({{-4, -8}, {4, -8}, {12, 22}, {-12, 22}}));
}

void drawMouth(QPainter& painter)
{
    painter.setBrush(QColor(150, 60, 60));
    painter.drawEllipse(QPointF(0, 42), 21, 6);
    painter.setBrush(QColor(90, 30, 30));
    painter.drawRect(QRectF(-19, 41, 38, 1.8));
}

void draw(QPainter& painter, const DrawnFace& face)
{
    painter.save();
    painter.translate(face.middle);
    painter.scale(face.size / 100.0, face.size / 100.0);
    drawHead(painter);
    for (const int side : {-1, 1})
        drawEye(painter, side);
    drawNose(painter);
    drawMouth(painter);
    painter.restore();
}

} // namespace

PhotoBuilder photoOfFaces(QSize size, const QList<DrawnFace>& faces)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(QColor(120, 150, 170));
    QPainter painter(&picture);
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const DrawnFace& face : faces)
        draw(painter, face);
    painter.end();
    return PhotoBuilder().size(size.width(), size.height()).pixels([picture](int x, int y) {
        const QRgb pixel = picture.pixel(x, y);
        return Samples{qRed(pixel), qGreen(pixel), qBlue(pixel)};
    });
}

} // namespace brenvaldo::test
