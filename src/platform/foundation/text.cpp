// SPDX-License-Identifier: GPL-3.0-or-later
#include "text.h"

#include "exceptions.h"
#include "literals.h"

namespace brenvaldo::platform {

namespace {

bool isNewline(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit >= 0x000A && unit <= 0x000D) || unit == 0x0085 || unit == 0x2028 || unit == 0x2029;
}

/// Punctuation that stands inside a word, such as the apostrophe of "don't".
bool joinsLetters(char32_t character)
{
    switch (character) {
    case U'\'':
    case U'.':
    case U':':
    case 0x00B7: // middle dot
    case 0x0387: // Greek ano teleia
    case 0x055F: // Armenian abbreviation mark
    case 0x05F4: // Hebrew gershayim
    case 0x2018: // left single quotation mark
    case 0x2019: // right single quotation mark
    case 0x2024: // one dot leader
    case 0x2027: // hyphenation point
    case 0xFE13: // vertical colon
    case 0xFE52: // small full stop
    case 0xFE55: // small colon
    case 0xFF07: // full-width apostrophe
    case 0xFF0E: // full-width full stop
    case 0xFF1A: // full-width colon
        return true;
    default:
        return false;
    }
}

bool isCaseIgnorable(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
    case QChar::Letter_Modifier:
    case QChar::Symbol_Modifier:
        return true;
    default:
        return joinsLetters(character);
    }
}

bool isCased(char32_t character)
{
    return QChar::isUpper(character) || QChar::isLower(character) || QChar::isTitleCase(character);
}

void requireInside(const QString& text, qsizetype begin, qsizetype length)
{
    if (begin < 0 || length < 0 || begin > text.size() || length > text.size() - begin)
        throw RangeError(
            u"Range {%1, %2} out of bounds; string length %3"_s.arg(begin).arg(length).arg(
                text.size()
            )
        );
}

} // namespace

int caseInsensitiveCompare(const QString& left, const QString& right)
{
    const auto folded = [](const QString& text) {
        return text.normalized(QString::NormalizationForm_D)
            .toCaseFolded()
            .normalized(QString::NormalizationForm_D);
    };
    return folded(left).compare(folded(right));
}

QString capitalized(const QString& text)
{
    QString result;
    result.reserve(text.size());
    bool followsCased = false;
    for (const char32_t character : text.toUcs4()) {
        const char32_t mapped
            = followsCased ? QChar::toLower(character) : QChar::toTitleCase(character);
        result += QStringView(QChar::fromUcs4(mapped));
        if (!isCaseIgnorable(character))
            followsCased = isCased(character);
    }
    return result;
}

QStringList splitAtNewlines(const QString& text)
{
    QStringList pieces;
    qsizetype begin = 0;
    for (qsizetype position = 0; position < text.size(); ++position) {
        if (isNewline(text.at(position))) {
            pieces += text.mid(begin, position - begin);
            begin = position + 1;
        }
    }
    pieces += text.mid(begin);
    return pieces;
}

QStringList componentsSeparatedBy(const QString& text, const QString& separator)
{
    if (separator.isEmpty())
        return {text};
    return text.split(separator, Qt::KeepEmptyParts);
}

QString replacingOccurrences(const QString& text, const QString& target, const QString& replacement)
{
    if (target.isEmpty())
        return text;
    return QString(text).replace(target, replacement);
}

bool containsText(const QString& text, const QString& needle)
{
    return !needle.isEmpty() && text.contains(needle);
}

bool hasSuffix(const QString& text, const QString& suffix)
{
    return !suffix.isEmpty() && text.endsWith(suffix);
}

QString substringFrom(const QString& text, qsizetype index)
{
    requireInside(text, index, 0);
    return text.mid(index);
}

QString substringTo(const QString& text, qsizetype index)
{
    requireInside(text, 0, index);
    return text.left(index);
}

QString substring(const QString& text, qsizetype location, qsizetype length)
{
    requireInside(text, location, length);
    return text.mid(location, length);
}

} // namespace brenvaldo::platform
