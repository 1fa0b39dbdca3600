// SPDX-License-Identifier: GPL-3.0-or-later
#include "png_chunks.h"

#include "bytes.h"
#include "inflate.h"

namespace brenvaldo::platform::containers {

namespace {

constexpr QByteArrayView pngSignature("\x89PNG\r\n\x1a\n", 8);
constexpr qsizetype longestText = 64LL * 1024 * 1024;
constexpr qsizetype profileLineLength = 72;

/// Cuts `rest` behind its first zero byte and answers what stood before it.
std::optional<QByteArrayView> takeTerminated(QByteArrayView& rest)
{
    const qsizetype end = rest.indexOf('\0');
    if (end < 0)
        return std::nullopt;
    const QByteArrayView taken = rest.first(end);
    rest = rest.sliced(end + 1);
    return taken;
}

std::optional<PngText> internationalText(const QByteArray& keyword, QByteArrayView rest)
{
    const auto isCompressed = unsignedAt(rest, 0, 1, ByteOrder::Big);
    if (!isCompressed || rest.size() < 2)
        return std::nullopt;
    rest = rest.sliced(2);
    const auto language = takeTerminated(rest);
    const auto translatedKeyword = takeTerminated(rest);
    if (!language || !translatedKeyword)
        return std::nullopt;
    if (*isCompressed == 0)
        return PngText{.keyword = keyword, .text = rest.toByteArray(), .isUtf8 = true};
    const auto text = inflated(rest, longestText);
    return text ? std::optional(PngText{.keyword = keyword, .text = *text, .isUtf8 = true})
                : std::nullopt;
}

std::optional<PngText> compressedText(const QByteArray& keyword, QByteArrayView rest)
{
    if (rest.isEmpty())
        return std::nullopt;
    const auto text = inflated(rest.sliced(1), longestText);
    return text ? std::optional(PngText{.keyword = keyword, .text = *text, .isUtf8 = false})
                : std::nullopt;
}

/// The chunks up to the first of type `last`, or to damage.
std::optional<QList<PngChunk>> chunksUpTo(QByteArrayView file, QByteArrayView last)
{
    if (!file.startsWith(pngSignature))
        return std::nullopt;

    QList<PngChunk> chunks;
    auto offset = static_cast<std::uint64_t>(pngSignature.size());
    while (const auto length = unsignedAt(file, offset, 4, ByteOrder::Big)) {
        const auto whole = sliceOf(file, offset, 12 + *length);
        if (!whole)
            break;
        chunks.append(pngChunkOf(*whole));
        if (chunks.last().type == last)
            break;
        offset += 12 + *length;
    }
    return chunks;
}

} // namespace

PngChunk pngChunkOf(QByteArrayView whole)
{
    return {.type = whole.sliced(4, 4), .data = whole.sliced(8).chopped(4), .whole = whole};
}

std::optional<QList<PngChunk>> readPngChunks(QByteArrayView file)
{
    return chunksUpTo(file, "IEND");
}

std::optional<QList<PngChunk>> readPngHeadChunks(QByteArrayView file)
{
    return chunksUpTo(file, "IDAT");
}

QByteArray pngChunk(QByteArrayView type, QByteArrayView data)
{
    QByteArray chunk;
    chunk.reserve(12 + data.size());
    appendUnsigned(chunk, static_cast<std::uint64_t>(data.size()), 4, ByteOrder::Big);
    chunk.append(type);
    chunk.append(data);
    appendUnsigned(chunk, crc32Of(QByteArrayView(chunk).sliced(4)), 4, ByteOrder::Big);
    return chunk;
}

std::optional<PngText> pngText(const PngChunk& chunk)
{
    QByteArrayView rest = chunk.data;
    const auto keyword = takeTerminated(rest);
    if (!keyword)
        return std::nullopt;
    const QByteArray name = keyword->toByteArray();
    if (chunk.type == QByteArrayView("tEXt"))
        return PngText{.keyword = name, .text = rest.toByteArray(), .isUtf8 = false};
    if (chunk.type == QByteArrayView("zTXt"))
        return compressedText(name, rest);
    if (chunk.type == QByteArrayView("iTXt"))
        return internationalText(name, rest);
    return std::nullopt;
}

QByteArray pngProfile(const PngChunk& chunk)
{
    QByteArrayView rest = chunk.data;
    if (chunk.type != QByteArrayView("iCCP") || !takeTerminated(rest) || rest.isEmpty())
        return {};
    return inflated(rest.sliced(1), longestText).value_or(QByteArray());
}

QByteArray pngInternationalText(QByteArrayView keyword, QByteArrayView text)
{
    QByteArray data = keyword.toByteArray();
    data.append(5, '\0'); // end of keyword, not compressed, no language, no translated keyword
    data.append(text);
    return pngChunk("iTXt", data);
}

QByteArray rawProfileData(const QByteArray& text)
{
    // "\n", the type's name, "\n", the length in decimal, "\n", hexadecimal digits in lines
    const qsizetype nameEnd = text.startsWith('\n') ? text.indexOf('\n', 1) : -1;
    const qsizetype lengthEnd = nameEnd < 0 ? -1 : text.indexOf('\n', nameEnd + 1);
    if (lengthEnd < 0)
        return {};
    const qlonglong length = text.mid(nameEnd + 1, lengthEnd - nameEnd - 1).trimmed().toLongLong();
    const QByteArray data = QByteArray::fromHex(text.sliced(lengthEnd + 1));
    return data.first(qBound<qsizetype>(0, length, data.size()));
}

QByteArray rawProfileChunk(const QByteArray& type, const QByteArray& data)
{
    QByteArray text = '\n' + type + '\n' + QByteArray::number(data.size()).rightJustified(8) + '\n';
    const QByteArray digits = data.toHex();
    for (qsizetype offset = 0; offset < digits.size(); offset += profileLineLength)
        text += digits.mid(offset, profileLineLength) + '\n';
    return pngChunk("zTXt", "Raw profile type " + type + QByteArray(2, '\0') + deflated(text));
}

} // namespace brenvaldo::platform::containers
