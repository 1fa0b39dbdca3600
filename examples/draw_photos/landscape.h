// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QString>

#include <array>

namespace brenvaldo::examples {

/// What a drawn landscape looks like. Places are fractions of the picture, from its top left.
struct Scene
{
    QString name;
    QColor skyTop;
    QColor skyHorizon;
    QColor sun;
    QColor farHills;
    QColor nearHills;
    double sunX = 0.5;
    double sunY = 0.3;
    bool hasLake = false;
    bool isUpright = false;
};

/// Six scenes from dawn to night, by season and light.
[[nodiscard]] const std::array<Scene, 6>& scenes();

/// Draws `scene`; another `variation` gives other hills and trees in the same light.
[[nodiscard]] QImage drawnLandscape(const Scene& scene, QSize size, quint32 variation);

/// Adds the noise of a camera's sensor to each pixel, the same for the same `variation`.
void addSensorNoise(QImage& picture, quint32 variation);

} // namespace brenvaldo::examples
