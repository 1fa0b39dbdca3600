// SPDX-License-Identifier: GPL-3.0-or-later
#include "landscape.h"

#include <QDir>
#include <QGuiApplication>
#include <QTextStream>

#include <optional>

using namespace Qt::StringLiterals;
using namespace brenvaldo::examples;

namespace {

constexpr int jpegQuality = 92;

struct Order
{
    QString folder;
    int count = static_cast<int>(scenes().size());
    QSize size{1800, 1200};
};

/// Reads FOLDER [COUNT [WIDTHxHEIGHT]].
std::optional<Order> orderIn(const QStringList& words)
{
    if (words.isEmpty() || words.size() > 3)
        return std::nullopt;
    Order order{.folder = words.at(0)};
    if (words.size() > 1)
        order.count = words.at(1).toInt();
    if (words.size() > 2) {
        const QStringList sides = words.at(2).split(u'x');
        order.size = QSize(sides.value(0).toInt(), sides.value(1).toInt());
    }
    if (order.count < 1 || order.size.isEmpty())
        return std::nullopt;
    return order;
}

bool drawPhoto(const Order& order, int index)
{
    const Scene& scene = scenes().at(static_cast<size_t>(index) % scenes().size());
    const int round = index / static_cast<int>(scenes().size());
    const QString name = round == 0 ? scene.name : scene.name + QString::number(round + 1);
    const auto variation = static_cast<quint32>(index);
    QImage picture
        = drawnLandscape(scene, scene.isUpright ? order.size.transposed() : order.size, variation);
    addSensorNoise(picture, variation);
    const QString path = QDir(order.folder).filePath(name + u".jpg"_s);
    return picture.save(path, "JPG", jpegQuality);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QTextStream errors(stderr);

    const auto order = orderIn(QGuiApplication::arguments().mid(1));
    if (!order) {
        errors << "usage: draw-photos FOLDER [COUNT [WIDTHxHEIGHT]]\n";
        return 2;
    }
    for (int index = 0; index < order->count; ++index) {
        if (!drawPhoto(*order, index)) {
            errors << "no photo can be written to " << order->folder << '\n';
            return 1;
        }
    }
    return 0;
}
