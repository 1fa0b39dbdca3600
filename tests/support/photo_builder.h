// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QString>

#include <array>
#include <functional>

namespace brenvaldo::test {

enum class PhotoFormat { Jpeg, ProgressiveJpeg, Png, Tiff, Bmp, Gif, Heic, Jpeg2000 };

enum class PhotoModel { Gray, GrayAlpha, Rgb, RgbAlpha, Cmyk };

/// Samples of one pixel from 0 to 255, as many as the model has; deeper photos hold them times 257.
using Samples = std::array<int, 5>;

/// Makes photos for tests: stored pixels by a rule, and what a camera writes around them.
///
/// Without further calls a 47 x 33 8-bit RGB gradient. The same calls give the same bytes.
class PhotoBuilder
{
public:
    /// Stored pixels, before the orientation.
    PhotoBuilder& size(int width, int height);
    PhotoBuilder& model(PhotoModel model);
    /// 8 or 16.
    PhotoBuilder& depth(int bits);

    /// Every pixel the same; further samples of `samples` than the model has are ignored.
    PhotoBuilder& solid(const Samples& samples);
    /// First sample grows from left to right, second from top to bottom, third against both.
    PhotoBuilder& gradient();
    /// Dark grey with four blocks of a quarter of the sides: red at the top left, green at the top
    /// right, blue at the bottom left, white at the bottom right. In a grey photo they are 85, 150,
    /// 200 and 255.
    PhotoBuilder& corners();
    /// Pixels by a rule of one's own, from (0, 0) at the top left.
    PhotoBuilder& pixels(std::function<Samples(int x, int y)> rule);

    /// The tag of an EXIF block (JPEG, PNG, HEIC) or of the TIFF directory.
    PhotoBuilder& orientation(int orientation);
    PhotoBuilder& dotsPerInch(double dotsPerInch);
    PhotoBuilder& iccProfile(const QByteArray& profile);
    /// A TIFF structure for JPEG, PNG and HEIC, instead of the one that holds the orientation.
    PhotoBuilder& exif(const QByteArray& block);
    /// An XMP packet for JPEG, PNG and HEIC.
    PhotoBuilder& xmp(const QByteArray& packet);
    /// A whole further segment of a JPEG, in front of the picture.
    PhotoBuilder& jpegSegment(char marker, const QByteArray& contents);
    /// Rotation box of a HEIC as for the orientation 3, 6 or 8; both sides multiples of 64.
    PhotoBuilder& heicTransformation(int orientation);
    /// States the size after the rotation of a HEIC instead of the coded one, as some programs do.
    PhotoBuilder& statesTurnedSize();
    PhotoBuilder& format(PhotoFormat format);
    /// 1 to 100 for JPEG, HEIC and JPEG 2000 (100: lossless).
    PhotoBuilder& quality(int quality);

    /// The bytes of the file.
    [[nodiscard]] QByteArray bytes() const;

    /// Writes the file `path` and answers the path.
    QString write(const QString& path) const;

    /// Samples of the stored pixel at (x, y) as the rule has them.
    [[nodiscard]] Samples samplesAt(int x, int y) const;

private:
    enum class Pattern { Solid, Gradient, Corners, Rule };

    [[nodiscard]] QByteArray exifBytes() const;
    [[nodiscard]] QByteArray jpeg() const;
    [[nodiscard]] QByteArray png() const;
    [[nodiscard]] QByteArray heic() const;
    [[nodiscard]] QByteArray bmp() const;

    QSize m_size = {47, 33};
    PhotoModel m_model = PhotoModel::Rgb;
    int m_depth = 8;
    Pattern m_pattern = Pattern::Gradient;
    Samples m_solid = {};
    std::function<Samples(int, int)> m_rule;
    int m_orientation = 0;
    double m_dotsPerInch = 0;
    QByteArray m_iccProfile;
    QByteArray m_exif;
    QByteArray m_xmp;
    QList<QByteArray> m_jpegSegments;
    int m_heicTransformation = 1;
    bool m_statesTurnedSize = false;
    PhotoFormat m_format = PhotoFormat::Jpeg;
    int m_quality = 95;

    friend struct PhotoPixels;
};

} // namespace brenvaldo::test
