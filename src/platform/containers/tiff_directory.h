// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bytes.h"

#include <QByteArray>
#include <QList>

#include <cstdint>
#include <optional>

namespace brenvaldo::platform::containers {

namespace tiff {

enum Tag : std::uint16_t {
    ImageWidth = 256,
    ImageLength = 257,
    BitsPerSample = 258,
    Compression = 259,
    StripOffsets = 273,
    Orientation = 274,
    SamplesPerPixel = 277,
    StripLengths = 279,
    HorizontalResolution = 282,
    VerticalResolution = 283,
    ResolutionUnit = 296,
    TileOffsets = 324,
    SubDirectories = 330,
    ThumbnailOffset = 513,
    ThumbnailLength = 514,
    Xmp = 700,
    Iptc = 33723,
    PhotoshopResources = 34377,
    ExifDirectory = 34665,
    IccProfile = 34675,
    GpsDirectory = 34853,
    PhotoshopLayers = 37724,
    MakerNote = 37500,
    UserComment = 37510,
    InteroperabilityDirectory = 40965
};

enum Type : std::uint16_t {
    Byte = 1,
    Ascii = 2,
    Short = 3,
    Long = 4,
    Rational = 5,
    SignedByte = 6,
    Undefined = 7,
    SignedShort = 8,
    SignedLong = 9,
    SignedRational = 10,
    Float = 11,
    Double = 12
};

} // namespace tiff

/// Bytes of one number of that type; 0 when there is no such type.
[[nodiscard]] int tiffTypeWidth(std::uint16_t type);

/// One entry of a directory. `value` is in the byte order of its file, and may point into it.
struct TiffField
{
    std::uint16_t tag = 0;
    std::uint16_t type = tiff::Undefined;
    QByteArray value = {};
    std::uint64_t valueOffset = 0; ///< where the value stands in the file it was read from
    bool isPlaced = false; ///< when serialized: the value stands at `valueOffset` already
};

using TiffDirectory = QList<TiffField>;

/// The field of that tag; null when the directory has none.
[[nodiscard]] const TiffField* fieldOf(const TiffDirectory& directory, std::uint16_t tag);

/// The structure of a TIFF or BigTIFF file or of an EXIF block; a view of its bytes.
class TiffFile
{
public:
    /// Nothing when `bytes` do not start as a TIFF.
    [[nodiscard]] static std::optional<TiffFile> open(QByteArrayView bytes);

    [[nodiscard]] ByteOrder order() const { return m_order; }
    [[nodiscard]] bool isBig() const { return m_isBig; }

    /// Where the directory of image 0 stands.
    [[nodiscard]] std::uint64_t firstOffset() const { return m_firstOffset; }

    /// The directory of image 0. Damaged fields are left out.
    [[nodiscard]] TiffDirectory firstDirectory() const;

    /// Where the directory of image 0 ends; 0 when it is cut off.
    [[nodiscard]] std::uint64_t firstEnd() const;

    /// Where the directory behind that of image 0 stands; 0 when there is none.
    [[nodiscard]] std::uint64_t secondOffset() const;

    /// The directory behind that of image 0; empty when there is none.
    [[nodiscard]] TiffDirectory secondDirectory() const;

    /// The directory that the first value of the field `tag` points to; empty when there is none.
    [[nodiscard]] TiffDirectory subDirectory(const TiffDirectory& parent, std::uint16_t tag) const;

private:
    [[nodiscard]] TiffDirectory directoryAt(std::uint64_t offset) const;
    [[nodiscard]] std::optional<TiffField> fieldAt(std::uint64_t offset) const;

    QByteArrayView m_bytes;
    ByteOrder m_order = ByteOrder::Big;
    bool m_isBig = false;
    std::uint64_t m_firstOffset = 0;
};

/// The unsigned integers that a field of type BYTE, SHORT, LONG or LONG8 holds.
[[nodiscard]] QList<std::uint64_t> unsignedValues(const TiffField& field, ByteOrder order);

/// A field of one LONG.
[[nodiscard]] TiffField longField(std::uint16_t tag, std::uint64_t value, ByteOrder order);

/// A field of several LONGs.
[[nodiscard]] TiffField
longField(std::uint16_t tag, const QList<std::uint64_t>& values, ByteOrder order);

/// The field with its numbers in the other byte order.
[[nodiscard]] TiffField swapped(const TiffField& field);

/// The directory with all numbers in the other byte order.
[[nodiscard]] TiffDirectory swapped(const TiffDirectory& directory);

/// Puts `field` in the place of the field of its tag, if there is one.
void replace(TiffDirectory& directory, const TiffField& field);

/// Bytes of a directory that starts at `offset` of its file: entries sorted by tag, no further
/// directory behind it, and the long values in their order.
[[nodiscard]] QByteArray
serializedDirectory(TiffDirectory directory, std::uint64_t offset, ByteOrder order);

/// Lets the directory at `offset` follow the first one of the classic TIFF structure `bytes`, or
/// none if it is 0. False when the first directory is cut off.
bool setSecondOffset(QByteArray& bytes, std::uint64_t offset);

constexpr qsizetype tiffHeaderLength = 8;

/// The eight bytes in front of a TIFF file whose first directory stands at `offset`.
[[nodiscard]] QByteArray tiffHeader(ByteOrder order, std::uint64_t offset);

} // namespace brenvaldo::platform::containers
