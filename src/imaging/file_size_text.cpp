// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include <platform/foundation/exceptions.h>
#include <platform/foundation/literals.h>

#include <QStringList>

#include <array>
#include <charconv>

namespace brenvaldo::imaging {

namespace {

/// Two decimals; a value in the middle of two goes to the even one, unlike in Qt's own texts.
QString twoDecimals(double value)
{
    std::array<char, 16> digits{};
    const auto end = std::to_chars(
        digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, 2
    );
    return QString::fromLatin1(digits.data(), end.ptr - digits.data());
}

} // namespace

QString DVImageHandling::hNSFileSizeToHumanNotification(double bytes)
{
    static const QStringList units{
        u"bytes"_s,
        u"KB"_s,
        u"MB"_s,
        u"GB"_s,
        u"TB"_s,
    };
    double value = bytes;
    int unit = 0;
    while (value > 1024.0) {
        value *= 0.0009765625;
        ++unit;
    }
    if (unit >= units.size())
        throw platform::RangeError(
            u"index %1 beyond bounds [0 .. %2]"_s.arg(unit).arg(units.size() - 1)
        );
    return twoDecimals(value) + units.at(unit);
}

} // namespace brenvaldo::imaging
