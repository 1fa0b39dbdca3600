// SPDX-License-Identifier: GPL-3.0-or-later
#include "iptc_block.h"

#include "integer_bytes.h"

namespace brenvaldo::test {

QByteArray iptcDataSet(int number, const QByteArray& value)
{
    return QByteArray("\x1C\x02", 2) + static_cast<char>(number)
        + bigEndian(static_cast<quint16>(value.size())) + value;
}

QByteArray photoshopResource(int id, const QByteArray& data)
{
    return "8BIM" + bigEndian(static_cast<quint16>(id)) + QByteArray(2, '\0')
        + bigEndian(static_cast<quint32>(data.size())) + data + QByteArray(data.size() % 2, '\0');
}

QByteArray iptcSegmentContents(const QByteArray& dataSets)
{
    constexpr int iptcResource = 0x0404;
    return QByteArray("Photoshop 3.0\0", 14) + photoshopResource(iptcResource, dataSets);
}

} // namespace brenvaldo::test
