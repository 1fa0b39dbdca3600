// SPDX-License-Identifier: GPL-3.0-or-later
#include "claimed_size.h"
#include "jpeg2000_boxes.h"
#include "jpeg_rows.h"
#include "opened_photo.h"
#include "photo_decoder.h"
#include "png_header.h"
#include "tiff_claim.h"

#include <platform/containers/exif_facts.h>
#include <platform/containers/jpeg_segments.h>
#include <platform/containers/mapped_file.h>
#include <platform/graphics/color_profile.h>
#include <platform/graphics/deferred_pixels.h>
#include <platform/graphics/engine.h>

#include <array>

namespace brenvaldo::platform::codecs {

using graphics::ImageNode;

namespace {

struct StreamedType
{
    const char* typeIdentifier;
    const char* loader;
    VipsFailOn failOn = VIPS_FAIL_ON_TRUNCATED;
};

constexpr std::array streamedTypes = {
    StreamedType{"public.jpeg", "jpegload_source"},
    StreamedType{"public.png", "pngload_source"},
    StreamedType{"public.tiff", "tiffload_source"},
    // Blocks that make no sense show that those before them ended early.
    StreamedType{"com.compuserve.gif", "gifload_source", VIPS_FAIL_ON_WARNING},
    StreamedType{"public.jp2", "jp2kload_source"},
    StreamedType{"org.webmproject.webp", "webpload_source"},
    StreamedType{"public.jpeg-xl", "jxlload_source"},
    StreamedType{"public.pbm", "ppmload_source"},
};

const StreamedType* streamedType(const QString& typeIdentifier)
{
    for (const StreamedType& type : streamedTypes) {
        if (typeIdentifier == QLatin1String(type.typeIdentifier))
            return &type;
    }
    return nullptr;
}

vips::VImage load(const StreamedType& type, const SharedPhoto& file, int shrink)
{
    vips::VImage out;
    vips::VOption* options = vips::VImage::option()
                                 ->set("source", readingSource(file))
                                 ->set("out", &out)
                                 ->set("access", VIPS_ACCESS_SEQUENTIAL)
                                 ->set("fail_on", type.failOn);
    if (shrink > 1)
        options->set("shrink", shrink);
    const int madeUpBefore = graphics::madeUpParts();
    vips::VImage::call(type.loader, options);
    if (graphics::madeUpParts() != madeUpBefore)
        throw vips::VError("the header of the file can't be true");
    return out;
}

int integerField(const vips::VImage& decoded, const char* name, int fallback)
{
    return decoded.get_typeof(name) == G_TYPE_INT ? decoded.get_int(name) : fallback;
}

QByteArray jpegExifOf(const QString& path)
{
    const containers::MappedFile file(path);
    const auto header = containers::readJpegHeader(file.bytes());
    return header ? containers::jpegExif(*header) : QByteArray();
}

/// The EXIF block that the engine found in the file; empty without one.
QByteArray engineExif(const vips::VImage& decoded)
{
    if (decoded.get_typeof(VIPS_META_EXIF_NAME) == 0)
        return {};
    std::size_t length = 0;
    const auto* data = static_cast<const char*>(decoded.get_blob(VIPS_META_EXIF_NAME, &length));
    const QByteArrayView block(data, static_cast<qsizetype>(length));
    const QByteArrayView header = containers::jpeg::exifHeader;
    return block.sliced(block.startsWith(header) ? header.size() : 0).toByteArray();
}

/// The engine doesn't know all types of number in which files state it, so it is not asked.
int statedOrientation(
    const QString& path, const QString& typeIdentifier, const vips::VImage& decoded
)
{
    if (typeIdentifier == QLatin1String("public.jpeg"))
        return containers::readExifFacts(jpegExifOf(path)).orientation;
    if (typeIdentifier == QLatin1String("public.tiff"))
        return containers::readExifFacts(containers::MappedFile(path).bytes()).orientation;
    if (typeIdentifier == QLatin1String("public.jpeg-xl"))
        return 1; // decoded upright
    return containers::readExifFacts(engineExif(decoded)).orientation;
}

bool isProgressiveJpeg(const vips::VImage& decoded)
{
    return integerField(decoded, "interlaced", 0) != 0
        || integerField(decoded, "jpeg-multiscan", 0) != 0;
}

/// Refuses pictures that would take absurd amounts of time and memory.
void checkSize(const vips::VImage& decoded, bool isJpeg)
{
    constexpr qint64 mostPixels = qint64{1} << 30;
    constexpr qint64 mostProgressivePixels = qint64{1} << 28; // all coefficients stay in memory
    constexpr int mostBands = 64;
    const bool isProgressive = isJpeg && isProgressiveJpeg(decoded);
    const qint64 pixels = qint64{decoded.width()} * decoded.height();
    if (pixels > (isProgressive ? mostProgressivePixels : mostPixels)
        || decoded.bands() > mostBands)
        throw vips::VError("the picture is too large");
}

HeaderFacts jpeg2000HeaderFacts(QByteArrayView file)
{
    // The decoder fills what is missing and now and then forgets to say so.
    if (!holdsWholeCodeStream(file))
        throw vips::VError("the code stream is cut off");
    return readJpeg2000HeaderFacts(file);
}

/// What the engine doesn't read from the header of a file.
HeaderFacts headerFacts(const QString& path, const QString& typeIdentifier)
{
    if (typeIdentifier == QLatin1String("public.jp2"))
        return jpeg2000HeaderFacts(containers::MappedFile(path).bytes());
    if (typeIdentifier == QLatin1String("public.png"))
        return readPngHeaderFacts(containers::MappedFile(path).bytes());
    return {};
}

/// A file that is decoded from top to bottom while its pixels are used.
class StreamedPhoto : public PhotoDecoder
{
public:
    StreamedPhoto(const QString& path, const StreamedType& type)
        : m_file(std::make_shared<OpenedPhoto>(path))
        , m_type(type)
        , m_isJpeg(QLatin1String(type.loader) == QLatin1String("jpegload_source"))
    {
        const vips::VImage decoded = load(m_type, m_file, 1);
        checkSize(decoded, m_isJpeg);
        const ImageNode node = graphics::nodeOfDecodedPixels(decoded);
        if (m_isJpeg && isProgressiveJpeg(decoded))
            m_decodingBytes = graphics::sizeOf(graphics::layoutOf(decoded))
                * sizeof(short); // all its coefficients
        m_header.typeIdentifier = QLatin1String(type.typeIdentifier);
        m_header.storedSize = {decoded.width(), decoded.height()};
        m_header.orientation = statedOrientation(m_file->path(), m_header.typeIdentifier, decoded);
        m_header.uprightSize = uprightSize(m_header.storedSize, m_header.orientation);
        m_header.bitsPerComponent = static_cast<int>(vips_format_sizeof(decoded.format())) * 8;
        const bool isLab = decoded.interpretation() == VIPS_INTERPRETATION_LAB
            || decoded.interpretation() == VIPS_INTERPRETATION_LABS;
        m_header.colorModel = isLab ? graphics::ColorModel::Lab : node.colorModel;
        m_header.hasAlpha = node.hasAlpha;
        m_facts = headerFacts(m_file->path(), m_header.typeIdentifier);
        checkBytes();
        m_header.dotsPerInch = m_facts.dotsPerInch.value_or(node.dotsPerInch);
    }

    [[nodiscard]] const ImageHeader& header() const override { return m_header; }

    [[nodiscard]] std::vector<int> shrinkFactors() const override
    {
        return m_isJpeg ? std::vector{1, 2, 4, 8} : std::vector{1};
    }

    [[nodiscard]] ImageNode storedPixels(int shrink) const override
    {
        const vips::VImage loaded = load(m_type, m_file, shrink);
        ImageNode node
            = graphics::nodeOfDecodedPixels(m_isJpeg ? jpegRows(m_file, shrink, loaded) : loaded);
        node.dotsPerInch = m_header.dotsPerInch;
        node.decodingBytes = m_decodingBytes;
        if (!m_facts.iccProfile.isEmpty())
            node.iccProfile = graphics::usableProfile(m_facts.iccProfile, node.colorModel);
        return node;
    }

private:
    /// Refuses a file that is too short for its header.
    void checkBytes() const
    {
        if (m_isJpeg)
            checkJpegSize(m_file->path());
        else if (m_header.typeIdentifier == QLatin1String("public.tiff"))
            checkTiffSize(m_file->path());
        else
            checkClaimedSize(m_file->path(), m_header.typeIdentifier, m_header.storedSize);
    }

    SharedPhoto m_file;
    const StreamedType& m_type;
    bool m_isJpeg;
    ImageHeader m_header;
    std::size_t m_decodingBytes = 0;
    HeaderFacts m_facts;
};

} // namespace

bool isStreamedType(const QString& typeIdentifier)
{
    return streamedType(typeIdentifier) != nullptr;
}

std::unique_ptr<PhotoDecoder> openStreamedPhoto(const QString& path, const QString& typeIdentifier)
{
    return std::make_unique<StreamedPhoto>(path, *streamedType(typeIdentifier));
}

} // namespace brenvaldo::platform::codecs
