// SPDX-License-Identifier: GPL-3.0-or-later
#include "inflate.h"

#include <zlib.h>

#include <array>
#include <memory>

namespace brenvaldo::platform::containers {

namespace {

constexpr qsizetype stepSize = 65536;

struct EndInflate
{
    void operator()(z_stream* stream) const { inflateEnd(stream); }
};

} // namespace

std::optional<QByteArray> inflated(QByteArrayView deflated, qsizetype longest)
{
    z_stream stream{};
    // zlib's interface lacks const; the input is only read.
    stream.next_in = const_cast<Bytef*>( // NOLINT(cppcoreguidelines-pro-type-const-cast)
        reinterpret_cast<const Bytef*>(deflated.data())
    );
    stream.avail_in = static_cast<uInt>(deflated.size());
    if (inflateInit(&stream) != Z_OK)
        return std::nullopt;
    const std::unique_ptr<z_stream, EndInflate> guard(&stream);

    QByteArray result;
    std::array<char, stepSize> step{};
    int status = Z_OK;
    while (status == Z_OK) {
        stream.next_out = reinterpret_cast<Bytef*>(step.data());
        stream.avail_out = static_cast<uInt>(step.size());
        status = inflate(&stream, Z_NO_FLUSH);
        result.append(step.data(), stepSize - static_cast<qsizetype>(stream.avail_out));
        if (result.size() > longest)
            return std::nullopt;
    }
    return status == Z_STREAM_END ? std::optional(result) : std::nullopt;
}

QByteArray deflated(QByteArrayView bytes)
{
    // Qt's stream has the uncompressed length in front.
    constexpr int lengthPrefix = 4;
    return qCompress(reinterpret_cast<const uchar*>(bytes.data()), bytes.size())
        .sliced(lengthPrefix);
}

quint32 crc32Of(QByteArrayView bytes)
{
    return static_cast<quint32>(crc32_z(
        0, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<z_size_t>(bytes.size())
    ));
}

} // namespace brenvaldo::platform::containers
