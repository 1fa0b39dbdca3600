// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_profile.h"
#include "deferred_pixels.h"
#include "photo_decoder.h"
#include "tiff_samples.h"

namespace brenvaldo::platform {

namespace {

/// A TIFF that the engine can't read; decoded whole.
class TiffPhoto : public PhotoDecoder
{
public:
    TiffPhoto(QString path, TiffSamples samples)
        : m_path(std::move(path))
        , m_samples(std::move(samples))
    {
        checkDecodedWhole(m_samples.size);
        m_header.storedSize = m_samples.size;
        m_header.orientation = m_samples.orientation;
        m_header.uprightSize = uprightSize(m_samples.size, m_samples.orientation);
        m_header.typeIdentifier = QStringLiteral("public.tiff");
        m_header.bitsPerComponent = m_samples.bits;
        m_header.colorModel = m_samples.bands == 1 ? ColorModel::Gray : ColorModel::Rgb;
        m_header.hasAlpha = m_samples.bands > colorBands(m_header.colorModel);
        m_header.dotsPerInch = m_samples.labels.dotsPerInch.value_or(m_header.dotsPerInch);
    }

    [[nodiscard]] const ImageHeader& header() const override { return m_header; }

    [[nodiscard]] ImageNode storedPixels(int /*shrink*/) const override
    {
        ImageNode node;
        node.colorModel = m_header.colorModel;
        node.hasAlpha = m_header.hasAlpha;
        node.dotsPerInch = m_header.dotsPerInch;
        node.iccProfile = usableProfile(m_samples.labels.iccProfile, node.colorModel);
        node.decodingBytes = sizeOf(layoutOf(m_samples));
        node.pixels = deferredPixels(layoutOf(m_samples), [path = m_path, samples = m_samples] {
            return readTiffSamples(path, samples);
        });
        return node;
    }

private:
    QString m_path;
    TiffSamples m_samples;
    ImageHeader m_header;
};

} // namespace

std::unique_ptr<PhotoDecoder> openUnusualTiff(const QString& path)
{
    auto samples = samplesBeyondTheEngine(path);
    return samples ? std::make_unique<TiffPhoto>(path, std::move(*samples)) : nullptr;
}

} // namespace brenvaldo::platform
