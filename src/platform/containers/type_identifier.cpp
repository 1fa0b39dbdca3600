// SPDX-License-Identifier: GPL-3.0-or-later
#include "type_identifier.h"

#include "signatures.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/regular_file.h>

#include <QFile>
#include <QHash>
#include <QStringList>

namespace brenvaldo::platform::containers {

namespace {

struct TypeRow
{
    const char* extensions; ///< parted by blanks
    const char* identifier;
};

// The JPEG 2000 family answers "public.jp2", the identifier of its writer.
constexpr TypeRow stillImages[] = {
    {"jpg jpeg jpe", "public.jpeg"},
    {"png", "public.png"},
    {"tif tiff", "public.tiff"},
    {"gif", "com.compuserve.gif"},
    {"bmp dib", "com.microsoft.bmp"},
    {"jp2 j2k jpx jpf j2c", "public.jp2"},
    {"heic", "public.heic"},
    {"heif hif", "public.heif"},
    {"heics", "public.heics"},
    {"heifs", "public.heifs"},
    {"avci", "public.avci"},
    {"avif", "public.avif"},
    {"webp", "org.webmproject.webp"},
    {"jxl", "public.jpeg-xl"},
    {"psd", "com.adobe.photoshop-image"},
    {"psb", "com.adobe.photoshop-large-image"},
    {"pdf", "com.adobe.pdf"},
    {"tga", "com.truevision.tga-image"},
    {"svg svgz", "public.svg-image"},
    {"ico", "com.microsoft.ico"},
    {"cur", "com.microsoft.cur"},
    {"icns", "com.apple.icns"},
    {"pict pct pic", "com.apple.pict"},
    {"exr", "com.ilm.openexr-image"},
    {"hdr", "public.radiance"},
    {"sgi", "com.sgi.sgi-image"},
    {"pbm pgm ppm", "public.pbm"},
    {"mpo", "public.mpo-image"},
    {"xbm", "public.xbitmap-image"},
    {"dds", "com.microsoft.dds"},
    {"ai", "com.adobe.illustrator.ai-image"},
    {"eps", "com.adobe.encapsulated-postscript"},
    {"ps", "com.adobe.postscript"},
};

constexpr TypeRow cameraRaw[] = {
    {"cr2", "com.canon.cr2-raw-image"},      {"cr3", "com.canon.cr3-raw-image"},
    {"crw", "com.canon.crw-raw-image"},      {"nef", "com.nikon.raw-image"},
    {"nrw", "com.nikon.nrw-raw-image"},      {"arw", "com.sony.arw-raw-image"},
    {"sr2", "com.sony.sr2-raw-image"},       {"srf", "com.sony.raw-image"},
    {"dng", "com.adobe.raw-image"},          {"raf", "com.fuji.raw-image"},
    {"orf ori", "com.olympus.or-raw-image"}, {"mos", "com.leafamerica.raw-image"},
    {"rw2", "com.panasonic.rw2-raw-image"},  {"raw", "com.panasonic.raw-image"},
    {"rwl", "com.leica.rwl-raw-image"},      {"pef", "com.pentax.raw-image"},
    {"srw", "com.samsung.raw-image"},        {"dcr", "com.kodak.raw-image"},
    {"mrw", "com.konicaminolta.raw-image"},  {"erf", "com.epson.raw-image"},
    {"3fr", "com.hasselblad.3fr-raw-image"}, {"fff", "com.hasselblad.fff-raw-image"},
    {"iiq", "com.phaseone.raw-image"},       {"dxo", "com.dxo.raw-image"},
};

constexpr TypeRow otherFiles[] = {
    {"txt text", "public.plain-text"},
    {"rtf", "public.rtf"},
    {"xml", "public.xml"},
    {"json", "public.json"},
    {"csv", "public.comma-separated-values-text"},
    {"plist", "com.apple.property-list"},
    {"mov", "com.apple.quicktime-movie"},
    {"html htm", "public.html"},
    {"xhtml", "public.xhtml"},
    {"css", "public.css"},
    {"js", "com.netscape.javascript-source"},
    {"md", "net.daringfireball.markdown"},
    {"zip", "public.zip-archive"},
    {"mp4", "public.mpeg-4"},
};

template <std::size_t Count>
void addRows(QHash<QString, QString>& table, const TypeRow (&rows)[Count])
{
    for (const TypeRow& row : rows) {
        const QStringList extensions = QString::fromLatin1(row.extensions).split(QLatin1Char(' '));
        for (const QString& extension : extensions)
            table.insert(extension, QString::fromLatin1(row.identifier));
    }
}

QHash<QString, QString> identifiersByExtension()
{
    QHash<QString, QString> table;
    addRows(table, stillImages);
    addRows(table, cameraRaw);
    addRows(table, otherFiles);
    return table;
}

/// The identifier of an extension that no type declares: a tag list in an alphabet of 32 letters,
/// 5 bits each, most significant bit first.
QString dynamicIdentifier(const QString& lowerCaseExtension)
{
    static constexpr char alphabet[] = "abcdefghkmnpqrstuvwxyz0123456789";
    const QByteArray tags = "?0=6:1=" + lowerCaseExtension.toUtf8();
    QString identifier = u"dyn.a"_s;
    unsigned pending = 0;
    int pendingBits = 0;
    for (const char byte : tags) {
        pending = (pending << 8U) | static_cast<unsigned char>(byte);
        pendingBits += 8;
        while (pendingBits >= 5) {
            pendingBits -= 5;
            identifier
                += QLatin1Char(alphabet[(pending >> static_cast<unsigned>(pendingBits)) & 31U]);
        }
    }
    if (pendingBits > 0)
        identifier
            += QLatin1Char(alphabet[(pending << static_cast<unsigned>(5 - pendingBits)) & 31U]);
    return identifier;
}

} // namespace

QString preferredTypeIdentifier(const QString& extension)
{
    static const QHash<QString, QString> table = identifiersByExtension();
    if (extension.isEmpty())
        return u"public.data"_s;
    const QString lowerCase = extension.toLower();
    const auto row = table.constFind(lowerCase);
    return row != table.constEnd() ? *row : dynamicIdentifier(lowerCase);
}

QString typeIdentifierOfContents(const QString& path)
{
    QFile file(path);
    if (!openRegularFile(file))
        return {};
    const auto kind = fileKindOf(file.read(fileKindLength));
    return kind ? QString::fromLatin1(kind->typeIdentifier) : QString();
}

} // namespace brenvaldo::platform::containers
