// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_file_writer.h"

#include "block_splicers.h"
#include "exif_root_fields.h"
#include "iptc_to_xmp.h"
#include "tiff_blocks.h"
#include "xmp_packet.h"

#include <platform/containers/exif_facts.h>
#include <platform/containers/mapped_file.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/output_file.h>
#include <platform/storage/atomic_file.h>

namespace brenvaldo::platform::metadata {

using codecs::FileFormat;
using containers::MetadataBlocks;
using graphics::Image;
using storage::AtomicFile;

namespace {

using Splicer = std::optional<QByteArrayList> (*)(QByteArrayView, const MetadataBlocks&);

/// Null for the formats that take no metadata, or take it from their encoder.
Splicer splicerFor(FileFormat format)
{
    switch (format) {
    case FileFormat::Jpeg:
        return splicedJpeg;
    case FileFormat::Png:
        return splicedPng;
    case FileFormat::Tiff:
        return splicedTiff;
    case FileFormat::Bmp:
    case FileFormat::Gif:
    case FileFormat::Jpeg2000:
    case FileFormat::Heic:
    case FileFormat::Pdf:
        return nullptr;
    }
    return nullptr;
}

bool writePieces(const QByteArrayList& pieces, const QString& path)
{
    OutputFile file(path);
    for (const QByteArray& piece : pieces)
        file.write(piece);
    if (!file.finish())
        log(u"Failed to write metadata: "_s + file.fault());
    return file.isWhole();
}

/// The blocks that a HEIC takes. It holds no IPTC and no Photoshop resources of its own: they stand
/// in the EXIF block. Programs that look for IPTC in XMP alone find it there, if it is no other's.
MetadataBlocks blocksForHeic(const MetadataBlocks& blocks, double dotsPerInch)
{
    containers::TiffDirectory fields;
    setBlock(fields, containers::tiff::Iptc, blocks.iptc);
    setBlock(fields, containers::tiff::PhotoshopResources, blocks.photoshop);
    const bool hasExif = containers::TiffFile::open(blocks.exif).has_value();
    MetadataBlocks result;
    result.exif
        = withRootFields(hasExif ? blocks.exif : containers::exifOfResolution(dotsPerInch), fields);
    result.xmp = completeXmp(blocks);
    if (result.xmp.isEmpty())
        result.xmp = xmpFromIptc(blocks.iptc);
    return result;
}

bool encodeWithBlocks(const Image& image, const ImageFileRequest& request, const QString& path)
{
    codecs::EncodeOptions options{.lossyQuality = request.lossyQuality, .blocks = nullptr};
    MetadataBlocks blocks;
    if (request.metadata && request.format == FileFormat::Heic) {
        blocks = blocksForHeic(*request.metadata, image.dotsPerInch());
        options.blocks = &blocks;
    }
    return codecs::encode(image, request.format, options, path);
}

bool encodeAndSplice(
    const Image& image, const ImageFileRequest& request, Splicer splicer, const AtomicFile& target
)
{
    const storage::TemporaryFile encoded(target.folder());
    const codecs::EncodeOptions options{.lossyQuality = request.lossyQuality, .blocks = nullptr};
    if (!codecs::encode(image, request.format, options, encoded.path()))
        return false;
    const containers::MappedFile file(encoded.path());
    const auto pieces = splicer(file.bytes(), *request.metadata);
    if (!pieces)
        log(u"Failed to write metadata: the file can't hold it"_s);
    return pieces && writePieces(*pieces, target.temporaryPath());
}

bool encodeInto(const Image& image, const ImageFileRequest& request, const AtomicFile& target)
{
    const Splicer splicer = request.metadata ? splicerFor(request.format) : nullptr;
    return splicer ? encodeAndSplice(image, request, splicer, target)
                   : encodeWithBlocks(image, request, target.temporaryPath());
}

QString reasonOf(const AtomicFile& unwritten)
{
    // The line before tells what kept its bytes from being made.
    return unwritten.fault().isEmpty() ? u"its contents are not whole"_s : unwritten.fault();
}

} // namespace

bool writeImageFile(const Image& image, const ImageFileRequest& request, const QString& path)
{
    AtomicFile target(path);
    const bool isWritten
        = target.isValid() && encodeInto(image, request, target) && target.commit();
    if (!isWritten)
        log(u"Failed to write %1: %2"_s.arg(path, reasonOf(target)));
    return isWritten;
}

} // namespace brenvaldo::platform::metadata
