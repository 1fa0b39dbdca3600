// SPDX-License-Identifier: GPL-3.0-or-later
#include "psd_file.h"

#include <QtEndian>

namespace brenvaldo::test {

namespace {

template <typename Number>
QByteArray bigEndianOf(qint64 value)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToBigEndian(static_cast<Number>(value), bytes.data());
    return bytes;
}

QByteArray section(const QByteArray& contents, bool isWide = false)
{
    return (isWide ? bigEndianOf<quint64>(contents.size()) : bigEndianOf<quint32>(contents.size()))
        + contents;
}

/// Runs of one byte where two or more stand together, single bytes otherwise.
QByteArray packed(const QByteArray& row)
{
    constexpr qsizetype longestRun = 128;
    QByteArray result;
    for (qsizetype at = 0; at < row.size();) {
        qsizetype run = 1;
        while (at + run < row.size() && row[at + run] == row[at] && run < longestRun)
            ++run;
        result.append(static_cast<char>(1 - run));
        result.append(row[at]);
        at += run;
    }
    return result;
}

QByteArray packedSamples(const PsdContents& contents)
{
    QByteArray lengths;
    QByteArray rows;
    for (const QByteArray& channel : contents.channels) {
        const qsizetype rowBytes = channel.size() / contents.size.height();
        for (int y = 0; y < contents.size.height(); ++y) {
            const QByteArray row = packed(channel.mid(y * rowBytes, rowBytes));
            lengths += contents.isLarge ? bigEndianOf<quint32>(row.size())
                                        : bigEndianOf<quint16>(row.size());
            rows += row;
        }
    }
    return lengths + rows;
}

} // namespace

QByteArray psdResource(std::uint16_t id, const QByteArray& data)
{
    const QByteArray padding(data.size() % 2, '\0');
    return "8BIM" + bigEndianOf<quint16>(id) + QByteArray(2, '\0') + section(data) + padding;
}

QByteArray psdFile(const PsdContents& contents)
{
    QByteArray layers;
    if (contents.layers != 0)
        layers = section(bigEndianOf<quint16>(contents.layers), contents.isLarge);
    const int compression
        = contents.compression >= 0 ? contents.compression : (contents.isPacked ? 1 : 0);
    const QByteArray samples
        = contents.isPacked ? packedSamples(contents) : contents.channels.join();
    return "8BPS" + bigEndianOf<quint16>(contents.isLarge ? 2 : 1) + QByteArray(6, '\0')
        + bigEndianOf<quint16>(contents.channels.size())
        + bigEndianOf<quint32>(contents.size.height()) + bigEndianOf<quint32>(contents.size.width())
        + bigEndianOf<quint16>(contents.bitsPerSample) + bigEndianOf<quint16>(contents.mode)
        + section(contents.palette) + section(contents.resources)
        + section(layers, contents.isLarge) + bigEndianOf<quint16>(compression) + samples;
}

} // namespace brenvaldo::test
