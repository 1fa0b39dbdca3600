// SPDX-License-Identifier: GPL-3.0-or-later
#include "landscape.h"

#include <platform/foundation/literals.h>

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brenvaldo::examples {

namespace {

constexpr int hillRows = 6;
constexpr double horizon = 0.62; ///< part of the height that is sky

QColor mixed(const QColor& from, const QColor& to, double part)
{
    const auto mix = [part](float left, float right) {
        return static_cast<float>(left + (right - left) * part);
    };
    return QColor::fromRgbF(
        mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()), mix(from.blueF(), to.blueF())
    );
}

QColor transparent(QColor color, double alpha)
{
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

/// A line of hills: waves of halving height and doubling number.
class Ridge
{
public:
    Ridge(QRandomGenerator& random, double roughness)
        : m_roughness(roughness)
    {
        for (double& phase : m_phases)
            phase = random.generateDouble() * 2 * std::numbers::pi;
    }

    /// Height at `x` (0 to 1), between about -1 and 1.
    [[nodiscard]] double height(double x) const
    {
        double sum = 0;
        double weight = 0.6;
        double frequency = 1.3;
        for (const double phase : m_phases) {
            sum += weight * std::sin(frequency * x * 2 * std::numbers::pi + phase);
            weight *= m_roughness;
            frequency *= 2.07;
        }
        return sum;
    }

private:
    double m_roughness;
    std::array<double, 8> m_phases{};
};

void drawSky(QPainter& painter, const Scene& scene, QSizeF size)
{
    QLinearGradient sky(0, 0, 0, size.height() * horizon);
    sky.setColorAt(0, scene.skyTop);
    sky.setColorAt(1, scene.skyHorizon);
    painter.fillRect(QRectF({}, size), sky);

    const QPointF centre(size.width() * scene.sunX, size.height() * scene.sunY);
    const double side = std::min(size.width(), size.height());
    QRadialGradient glow(centre, side * 0.55);
    glow.setColorAt(0, transparent(scene.sun, 0.85));
    glow.setColorAt(0.3, transparent(scene.sun, 0.25));
    glow.setColorAt(1, transparent(scene.sun, 0));
    painter.fillRect(QRectF({}, size), glow);
    painter.setBrush(scene.sun);
    painter.drawEllipse(centre, side * 0.045, side * 0.045);
}

void drawClouds(QPainter& painter, const Scene& scene, QSizeF size, QRandomGenerator& random)
{
    constexpr int puffs = 90;
    const QColor light = mixed(scene.skyHorizon, Qt::white, 0.45);
    for (int puff = 0; puff < puffs; ++puff) {
        const int bank = puff / 18;
        const double x = (0.2 * bank + 0.22 * random.generateDouble()) * size.width();
        const double y
            = (0.08 + 0.07 * ((bank * 3) % 5) + 0.03 * random.generateDouble()) * size.height();
        const double radius = (0.03 + 0.06 * random.generateDouble()) * size.width();
        painter.save();
        painter.translate(x, y);
        painter.scale(1, 0.28);
        QRadialGradient soft(QPointF(), radius);
        soft.setColorAt(0, transparent(light, 0.28));
        soft.setColorAt(1, transparent(light, 0));
        painter.setBrush(soft);
        painter.drawEllipse(QPointF(), radius, radius);
        painter.restore();
    }
}

QPainterPath hillPath(const Ridge& ridge, double base, double amplitude, QSizeF size)
{
    constexpr int steps = 480;
    QPainterPath path(QPointF(0, size.height()));
    for (int step = 0; step <= steps; ++step) {
        const double x = static_cast<double>(step) / steps;
        path.lineTo(x * size.width(), (base - amplitude * ridge.height(x)) * size.height());
    }
    path.lineTo(size.width(), size.height());
    path.closeSubpath();
    return path;
}

void drawFir(QPainter& painter, QPointF foot, double height)
{
    constexpr int tiers = 4;
    for (int tier = 0; tier < tiers; ++tier) {
        const double top = foot.y() - height * (1 - 0.2 * tier);
        const double bottom = foot.y() - height * (0.55 - 0.18 * tier);
        const double half = height * (0.1 + 0.05 * tier);
        painter.drawPolygon(QPolygonF(
            {QPointF(foot.x(), top),
             QPointF(foot.x() + half, bottom),
             QPointF(foot.x() - half, bottom)}
        ));
    }
}

void drawHills(QPainter& painter, const Scene& scene, QSizeF size, QRandomGenerator& random)
{
    for (int row = 0; row < hillRows; ++row) {
        const double nearness = static_cast<double>(row) / (hillRows - 1);
        const Ridge ridge(random, 0.42 + 0.1 * nearness);
        const double base = horizon - 0.1 + 0.34 * nearness * nearness;
        const double amplitude = 0.13 - 0.07 * nearness;
        const QColor color = mixed(scene.farHills, scene.nearHills, nearness);
        QLinearGradient shade(0, (base - amplitude) * size.height(), 0, size.height());
        shade.setColorAt(0, color);
        shade.setColorAt(1, mixed(color, scene.skyHorizon, 0.35 * (1 - nearness)));
        painter.setBrush(shade);
        painter.drawPath(hillPath(ridge, base, amplitude, size));
        if (row < hillRows - 2)
            continue;
        painter.setBrush(color.darker(135));
        for (int tree = 0; tree < 40; ++tree) {
            const double x = random.generateDouble();
            const double y = base - amplitude * ridge.height(x) + 0.012;
            const double height = (0.04 + 0.07 * random.generateDouble()) * (0.4 + nearness);
            drawFir(painter, {x * size.width(), y * size.height()}, height * size.height());
        }
    }
}

/// Replaces the foot of the picture by the mirror image of what stands above it.
void drawLake(QImage& picture)
{
    const int shore = picture.height() * 74 / 100;
    const QImage above = picture.copy(0, 0, picture.width(), shore).mirrored();
    QPainter painter(&picture);
    painter.drawImage(0, shore, above);
    QLinearGradient depth(0, shore, 0, picture.height());
    depth.setColorAt(0, QColor(255, 255, 255, 50));
    depth.setColorAt(0.08, QColor(10, 30, 50, 40));
    depth.setColorAt(1, QColor(5, 15, 30, 150));
    painter.fillRect(0, shore, picture.width(), picture.height() - shore, depth);
    for (int y = shore; y < picture.height(); y += std::max(2, picture.height() / 160))
        painter.fillRect(0, y, picture.width(), 1, QColor(255, 255, 255, 14));
}

} // namespace

const std::array<Scene, 6>& scenes()
{
    static const std::array<Scene, 6> all{{
        {.name = u"dawn"_s,
         .skyTop = QColor(0x2b4a7a),
         .skyHorizon = QColor(0xf6b48f),
         .sun = QColor(0xffe0b0),
         .farHills = QColor(0xa98aa0),
         .nearHills = QColor(0x1e2b3a),
         .sunX = 0.66,
         .sunY = 0.44,
         .hasLake = true},
        {.name = u"noon"_s,
         .skyTop = QColor(0x2f78c4),
         .skyHorizon = QColor(0xcfe6f5),
         .sun = QColor(0xfffbe6),
         .farHills = QColor(0x8fb0c4),
         .nearHills = QColor(0x2f5a2a),
         .sunX = 0.22,
         .sunY = 0.16},
        {.name = u"autumn"_s,
         .skyTop = QColor(0x7aa0c0),
         .skyHorizon = QColor(0xf4e3c2),
         .sun = QColor(0xfff0c8),
         .farHills = QColor(0xc8a878),
         .nearHills = QColor(0x7a3a14),
         .sunX = 0.35,
         .sunY = 0.3,
         .isUpright = true},
        {.name = u"fog"_s,
         .skyTop = QColor(0xaab6bd),
         .skyHorizon = QColor(0xe6e9e8),
         .sun = QColor(0xf8f6ee),
         .farHills = QColor(0xc4cdd0),
         .nearHills = QColor(0x3c4a4c),
         .sunX = 0.55,
         .sunY = 0.25},
        {.name = u"dusk"_s,
         .skyTop = QColor(0x2a1f4e),
         .skyHorizon = QColor(0xf0745a),
         .sun = QColor(0xffc070),
         .farHills = QColor(0x8a4a6a),
         .nearHills = QColor(0x150f22),
         .sunX = 0.4,
         .sunY = 0.5,
         .hasLake = true,
         .isUpright = true},
        {.name = u"night"_s,
         .skyTop = QColor(0x060b1c),
         .skyHorizon = QColor(0x2c4a70),
         .sun = QColor(0xe8eef8),
         .farHills = QColor(0x24385a),
         .nearHills = QColor(0x04070e),
         .sunX = 0.75,
         .sunY = 0.2,
         .hasLake = true},
    }};
    return all;
}

QImage drawnLandscape(const Scene& scene, QSize size, quint32 variation)
{
    QRandomGenerator random(variation);
    QImage picture(size, QImage::Format_RGB32);
    {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        drawSky(painter, scene, size);
        drawClouds(painter, scene, size, random);
        drawHills(painter, scene, size, random);
    }
    if (scene.hasLake)
        drawLake(picture);
    return picture;
}

} // namespace brenvaldo::examples
