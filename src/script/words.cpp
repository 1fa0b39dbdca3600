// SPDX-License-Identifier: GPL-3.0-or-later
#include "words.h"

#include <platform/foundation/literals.h>

#include <QStringDecoder>

#include <optional>

namespace brenvaldo::script {

namespace {

constexpr QChar quote = u'"';
constexpr QChar backslash = u'\\';
constexpr QChar commentSign = u'#';

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\r';
}

std::optional<QChar> escapedCharacter(QChar letter)
{
    switch (letter.unicode()) {
    case u'"':
    case u'\\':
        return letter;
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    default:
        return std::nullopt;
    }
}

/// Takes the words from a text one by one; stops for good at the first fault.
class WordScanner
{
public:
    explicit WordScanner(QStringView text)
        : m_rest(text)
    {
    }

    Words scan()
    {
        Words found;
        while (m_fault.isEmpty() && skipToWord())
            found.words.append(m_rest.front() == quote ? quotedWord() : bareWord());
        if (!m_fault.isEmpty())
            return {.fault = m_fault};
        return found;
    }

private:
    bool skipToWord()
    {
        while (!m_rest.isEmpty() && isBlank(m_rest.front()))
            take();
        return !m_rest.isEmpty() && m_rest.front() != commentSign;
    }

    QString bareWord()
    {
        QString word;
        while (!m_rest.isEmpty() && !isBlank(m_rest.front()))
            word.append(take());
        return word;
    }

    QString quotedWord()
    {
        QString word;
        take();
        while (!m_rest.isEmpty() && m_rest.front() != quote) {
            const QChar character = take();
            word.append(character == backslash ? escape() : character);
        }
        if (m_rest.isEmpty()) {
            fail(u"a quote is not closed"_s);
            return word;
        }
        take();
        if (!m_rest.isEmpty() && !isBlank(m_rest.front()))
            fail(u"a blank is missing after a quoted word"_s);
        return word;
    }

    QChar escape()
    {
        if (m_rest.isEmpty())
            return backslash;
        const QChar letter = take();
        const auto character = escapedCharacter(letter);
        if (!character)
            fail(u"unknown escape \\%1"_s.arg(letter));
        return character.value_or(letter);
    }

    QChar take()
    {
        const QChar character = m_rest.front();
        m_rest = m_rest.mid(1);
        return character;
    }

    void fail(const QString& fault)
    {
        if (m_fault.isEmpty())
            m_fault = fault;
    }

    QStringView m_rest;
    QString m_fault;
};

} // namespace

Words wordsOfLine(QByteArrayView line)
{
    // Without a state, so that a sequence that the line's end cuts off is a fault.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(line);
    if (decoder.hasError())
        return {.fault = u"the line is not UTF-8"_s};
    return WordScanner(text).scan();
}

} // namespace brenvaldo::script
