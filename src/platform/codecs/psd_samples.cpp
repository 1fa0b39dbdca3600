// SPDX-License-Identifier: GPL-3.0-or-later
#include "psd_samples.h"

#include <platform/containers/bytes.h>

#include <vips/vips8>

#include <cstring>

namespace brenvaldo::platform::codecs {

using containers::sliceOf;

namespace {

[[noreturn]] void throwDamaged() { throw vips::VError("the layered picture is damaged"); }

std::size_t rowCount(const PsdFile& file)
{
    return static_cast<std::size_t>(file.channels) * static_cast<std::size_t>(file.size.height);
}

std::vector<std::uint64_t> packedRowOffsets(const PsdFile& file, std::uint64_t rowBytes)
{
    const std::uint64_t width = file.isLarge ? 4 : 2;
    const std::size_t rows = rowCount(file);
    if (!sliceOf(file.samples, 0, rows * width))
        throwDamaged();
    std::vector<std::uint64_t> offsets = {rows * width};
    offsets.reserve(rows + 1);
    for (std::size_t row = 0; row < rows; ++row) {
        const auto length = containers::unsignedAt(
            file.samples, row * width, static_cast<int>(width), containers::ByteOrder::Big
        );
        constexpr std::uint64_t mostOfAByte = 64; // a run of two bytes makes 128
        if (*length * mostOfAByte < rowBytes)
            throwDamaged();
        offsets.push_back(offsets.back() + *length);
    }
    if (offsets.back() > static_cast<std::uint64_t>(file.samples.size()))
        throwDamaged();
    return offsets;
}

/// Expands PackBits: a count n from 0 is followed by n + 1 bytes, a negative one by a byte that
/// stands 1 - n times; -128 means nothing.
void unpack(QByteArrayView packed, QByteArray& row)
{
    char* out = row.data();
    char* const end = out + row.size();
    for (qsizetype at = 0; out != end && at < packed.size();) {
        const auto count = static_cast<signed char>(packed[at++]);
        if (count == -128)
            continue;
        const qsizetype length = count >= 0 ? count + 1 : 1 - count;
        const qsizetype taken = count >= 0 ? length : 1;
        if (length > end - out || taken > packed.size() - at)
            throwDamaged();
        if (count >= 0)
            std::memcpy(out, packed.data() + at, static_cast<std::size_t>(length));
        else
            std::memset(out, packed[at], static_cast<std::size_t>(length));
        at += taken;
        out += length;
    }
    if (out != end)
        throwDamaged();
}

} // namespace

PsdRows::PsdRows(const PsdFile& file)
    : m_file(file)
    , m_rowBytes((qsizetype{file.size.width} * file.bitsPerSample + 7) / 8)
{
    if (file.compression == PsdCompression::RunLengths)
        m_offsets = packedRowOffsets(file, static_cast<std::uint64_t>(m_rowBytes));
    else if (!sliceOf(file.samples, 0, rowCount(file) * static_cast<std::uint64_t>(m_rowBytes)))
        throwDamaged();
}

std::size_t PsdRows::rowIndex(int channel, int y) const
{
    return static_cast<std::size_t>(channel) * static_cast<std::size_t>(m_file.size.height)
        + static_cast<std::size_t>(y);
}

QByteArrayView PsdRows::row(int channel, int y, QByteArray& scratch) const
{
    const std::size_t index = rowIndex(channel, y);
    if (m_file.compression == PsdCompression::None)
        return m_file.samples.sliced(static_cast<qsizetype>(index) * m_rowBytes, m_rowBytes);
    const std::uint64_t start = m_offsets[index];
    scratch.resize(m_rowBytes);
    unpack(*sliceOf(m_file.samples, start, m_offsets[index + 1] - start), scratch);
    return scratch;
}

} // namespace brenvaldo::platform::codecs
