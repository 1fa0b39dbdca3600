// SPDX-License-Identifier: GPL-3.0-or-later
#include "encoders.h"
#include "engine_target.h"

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform::codecs {

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

} // namespace

void encodeJpeg(const graphics::ImageNode& node, std::optional<double> quality, OutputFile& file)
{
    const graphics::ImageNode fitted
        = fittedTo(node, {.alpha = AlphaSupport::Flattens, .depth = DepthSupport::EightBits});
    const double asked = quality.value_or(defaultQuality);
    constexpr qint64 startLength = 2;
    EngineTarget way(
        file,
        {.at = startLength,
         .bytes = densitySegment(fitted.dotsPerInch) + profileSegments(fitted.iccProfile)}
    );
    fitted.pixels.jpegsave_target(
        way.target(),
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
}

} // namespace brenvaldo::platform::codecs
