// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_font.h"

#include <QBuffer>
#include <QImage>
#include <QList>

namespace brenvaldo::test {

namespace {

constexpr int pixelsPerEm = 64;
constexpr int unitsPerEm = 1024;
constexpr int glyphs = 2; // the one for missing characters comes first
constexpr int character = 0xF8F0;

/// `value` in `length` bytes, the most significant first.
QByteArray number(qint64 value, int length)
{
    QByteArray bytes;
    for (int shift = 8 * (length - 1); shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift);
    return bytes;
}

QByteArray shorts(std::initializer_list<int> values)
{
    QByteArray bytes;
    for (const int value : values)
        bytes += number(value, 2);
    return bytes;
}

QByteArray longs(std::initializer_list<qint64> values)
{
    QByteArray bytes;
    for (const qint64 value : values)
        bytes += number(value, 4);
    return bytes;
}

QByteArray characterMap()
{
    const QByteArray encodings = shorts({0, 1, 3, 1}) + longs({12});
    const QByteArray ranges
        = shorts({4, 4, 1, 0, character, 0xFFFF, 0, character, 0xFFFF, 1 - character, 1, 0, 0});
    return encodings + shorts({4, 6 + int(ranges.size()), 0}) + ranges;
}

QByteArray header()
{
    return longs({0x10000, 0x10000, 0, 0x5F0F3CF5}) + shorts({0, unitsPerEm}) + QByteArray(16, '\0')
        + shorts({0, 0, unitsPerEm, unitsPerEm, 0, 8, 2, 0, 0});
}

QByteArray horizontalHeader()
{
    return longs({0x10000}) + shorts({unitsPerEm, -256, 0, unitsPerEm, 0, 0, unitsPerEm, 1, 0, 0})
        + shorts({0, 0, 0, 0, 0, glyphs});
}

QByteArray names()
{
    const QList<std::pair<int, QByteArray>> namesById{
        {1, "Test Pictures"}, {2, "Regular"}, {4, "Test Pictures"}, {6, "TestPictures"}};
    QByteArray records;
    QByteArray texts;
    for (const auto& [id, text] : namesById) {
        QByteArray wide;
        for (const char letter : text)
            wide += QByteArray(1, '\0') + letter;
        records += shorts({3, 1, 0x409, id, int(wide.size()), int(texts.size())});
        texts += wide;
    }
    return shorts({0, int(namesById.size()), 6 + int(records.size())}) + records + texts;
}

QByteArray square(QRgb color)
{
    QImage image(pixelsPerEm, pixelsPerEm, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

/// The pictures: small metrics, then a PNG.
QByteArray pictures(QRgb color)
{
    const QByteArray png = square(color);
    const QByteArray metrics = number(pixelsPerEm, 1) + number(pixelsPerEm, 1) + number(0, 1)
        + number(pixelsPerEm, 1) + number(pixelsPerEm, 1);
    return longs({0x30000}) + metrics + longs({png.size()}) + png;
}

QByteArray pictureIndex(qint64 picturesLength)
{
    const QByteArray lineMetrics
        = number(pixelsPerEm, 1) + number(0, 1) + number(pixelsPerEm, 1) + QByteArray(9, '\0');
    const QByteArray subtable = shorts({1, 17}) + longs({4, 0, picturesLength - 4});
    const QByteArray subtableList = shorts({1, 1}) + longs({8});
    constexpr int listOffset = 8 + 48;
    return longs({0x30000, 1}) + longs({listOffset, subtableList.size() + subtable.size(), 1, 0})
        + lineMetrics + lineMetrics + shorts({1, 1}) + number(pixelsPerEm, 1)
        + number(pixelsPerEm, 1) + number(32, 1) + number(1, 1) + subtableList + subtable;
}

} // namespace

QByteArray pictureFont(QRgb color)
{
    const QByteArray data = pictures(color);
    const QList<std::pair<QByteArray, QByteArray>> tables{
        {"CBDT", data},
        {"CBLC", pictureIndex(data.size())},
        {"cmap", characterMap()},
        {"head", header()},
        {"hhea", horizontalHeader()},
        {"hmtx", shorts({unitsPerEm, 0, unitsPerEm, 0})},
        {"maxp", longs({0x5000}) + shorts({glyphs})},
        {"name", names()},
    };
    const auto count = int(tables.size());
    QByteArray directory = longs({0x10000}) + shorts({count, 128, 3, count * 16 - 128});
    qint64 offset = directory.size() + qint64{16} * count;
    QByteArray body;
    for (const auto& [tag, table] : tables) {
        directory += tag + longs({0, offset + body.size(), table.size()});
        body += table + QByteArray((4 - table.size() % 4) % 4, '\0');
    }
    return directory + body;
}

} // namespace brenvaldo::test
