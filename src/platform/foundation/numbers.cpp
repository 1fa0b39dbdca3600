// SPDX-License-Identifier: GPL-3.0-or-later
#include "numbers.h"

#include "digits.h"
#include "literals.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace brenvaldo::platform {

namespace {

qsizetype skipWhiteSpace(const QString& text, qsizetype position)
{
    while (position < text.size() && text.at(position).isSpace())
        ++position;
    return position;
}

template <class Integer>
Integer leadingInteger(const QString& text)
{
    qsizetype position = skipWhiteSpace(text, 0);
    bool negative = false;
    if (position < text.size() && (text.at(position) == u'-' || text.at(position) == u'+')) {
        negative = text.at(position) == u'-';
        position = skipWhiteSpace(text, position + 1);
    }
    constexpr Integer lowest = std::numeric_limits<Integer>::min();
    constexpr Integer highest = std::numeric_limits<Integer>::max();
    // Counts downward, since the lowest value has no positive counterpart.
    Integer value = 0;
    for (; position < text.size() && isAsciiDigit(text.at(position)); ++position) {
        const auto digit = static_cast<Integer>(text.at(position).unicode() - u'0');
        if (value < (lowest + digit) / 10)
            return negative ? lowest : highest;
        value = static_cast<Integer>(value * 10 - digit);
    }
    if (negative)
        return value;
    return value == lowest ? highest : static_cast<Integer>(-value);
}

int hexDigitValue(QChar character)
{
    const char16_t unit = character.unicode();
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    if (unit >= u'a' && unit <= u'f')
        return unit - u'a' + 10;
    if (unit >= u'A' && unit <= u'F')
        return unit - u'A' + 10;
    return -1;
}

} // namespace

std::int32_t intValue(const QString& text) { return leadingInteger<std::int32_t>(text); }

std::int64_t integerValue(const QString& text) { return leadingInteger<std::int64_t>(text); }

double doubleValue(const QString& text)
{
    static const QRegularExpression number(
        u"^[+-]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?"_s
    );
    const qsizetype begin = skipWhiteSpace(text, 0);
    const QRegularExpressionMatch match = number.match(QStringView(text).mid(begin));
    // Overflow gives an infinity, which Qt calls a failure.
    return QLocale::c().toDouble(match.capturedView());
}

float floatValue(const QString& text) { return static_cast<float>(doubleValue(text)); }

std::optional<std::uint32_t> scanHexInt(const QString& text)
{
    qsizetype position = skipWhiteSpace(text, 0);
    if (text.mid(position, 2).compare(u"0x"_s, Qt::CaseInsensitive) == 0) {
        position += 2;
        if (position >= text.size() || hexDigitValue(text.at(position)) < 0)
            return 0;
    }
    std::optional<std::uint64_t> value;
    for (; position < text.size() && hexDigitValue(text.at(position)) >= 0; ++position) {
        const auto digit = static_cast<std::uint64_t>(hexDigitValue(text.at(position)));
        value = std::min<std::uint64_t>(value.value_or(0) * 16 + digit, 0xFFFFFFFFU);
    }
    if (!value)
        return std::nullopt;
    return static_cast<std::uint32_t>(*value);
}

std::int32_t truncated(double value)
{
    constexpr double end = 2147483648.0;
    if (!(value > -end - 1 && value < end))
        return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(value);
}

std::int32_t wrapped32(std::int64_t value)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(value)));
}

QString numberText(double value) { return QString::number(value, 'g', 16); }

} // namespace brenvaldo::platform
