// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "watermark_fixture.h"

#include <support/pixel_probe.h>

#include <QImage>

namespace brenvaldo::test {

/// A panel set to an opaque red image of 20 x 10 pixels at the top left of the photo.
class ImageWatermark : public WatermarkFixture
{
protected:
    ImageWatermark()
    {
        panel.scImageWaterMarkPos.setSelectedSegment(0);
        useImage(solidImage(20, 10, QColor(200, 40, 20)));
    }

    static QImage solidImage(int width, int height, const QColor& color)
    {
        QImage image(width, height, QImage::Format_RGBA8888);
        image.fill(color);
        return image;
    }

    /// Writes the image of the watermark.
    QString useImage(const QImage& image, const QString& name = u"logo.png"_s)
    {
        const QString path = sources.path(name);
        image.save(path, "PNG");
        panel.tfWaterMarkImageFilePath.setStringValue(path);
        return path;
    }

    QString grayPhoto(const QString& name = u"a.png"_s, QSize size = {120, 80})
    {
        return PhotoBuilder()
            .size(size.width(), size.height())
            .solid({100, 100, 100})
            .format(PhotoFormat::Png)
            .write(sources.path(name));
    }

    QString run(const QStringList& photos, const QString& outputType = u"public.png"_s)
    {
        return mark.setWatermarkImage(runOf(photos, outputType), sink);
    }

    /// The pixels that a run makes of a grey photo.
    QImage marked(QSize size = {120, 80})
    {
        run({grayPhoto(u"a.png"_s, size)});
        return storedPixels(folder.path(u"a.png"_s));
    }

    /// The rectangle of the pixels that are not the photo's grey.
    static QRect markedArea(const QImage& image)
    {
        QRect area;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) != qRgb(100, 100, 100))
                    area = area.united({x, y, 1, 1});
            }
        }
        return area;
    }
};

} // namespace brenvaldo::test
