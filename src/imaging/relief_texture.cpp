// SPDX-License-Identifier: GPL-3.0-or-later
#include "relief_texture.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/memo.h>
#include <platform/graphics/color.h>

#include <QHash>

#include <algorithm>
#include <array>
#include <cmath>

namespace brenvaldo::imaging {

namespace {

using Vector = std::array<double, 3>;

/// A material and the lamp above it.
struct Material
{
    platform::graphics::Color shade; ///< colour of what is turned away from the light
    platform::graphics::Color body; ///< colour of what faces the light
    platform::graphics::Color highlight;
    double shininess = 20;
    Vector light{}; ///< direction to the lamp: right, up, towards the viewer
};

Vector normalized(const Vector& v)
{
    const double length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    return {v[0] / length, v[1] / length, v[2] / length};
}

double dot(const Vector& a, const Vector& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

const QHash<QString, Material>& materials()
{
    static const QHash<QString, Material> table{
        // Glass: clear, with a cold highlight.
        {u"texture1"_s,
         {{.red = .35, .green = .40, .blue = .46},
          {.red = .86, .green = .89, .blue = .92},
          {.red = 1, .green = 1, .blue = 1},
          28,
          {-.5, .7, .8}}},
        // Gold.
        {u"texture2"_s,
         {{.red = .32, .green = .17, .blue = .02},
          {.red = .93, .green = .70, .blue = .24},
          {.red = 1, .green = .97, .blue = .78},
          18,
          {-.5, .7, .7}}},
        // Silver.
        {u"texture3"_s,
         {{.red = .16, .green = .17, .blue = .19},
          {.red = .75, .green = .77, .blue = .80},
          {.red = 1, .green = 1, .blue = 1},
          40,
          {-.6, .8, .5}}},
        // Copper.
        {u"texture4"_s,
         {{.red = .24, .green = .08, .blue = .04},
          {.red = .80, .green = .46, .blue = .32},
          {.red = 1, .green = .88, .blue = .80},
          16,
          {-.4, .8, .6}}},
        // Stone: hardly a highlight.
        {u"texture5"_s,
         {{.red = .26, .green = .25, .blue = .24},
          {.red = .72, .green = .70, .blue = .66},
          {.red = .80, .green = .79, .blue = .76},
          4,
          {-.7, .6, .6}}},
        // Ceramic.
        {u"texture6"_s,
         {{.red = .45, .green = .44, .blue = .42},
          {.red = .95, .green = .94, .blue = .92},
          {.red = 1, .green = 1, .blue = 1},
          60,
          {-.4, .6, .9}}},
        // Night blue.
        {u"texture7"_s,
         {{.red = .02, .green = .05, .blue = .14},
          {.red = .20, .green = .36, .blue = .66},
          {.red = .86, .green = .93, .blue = 1},
          24,
          {-.5, .7, .7}}},
        // Ice.
        {u"texture8"_s,
         {{.red = .20, .green = .36, .blue = .48},
          {.red = .74, .green = .90, .blue = .96},
          {.red = 1, .green = 1, .blue = 1},
          36,
          {.5, .7, .7}}},
    };
    return table;
}

/// The normal of the ball at a point of its disc; beyond the rim that of the rim.
Vector normalAt(double x, double y)
{
    const double distance = std::hypot(x, y);
    if (distance >= 1)
        return {x / distance, y / distance, 0};
    return {x, y, std::sqrt(1 - distance * distance)};
}

QRgb shadeOf(const Material& material, const Vector& normal)
{
    const Vector light = normalized(material.light);
    const Vector halfway = normalized({light[0], light[1], light[2] + 1});
    const double lambert = std::max(0.0, dot(normal, light));
    const double gloss = std::pow(std::max(0.0, dot(normal, halfway)), material.shininess);
    const auto level = [&](double shade, double body, double highlight) {
        const double lit = std::lerp(std::lerp(shade, body, lambert), highlight, gloss);
        return static_cast<int>(std::clamp(lit, 0.0, 1.0) * 255 + 0.5);
    };
    return qRgb(
        level(material.shade.red, material.body.red, material.highlight.red),
        level(material.shade.green, material.body.green, material.highlight.green),
        level(material.shade.blue, material.body.blue, material.highlight.blue)
    );
}

QImage drawnTexture(const QString& name)
{
    const auto material = materials().find(name);
    if (material == materials().end())
        return {};
    constexpr int side = 256;
    constexpr double radius = side / 2.0;
    QImage ball(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < side; ++row) {
        auto* pixels = reinterpret_cast<QRgb*>(ball.scanLine(row));
        for (int column = 0; column < side; ++column) {
            const double x = (column + 0.5) / radius - 1;
            const double y = 1 - (row + 0.5) / radius;
            pixels[column] = shadeOf(*material, normalAt(x, y));
        }
    }
    return ball;
}

} // namespace

QImage reliefTexture(const QString& name)
{
    static platform::Memo<QString, QImage> textures;
    return textures.value(name, drawnTexture);
}

} // namespace brenvaldo::imaging
