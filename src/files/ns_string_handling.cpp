// SPDX-License-Identifier: GPL-3.0-or-later
#include "ns_string_handling.h"

#include "name_parts.h"

#include <platform/foundation/exceptions.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/text.h>

#include <QStringDecoder>

#include <algorithm>

namespace brenvaldo::files {

namespace {

enum class CharacterSet { Letters, LettersAndDigits };

bool isIn(CharacterSet set, char32_t character)
{
    if (QChar::isLetter(character) || QChar::isMark(character))
        return true;
    return set == CharacterSet::LettersAndDigits && QChar::isNumber(character);
}

QString keptCharacters(const QString& text, CharacterSet set)
{
    QString kept;
    for (const char32_t character : text.toUcs4()) {
        if (isIn(set, character))
            kept += QStringView(QChar::fromUcs4(character));
    }
    return kept;
}

/// What `change` makes of the text; the text as it is where that runs over its end.
template <class Change>
QString unlessOutOfRange(const QString& text, Change change)
{
    try {
        return change();
    } catch (const platform::RangeError&) {
        return text;
    }
}

} // namespace

QString cNSStringHandling::hChangeCaseFiles(const QString& text, const QString& mode)
{
    if (mode == u"1")
        return text.toLower();
    if (mode == u"2")
        return text.toUpper();
    return mode == u"3" ? platform::capitalized(text) : text;
}

QString cNSStringHandling::hRemoveNonLetters(const QString& text, const QString& mode)
{
    if (mode == u"NA")
        return keptCharacters(text, CharacterSet::LettersAndDigits);
    return mode == u"OL" ? keptCharacters(text, CharacterSet::Letters) : text;
}

QString cNSStringHandling::hStripString(const QString& text, const QString& side, qsizetype count)
{
    return unlessOutOfRange(text, [&] {
        if (side == u"fRight")
            return platform::substringTo(text, text.size() - count);
        return side == u"fLeft" ? platform::substringFrom(text, count) : text;
    });
}

QString
cNSStringHandling::hSubsectionString(const QString& text, qsizetype location, qsizetype length)
{
    return unlessOutOfRange(text, [&] { return platform::substring(text, location, length); });
}

QStringList cNSStringHandling::hSplitString(const QString& text, const QString& separator)
{
    return platform::componentsSeparatedBy(text, separator);
}

QString cNSStringHandling::hInsertStringInString(
    const QString& text, const QString& insert, qsizetype index
)
{
    return unlessOutOfRange(text, [&] {
        return platform::substringTo(text, index) + insert + platform::substringFrom(text, index);
    });
}

QString cNSStringHandling::hReplaceStringInString(
    const QString& text, const QString& find, const QString& replacement
)
{
    return platform::replacingOccurrences(text, find, replacement);
}

QString
cNSStringHandling::hConcatString(const QString& first, const QString& second, const QString& third)
{
    return first + second + third;
}

bool cNSStringHandling::hStringContainsString(const QString& text, const QString& needle)
{
    return !needle.isEmpty()
        && precomposed(text).contains(precomposed(needle), Qt::CaseInsensitive);
}

bool cNSStringHandling::hStringBeginsWith(const QString& text, const QString& prefix)
{
    return !prefix.isEmpty() && text.startsWith(prefix);
}

bool cNSStringHandling::hStringEndWith(const QString& text, const QString& suffix)
{
    return platform::substringFrom(text, text.size() - suffix.size()) == suffix;
}

QString cNSStringHandling::hRemoveWhiteSpace(const QString& text)
{
    return QString(text).remove(u' ');
}

QString cNSStringHandling::hReverseString(const QString& text)
{
    QString reversed = text;
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

QString cNSStringHandling::hNSDateToNSString(const QDateTime& date)
{
    return date.toUTC().toString(u"yyyy-MM-dd HH:mm:ss"_s) + u" +0000"_s;
}

std::optional<QString> cNSStringHandling::hNSDataToNSString(const QByteArray& data)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(data);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

std::optional<QByteArray> cNSStringHandling::hNSStringToNSData(const QString& text)
{
    const auto isAscii = [](QChar unit) { return unit.unicode() < 0x80; };
    if (!std::all_of(text.begin(), text.end(), isAscii))
        return std::nullopt;
    return text.toLatin1();
}

QString cNSStringHandling::hConvertNSdToNSstr(const QByteArray& data)
{
    return QString::fromLatin1(data.toBase64());
}

std::optional<QByteArray> cNSStringHandling::hConvertNSstrToNSd(const QString& text)
{
    constexpr qsizetype group = 4; // padding may not lack
    const auto ascii = hNSStringToNSData(text);
    if (!ascii || ascii->size() % group != 0)
        return std::nullopt;
    const auto decoded
        = QByteArray::fromBase64Encoding(*ascii, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return std::nullopt;
    return *decoded;
}

} // namespace brenvaldo::files
