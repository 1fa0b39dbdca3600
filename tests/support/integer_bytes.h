// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QtEndian>

namespace brenvaldo::test {

template <typename Integer>
QByteArray bigEndian(Integer value)
{
    QByteArray bytes(sizeof(Integer), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

template <typename Integer>
QByteArray littleEndian(Integer value)
{
    QByteArray bytes(sizeof(Integer), '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

} // namespace brenvaldo::test
