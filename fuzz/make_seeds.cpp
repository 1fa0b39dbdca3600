// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the seeds of the fuzz targets that read binary data: make_seeds FOLDER.

#include <platform/archives/bookmark.h>
#include <platform/archives/color_archive.h>
#include <platform/foundation/literals.h>
#include <platform/graphics/engine.h>

#include <support/exif_block.h>
#include <support/photo_builder.h>
#include <support/psd_file.h>

#include <QDir>
#include <QFile>

using namespace brenvaldo;
using test::PhotoBuilder;
using test::PhotoFormat;
using test::PhotoModel;

namespace {

class SeedFolder
{
public:
    SeedFolder(const QString& top, const QString& reader)
        : m_folder(top + QLatin1Char('/') + reader)
    {
        if (!m_folder.mkpath(u"."_s))
            qFatal("the folder of seeds can't be made");
    }

    void add(const QString& name, const QByteArray& contents) const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
            qFatal("a seed can't be written");
    }

private:
    QDir m_folder;
};

void addPhotos(const SeedFolder& seeds)
{
    const auto small = [](PhotoFormat format) {
        PhotoBuilder builder;
        builder.size(11, 7).orientation(6).format(format);
        return builder;
    };
    seeds.add(u"jpeg"_s, small(PhotoFormat::Jpeg).bytes());
    seeds.add(u"progressive"_s, small(PhotoFormat::ProgressiveJpeg).bytes());
    seeds.add(u"cmyk"_s, small(PhotoFormat::Jpeg).model(PhotoModel::Cmyk).bytes());
    seeds.add(u"png"_s, small(PhotoFormat::Png).bytes());
    seeds.add(u"png16"_s, small(PhotoFormat::Png).depth(16).bytes());
    seeds.add(u"tiff"_s, small(PhotoFormat::Tiff).bytes());
    seeds.add(u"bmp"_s, small(PhotoFormat::Bmp).bytes());
    seeds.add(u"gif"_s, small(PhotoFormat::Gif).bytes());
    seeds.add(u"heic"_s, PhotoBuilder().format(PhotoFormat::Heic).bytes());
    seeds.add(u"jpeg2000"_s, small(PhotoFormat::Jpeg2000).bytes());
}

/// Photos with all that a camera and an editor write around the pixels.
void addAnnotatedPhotos(const SeedFolder& seeds)
{
    const QByteArray exif = test::exifBlock(
        {.orientation = 6,
         .make = "Maker",
         .dateTimeOriginal = "2026:11:15 10:44:33",
         .userComment = QByteArray("ASCII\0\0\0comment", 15),
         .makerNote = QByteArray(20, 'm'),
         .thumbnail = PhotoBuilder().size(4, 3).bytes(),
         .dotsPerInch = 300}
    );
    const QByteArray iptc(
        "Photoshop 3.0\0"
        "8BIM\x04\x04\0\0\0\0\0\x0A\x1C\x02\x50\0\x05"
        "Maker",
        36
    );
    for (const PhotoFormat format :
         {PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Tiff, PhotoFormat::Heic}) {
        PhotoBuilder photo;
        photo.size(11, 7).format(format).exif(exif).xmp("<x:xmpmeta xmlns:x='adobe:ns:meta/'/>");
        if (format == PhotoFormat::Jpeg)
            photo.jpegSegment('\xED', iptc);
        seeds.add(u"annotated%1"_s.arg(static_cast<int>(format)), photo.bytes());
    }
}

void addLayers(const SeedFolder& seeds)
{
    const QList<QByteArray> channels(4, QByteArray("aabbbc", 6));
    for (const bool isPacked : {false, true})
        seeds.add(
            u"layers%1"_s.arg(isPacked),
            test::psdFile({.size = {3, 2}, .channels = channels, .layers = -1, .isPacked = isPacked}
            )
        );
}

void addColors(const SeedFolder& seeds)
{
    const platform::archives::ColorComponents components{0.25F, 0.5F, 1};
    const auto add = [&](const QString& name, const QString& archive) {
        seeds.add(name, QByteArray::fromBase64(archive.toLatin1()));
    };
    add(u"stream"_s, platform::archives::colorArchive(components));
    add(u"keyed"_s, platform::archives::galleryColorArchive(components));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    const platform::graphics::Engine engine;
    const QString top = QFile::decodeName(argv[1]);
    addPhotos(SeedFolder(top, u"image_source"_s));
    addLayers(SeedFolder(top, u"image_source"_s));
    for (const QString& reader : {u"metadata_blocks"_s, u"metadata_edit"_s, u"metadata_splice"_s}) {
        addPhotos(SeedFolder(top, reader));
        addAnnotatedPhotos(SeedFolder(top, reader));
    }
    addColors(SeedFolder(top, u"color_archive"_s));
    SeedFolder(top, u"bookmark"_s)
        .add(u"folder"_s, platform::archives::bookmarkFor(QDir::rootPath()).value_or(QByteArray()));
    return 0;
}
