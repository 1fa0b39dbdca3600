// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo_builder.h"

#include <platform/codecs/image_source.h>
#include <platform/graphics/image.h>

#include <QColor>
#include <QImage>

#include <gmock/gmock.h>

namespace brenvaldo::test {

/// Opens a photo that must be readable.
inline platform::codecs::ImageSource openedPhoto(const QString& path)
{
    auto source = platform::codecs::ImageSource::open(path);
    if (!source)
        qFatal("a photo of a test can't be opened");
    return *source;
}

/// The evaluated stored pixels of a photo; null when it is damaged.
inline QImage storedPixels(const QString& path)
{
    const auto source = platform::codecs::ImageSource::open(path);
    const auto image = source ? source->image() : std::nullopt;
    return image ? image->toQImage() : QImage();
}

inline QImage uprightPixels(const QString& path)
{
    const auto source = platform::codecs::ImageSource::open(path);
    const auto image = source ? source->uprightImage() : std::nullopt;
    return image ? image->toQImage() : QImage();
}

/// The names of the colours in the corners of a `PhotoBuilder::corners` photo: top left, top
/// right, bottom left, bottom right; R, G, B or W, and "?" for any other.
inline std::string cornerColors(const QImage& image)
{
    const auto nameAt = [&image](int x, int y) {
        const QColor color = image.pixelColor(x, y);
        const bool red = color.red() > 180;
        const bool green = color.green() > 180;
        const bool blue = color.blue() > 180;
        if (red && green && blue)
            return 'W';
        return red && !green && !blue ? 'R'
            : green && !red && !blue  ? 'G'
            : blue && !red && !green  ? 'B'
                                      : '?';
    };
    const int right = image.width() - 2;
    const int bottom = image.height() - 2;
    return {nameAt(1, 1), nameAt(right, 1), nameAt(1, bottom), nameAt(right, bottom)};
}

/// The largest difference of any sample of two pictures; 255 when their sizes differ.
inline int largestDifference(const QImage& first, const QImage& second)
{
    if (first.size() != second.size())
        return 255;
    int largest = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            largest = std::max(
                {largest,
                 std::abs(qRed(a) - qRed(b)),
                 std::abs(qGreen(a) - qGreen(b)),
                 std::abs(qBlue(a) - qBlue(b)),
                 std::abs(qAlpha(a) - qAlpha(b))}
            );
        }
    }
    return largest;
}

} // namespace brenvaldo::test
