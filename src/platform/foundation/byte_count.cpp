// SPDX-License-Identifier: GPL-3.0-or-later
#include "byte_count.h"

#include "literals.h"

#include <QLocale>

#include <array>

namespace brenvaldo::platform {

namespace {

struct Unit
{
    std::uint64_t bytes;
    int decimals;
    const char* name;
};

constexpr std::array<Unit, 6> units = {{
    {1'000'000'000'000'000'000, 2, "EB"},
    {1'000'000'000'000'000, 2, "PB"},
    {1'000'000'000'000, 2, "TB"},
    {1'000'000'000, 2, "GB"},
    {1'000'000, 1, "MB"},
    {1'000, 0, "KB"},
}};

std::uint64_t dividedToEven(std::uint64_t dividend, std::uint64_t divisor)
{
    const std::uint64_t quotient = dividend / divisor;
    const std::uint64_t remainder = dividend % divisor;
    const std::uint64_t half = divisor / 2;
    const bool roundsUp = remainder > half || (remainder == half && quotient % 2 == 1);
    return roundsUp ? quotient + 1 : quotient;
}

QString decimalText(std::uint64_t value, int decimals)
{
    std::uint64_t scale = 1;
    for (int digit = 0; digit < decimals; ++digit)
        scale *= 10;
    QString text = QLocale(QLocale::English, QLocale::UnitedKingdom).toString(value / scale);
    QString fraction = QString::number(value % scale).rightJustified(decimals, QLatin1Char('0'));
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    return fraction.isEmpty() ? text : text + u'.' + fraction;
}

QString magnitudeText(std::uint64_t bytes)
{
    for (const Unit& unit : units) {
        if (bytes < unit.bytes)
            continue;
        std::uint64_t step = unit.bytes;
        for (int digit = 0; digit < unit.decimals; ++digit)
            step /= 10;
        return decimalText(dividedToEven(bytes, step), unit.decimals) + u' '
            + QLatin1String(unit.name);
    }
    return QString::number(bytes) + (bytes == 1 ? u" byte"_s : u" bytes"_s);
}

} // namespace

QString byteCountText(std::int64_t bytes)
{
    if (bytes == 0)
        return u"Zero KB"_s;
    const auto unsignedBytes = static_cast<std::uint64_t>(bytes);
    return bytes < 0 ? u'-' + magnitudeText(0 - unsignedBytes) : magnitudeText(unsignedBytes);
}

} // namespace brenvaldo::platform
