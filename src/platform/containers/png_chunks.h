// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <optional>

namespace brenvaldo::platform::containers {

/// One chunk of a PNG: views into the file. Checksums are not checked.
struct PngChunk
{
    QByteArrayView type; ///< four letters
    QByteArrayView data;
    QByteArrayView whole; ///< length, type, data and checksum
};

constexpr qsizetype pngSignatureLength = 8;

/// The chunk that `whole` is.
[[nodiscard]] PngChunk pngChunkOf(QByteArrayView whole);

/// The chunks up to IEND or to damage; nothing when `file` is no PNG.
[[nodiscard]] std::optional<QList<PngChunk>> readPngChunks(QByteArrayView file);

/// The chunks in front of the picture data; nothing when `file` is no PNG.
[[nodiscard]] std::optional<QList<PngChunk>> readPngHeadChunks(QByteArrayView file);

/// Makes a whole chunk.
[[nodiscard]] QByteArray pngChunk(QByteArrayView type, QByteArrayView data);

/// A textual chunk (tEXt, zTXt or iTXt), inflated.
struct PngText
{
    QByteArray keyword;
    QByteArray text; ///< UTF-8 in iTXt, ISO 8859-1 in the others
    bool isUtf8 = false;
};

/// Nothing for other chunks, damaged ones, and texts that inflate to an absurd size.
[[nodiscard]] std::optional<PngText> pngText(const PngChunk& chunk);

/// The ICC profile that an iCCP chunk holds; empty for other chunks and damaged ones.
[[nodiscard]] QByteArray pngProfile(const PngChunk& chunk);

/// The text of an iTXt chunk; `text` is UTF-8.
[[nodiscard]] QByteArray pngInternationalText(QByteArrayView keyword, QByteArrayView text);

/// The bytes of a "Raw profile type ..." text; empty when it is damaged.
[[nodiscard]] QByteArray rawProfileData(const QByteArray& text);

/// A zTXt chunk that holds `data` as a raw profile of that type, such as "iptc".
[[nodiscard]] QByteArray rawProfileChunk(const QByteArray& type, const QByteArray& data);

} // namespace brenvaldo::platform::containers
