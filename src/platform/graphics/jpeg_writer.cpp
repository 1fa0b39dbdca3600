// SPDX-License-Identifier: GPL-3.0-or-later
#include "encoders.h"

#include <QFile>

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform {

namespace {

constexpr double defaultQuality = 0.9;
constexpr double mostSubsampledQuality = 0.9;

QByteArray bigEndian16(qsizetype value)
{
    const char bytes[] = {static_cast<char>(value >> 8), static_cast<char>(value & 0xFF)};
    return {bytes, 2};
}

/// A segment: marker, length, contents of at most 65533 bytes.
QByteArray segment(char marker, const QByteArray& contents)
{
    return QByteArray("\xFF", 1) + marker + bigEndian16(contents.size() + 2) + contents;
}

QByteArray densitySegment(double dotsPerInch)
{
    constexpr char application0 = '\xE0';
    const QByteArray density
        = bigEndian16(std::clamp<qsizetype>(std::lround(dotsPerInch), 1, 0xFFFF));
    const QByteArray versionAndUnit("JFIF\0\1\1\1", 8);
    const QByteArray noThumbnail(2, '\0');
    return segment(application0, versionAndUnit + density + density + noThumbnail);
}

/// The profile, in as many numbered segments as it needs.
QByteArray profileSegments(const QByteArray& profile)
{
    constexpr char application2 = '\xE2';
    constexpr qsizetype mostBytes = 65519; // what a segment holds beside its label
    const qsizetype count = (profile.size() + mostBytes - 1) / mostBytes;
    constexpr qsizetype mostSegments = 255;
    if (count > mostSegments)
        return {};
    QByteArray segments;
    for (qsizetype i = 0; i < count; ++i) {
        const QByteArray label
            = QByteArray("ICC_PROFILE\0", 12) + static_cast<char>(i + 1) + static_cast<char>(count);
        segments += segment(application2, label + profile.mid(i * mostBytes, mostBytes));
    }
    return segments;
}

/// Receives the bytes of the encoder and puts segments behind the start of the image.
class JpegFile
{
public:
    JpegFile(const QString& path, QByteArray segments)
        : m_file(path)
        , m_segments(std::move(segments))
        , m_isWhole(m_file.open(QIODevice::WriteOnly))
    {
    }

    /// False when any byte so far could not be written.
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

    void write(const char* bytes, qint64 length)
    {
        constexpr qint64 startLength = 2;
        const qint64 startBytes = std::clamp<qint64>(startLength - m_received, 0, length);
        append(bytes, startBytes);
        m_received += length;
        if (startBytes > 0 && m_received >= startLength)
            append(m_segments.constData(), m_segments.size());
        append(bytes + startBytes, length - startBytes);
    }

    void finish() { m_isWhole = m_isWhole && m_file.flush(); }

private:
    void append(const char* bytes, qint64 length)
    {
        m_isWhole = m_isWhole && m_file.write(bytes, length) == length;
    }

    QFile m_file;
    QByteArray m_segments;
    qint64 m_received = 0;
    bool m_isWhole;
};

gint64 writeToFile(VipsTargetCustom* /*target*/, const void* bytes, gint64 length, gpointer file)
{
    auto* jpeg = static_cast<JpegFile*>(file);
    jpeg->write(static_cast<const char*>(bytes), length);
    return jpeg->isWhole() ? length : -1;
}

} // namespace

void encodeJpeg(const ImageNode& node, std::optional<double> quality, const QString& path)
{
    const ImageNode fitted
        = fittedTo(node, {.alpha = AlphaSupport::Flattens, .depth = DepthSupport::EightBits});
    const double asked = quality.value_or(defaultQuality);
    JpegFile file(path, densitySegment(fitted.dotsPerInch) + profileSegments(fitted.iccProfile));
    VipsTargetCustom* target = vips_target_custom_new();
    g_signal_connect(target, "write", G_CALLBACK(writeToFile), &file);
    const vips::VTarget owned(VIPS_TARGET(target));
    fitted.pixels.jpegsave_target(
        owned,
        vips::VImage::option()
            ->set("Q", static_cast<int>(std::clamp(std::lround(asked * 100), 1L, 100L)))
            ->set("strip", true)
            ->set("optimize_coding", false)
            ->set(
                "subsample_mode",
                asked > mostSubsampledQuality ? VIPS_FOREIGN_SUBSAMPLE_OFF
                                              : VIPS_FOREIGN_SUBSAMPLE_ON
            )
    );
    file.finish();
    if (!file.isWhole())
        throw vips::VError("the file can't be written");
}

} // namespace brenvaldo::platform
