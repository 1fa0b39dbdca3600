// SPDX-License-Identifier: GPL-3.0-or-later
#include "signatures.h"

#include "bytes.h"

#include <algorithm>
#include <string_view>

namespace brenvaldo::platform::containers {

namespace {

using namespace std::string_view_literals;

struct Signature
{
    qsizetype offset;
    std::string_view bytes;
    FileKind kind;
};

// More specific signatures stand before the general ones that they share bytes with.
constexpr Signature signatures[] = {
    {0, "\xFF\xD8\xFF"sv, {Container::Jpeg, "public.jpeg"}},
    {0, "\x89PNG\r\n\x1A\n"sv, {Container::Png, "public.png"}},
    {0, "GIF87a"sv, {Container::Gif, "com.compuserve.gif"}},
    {0, "GIF89a"sv, {Container::Gif, "com.compuserve.gif"}},
    {8, "CR\x02"sv, {Container::Tiff, "com.canon.cr2-raw-image"}},
    {0, "II*\0"sv, {Container::Tiff, "public.tiff"}},
    {0, "MM\0*"sv, {Container::Tiff, "public.tiff"}},
    {0, "II+\0"sv, {Container::Tiff, "public.tiff"}},
    {0, "MM\0+"sv, {Container::Tiff, "public.tiff"}},
    {0, "\0\0\0\x0CjP  \r\n\x87\n"sv, {Container::Jpeg2000, "public.jp2"}},
    {0, "\xFF\x4F\xFF\x51"sv, {Container::Jpeg2000, "public.jp2"}},
    {0, "\0\0\0\x0CJXL \r\n\x87\n"sv, {Container::JpegXl, "public.jpeg-xl"}},
    {0, "\xFF\x0A"sv, {Container::JpegXl, "public.jpeg-xl"}},
    {8, "WEBP"sv, {Container::Webp, "org.webmproject.webp"}},
    {0, "8BPS\0\1"sv, {Container::Photoshop, "com.adobe.photoshop-image"}},
    {0, "8BPS\0\2"sv, {Container::Photoshop, "com.adobe.photoshop-large-image"}},
    {0, "%PDF-"sv, {Container::Other, "com.adobe.pdf"}},
    {0, "v/1\1"sv, {Container::Other, "com.ilm.openexr-image"}},
    {0, "#?RADIANCE"sv, {Container::Other, "public.radiance"}},
    {0, "\0\0\1\0"sv, {Container::Other, "com.microsoft.ico"}},
    {0, "\0\0\2\0"sv, {Container::Other, "com.microsoft.cur"}},
    {0, "icns"sv, {Container::Other, "com.apple.icns"}},
    {0, "DDS "sv, {Container::Other, "com.microsoft.dds"}},
    {0, "BM"sv, {Container::Bitmap, "com.microsoft.bmp"}},
};

struct Brand
{
    std::string_view code;
    const char* identifier;
};

constexpr Brand brands[] = {
    {"heic"sv, "public.heic"},
    {"heix"sv, "public.heic"},
    {"heim"sv, "public.heic"},
    {"heis"sv, "public.heic"},
    {"hevc"sv, "public.heics"},
    {"hevx"sv, "public.heics"},
    {"avif"sv, "public.avif"},
    {"avis"sv, "public.avif"},
    {"avci"sv, "public.avci"},
    {"mif1"sv, "public.heif"},
    {"mif2"sv, "public.heif"},
    {"msf1"sv, "public.heifs"},
};

const char* identifierOfBrand(QByteArrayView code)
{
    for (const Brand& brand : brands) {
        if (code == QByteArrayView(brand.code.data(), 4))
            return brand.identifier;
    }
    return nullptr;
}

/// The type of a file that begins with a file type box; the brands after a general major brand
/// tell the coding.
const char* identifierOfFileTypeBox(QByteArrayView head)
{
    const QByteArrayView majorBrand = head.sliced(8, 4);
    const char* identifier = identifierOfBrand(majorBrand);
    if (majorBrand != QByteArrayView("mif1") && majorBrand != QByteArrayView("msf1"))
        return identifier;
    const auto boxLength
        = (static_cast<unsigned char>(head[2]) << 8) | static_cast<unsigned char>(head[3]);
    for (qsizetype at = 16; at + 4 <= std::min<qsizetype>(head.size(), boxLength); at += 4) {
        const QByteArrayView compatible = head.sliced(at, 4);
        if (compatible.startsWith("hei") || compatible == QByteArrayView("avif"))
            return identifierOfBrand(compatible);
    }
    return identifier;
}

bool isPortableAnymap(QByteArrayView head)
{
    return head.size() > 2 && head[0] == 'P' && head[1] >= '1' && head[1] <= '6'
        && (head[2] == '\n' || head[2] == ' ' || head[2] == '\r' || head[2] == '\t');
}

} // namespace

std::optional<FileKind> fileKindOf(QByteArrayView file)
{
    const QByteArrayView head = file.first(std::min(file.size(), fileKindLength));
    if (head.size() >= 12 && head.sliced(4, 4) == QByteArrayView("ftyp")) {
        const char* identifier = identifierOfFileTypeBox(head);
        return identifier ? std::optional(FileKind{Container::Heif, identifier}) : std::nullopt;
    }
    for (const Signature& signature : signatures) {
        const QByteArrayView bytes(
            signature.bytes.data(), static_cast<qsizetype>(signature.bytes.size())
        );
        if (tailOf(head, static_cast<std::uint64_t>(signature.offset)).startsWith(bytes))
            return signature.kind;
    }
    if (isPortableAnymap(head))
        return FileKind{Container::Other, "public.pbm"};
    return std::nullopt;
}

} // namespace brenvaldo::platform::containers
