// SPDX-License-Identifier: GPL-3.0-or-later
#include "claimed_size.h"

#include <platform/containers/bytes.h>
#include <platform/containers/mapped_file.h>

#include <vips/vips8>

#include <array>

namespace brenvaldo::platform::codecs {

using graphics::PixelSize;

namespace {

qint64 pixelsOf(PixelSize size) { return qint64{size.width} * size.height; }

/// Bits of a pixel by the header chunk.
qint64 bitsOfPngPixel(QByteArrayView file)
{
    constexpr std::array<int, 7> samples = {1, 1, 3, 1, 2, 1, 4}; // by the type of the colours
    const auto depth = containers::unsignedAt(file, 24, 1, containers::ByteOrder::Big).value_or(1);
    const auto type = containers::unsignedAt(file, 25, 1, containers::ByteOrder::Big).value_or(0);
    return static_cast<qint64>(depth) * samples[type < samples.size() ? type : 0];
}

bool pngHolds(QByteArrayView file, PixelSize size)
{
    constexpr qint64 mostOfDeflate = 1032; // 258 bytes by two bits
    return pixelsOf(size) * bitsOfPngPixel(file) / 8 <= file.size() * mostOfDeflate;
}

bool gifHolds(QByteArrayView file, PixelSize size)
{
    constexpr qint64 longestString = 4096; // pixels, by a code of twelve bits
    return pixelsOf(size) * 12 / 8 <= file.size() * longestString;
}

/// Their arithmetic coders bring flat pictures down to next to nothing, but not below this.
bool flatCodingHolds(QByteArrayView file, PixelSize size)
{
    constexpr qint64 mostPixels = qint64{1} << 20;
    return pixelsOf(size) <= file.size() * mostPixels;
}

/// Reads the words of an anymap: parted by blanks, with comments from # to the end of the line.
class AnymapWords
{
public:
    explicit AnymapWords(QByteArrayView file)
        : m_file(file)
    {
    }

    /// -1 behind the last number.
    qint64 nextNumber()
    {
        skipBlanks();
        if (!isDigit())
            return -1;
        constexpr qint64 most = qint64{1} << 32;
        qint64 number = 0;
        for (; isDigit(); ++m_at)
            number = std::min(number * 10 + (m_file[m_at] - '0'), most);
        return number;
    }

    /// Samples of one bit need no blanks between them.
    bool skipBit()
    {
        skipBlanks();
        if (!isDigit())
            return false;
        ++m_at;
        return true;
    }

    [[nodiscard]] qint64 bytesBehindABlank() const { return m_file.size() - m_at - 1; }

private:
    [[nodiscard]] bool isDigit() const
    {
        return m_at < m_file.size() && m_file[m_at] >= '0' && m_file[m_at] <= '9';
    }

    void skipBlanks()
    {
        for (; m_at < m_file.size() && !isDigit(); ++m_at) {
            if (m_file[m_at] == '#')
                skipLine();
        }
    }

    void skipLine()
    {
        while (m_at + 1 < m_file.size() && m_file[m_at] != '\n')
            ++m_at;
    }

    QByteArrayView m_file;
    qsizetype m_at = 2; ///< behind the letter and the number of the kind
};

bool holdsNumbers(AnymapWords& words, qint64 count, bool isBits)
{
    for (; count > 0; --count) {
        if (isBits ? !words.skipBit() : words.nextNumber() < 0)
            return false;
    }
    return true;
}

/// Pixels of the row of a bitmap; some programs pack its padding, too.
qint64 paddedWidth(int width, int bits)
{
    constexpr int padding = 32; // bits
    return (qint64{width} * bits + padding - 1) / padding * padding / bits;
}

} // namespace

void checkClaimedSize(const QString& path, const QString& typeIdentifier, PixelSize size)
{
    const containers::MappedFile mapped(path);
    const QByteArrayView file = mapped.bytes();
    bool holds = true;
    if (typeIdentifier == QLatin1String("public.png"))
        holds = pngHolds(file, size);
    else if (typeIdentifier == QLatin1String("com.compuserve.gif"))
        holds = gifHolds(file, size);
    else if (typeIdentifier == QLatin1String("public.pbm"))
        holds = holdsWholeAnymap(file, size);
    else if (typeIdentifier != QLatin1String("org.webmproject.webp"))
        // A flat WebP of the largest size takes 30 bytes; its sides are short enough by themselves.
        holds = flatCodingHolds(file, size);
    if (!holds)
        throw vips::VError("the file is too short for the size it claims");
}

bool holdsWholeAnymap(QByteArrayView file, PixelSize size)
{
    if (file.size() < 3)
        return false;
    const int kind = file[1] - '0';
    const bool isBits = kind == 1 || kind == 4;
    const bool isText = kind <= 3;
    AnymapWords words(file);
    const qint64 width = words.nextNumber();
    const qint64 height = words.nextNumber();
    const qint64 most = isBits ? 1 : words.nextNumber();
    if (width <= 0 || height <= 0 || most <= 0 || width != size.width || height != size.height)
        return false; // the engine takes a side that is too long for one of 1
    const qint64 rowSamples = width * (kind == 3 || kind == 6 ? 3 : 1);
    const qint64 rowBytes = isBits ? (width + 7) / 8 : rowSamples * (most > 255 ? 2 : 1);
    const qint64 shortestRow = isText ? rowSamples : rowBytes;
    if (words.bytesBehindABlank() / height < shortestRow)
        return false;
    return !isText || holdsNumbers(words, rowSamples * height, isBits);
}

bool holdsWholeRuns(QByteArrayView runs, int bits, PixelSize size)
{
    constexpr qint64 mostPixels = 1024; // of a byte; a run of two bytes makes 255
    if (pixelsOf(size) > runs.size() * mostPixels)
        return false;
    enum Escape { EndOfRow = 0, EndOfPicture = 1, Jump = 2 };
    const qint64 longestRow = paddedWidth(size.width, bits);
    qint64 x = 0;
    qint64 y = 0;
    for (qsizetype at = 0; at + 1 < runs.size();) {
        if (x > longestRow || y > size.height)
            return false;
        const auto count = static_cast<unsigned char>(runs[at]);
        const auto value = static_cast<unsigned char>(runs[at + 1]);
        at += 2;
        if (count > 0) {
            x += count;
        } else if (value == EndOfRow) {
            x = 0;
            ++y;
        } else if (value == EndOfPicture) {
            return true;
        } else if (value == Jump) {
            if (at + 1 >= runs.size())
                return false;
            x += static_cast<unsigned char>(runs[at]);
            y += static_cast<unsigned char>(runs[at + 1]);
            at += 2;
        } else {
            x += value;
            at += (value * bits + 15) / 16 * 2; // as they are, padded to pairs of bytes
            if (at > runs.size())
                return false;
        }
    }
    return y >= size.height || (y == size.height - 1 && x >= size.width);
}

} // namespace brenvaldo::platform::codecs
