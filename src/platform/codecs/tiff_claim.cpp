// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiff_claim.h"

#include <platform/containers/mapped_file.h>
#include <platform/containers/tiff_numbers.h>

#include <vips/vips8>

namespace brenvaldo::platform::codecs {

namespace tiff = containers::tiff;

namespace {

constexpr int bitsOfByte = 8;

enum Compression {
    NoCompression = 1,
    Ccitt1D = 2,
    CcittFax3 = 3,
    CcittFax4 = 4,
    Lzw = 5,
    OldJpeg = 6,
    Jpeg = 7,
    AdobeDeflate = 8,
    Ccitt1DWords = 32771,
    PackBits = 32773,
    Deflate = 32946
};

/// What a byte of a compression can stand for, rather too much than too little.
double mostBytesOfAByte(int compression, double width)
{
    switch (compression) {
    case NoCompression:
        return 2; // strips may share their bytes
    case PackBits:
        return 64; // a run of two bytes makes 128
    case Lzw:
        return 2 * 4096; // a code of at least nine bits, the longest string
    case Deflate:
    case AdobeDeflate:
        return 1032; // 258 bytes by two bits
    case Jpeg:
    case OldJpeg:
        return 8 * 8 * 8 * 4; // four samples of each pixel of a block by a bit
    case Ccitt1D:
    case Ccitt1DWords:
    case CcittFax3:
    case CcittFax4:
        return width + bitsOfByte; // a row of the colour of the one above takes a bit
    default:
        return 1 << 16; // ZSTD repeats a byte 2^17 times by four
    }
}

/// The first page of a TIFF.
class FirstPage
{
public:
    explicit FirstPage(const QString& path)
        : m_mapped(path)
        , m_file(containers::TiffFile::open(m_mapped.bytes()))
    {
        if (m_file)
            m_directory = m_file->firstDirectory();
    }

    [[nodiscard]] double number(std::uint16_t tag, double absent) const
    {
        const containers::TiffField* field = containers::fieldOf(m_directory, tag);
        return field ? containers::firstNumber(*field, m_file->order()).value_or(absent) : absent;
    }

    [[nodiscard]] int compression() const
    {
        return static_cast<int>(number(tiff::Compression, NoCompression));
    }

    [[nodiscard]] double bytes() const { return static_cast<double>(m_mapped.bytes().size()); }

private:
    containers::MappedFile m_mapped;
    std::optional<containers::TiffFile> m_file;
    containers::TiffDirectory m_directory;
};

} // namespace

void checkTiffSize(const QString& path)
{
    const FirstPage page(path);
    const double width = page.number(tiff::ImageWidth, 0);
    const double height = page.number(tiff::ImageLength, 0);
    if (!(width >= 1) || !(height >= 1))
        throw vips::VError("the image data is damaged");
    const double samples = width * height * page.number(tiff::SamplesPerPixel, 1);
    const double claimed = samples * page.number(tiff::BitsPerSample, 1) / bitsOfByte;
    if (claimed > page.bytes() * mostBytesOfAByte(page.compression(), width))
        throw vips::VError("the file is too short for the size it claims");
}

bool holdsOldJpeg(const QString& path) { return FirstPage(path).compression() == OldJpeg; }

} // namespace brenvaldo::platform::codecs
