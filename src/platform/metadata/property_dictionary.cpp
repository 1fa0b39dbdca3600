// SPDX-License-Identifier: GPL-3.0-or-later
#include "property_dictionary.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

#include <algorithm>

namespace brenvaldo::platform::metadata {

namespace {

constexpr int indentWidth = 4;

QString indent(int level) { return QString(qsizetype{level} * indentWidth, QLatin1Char(' ')); }

bool isPlain(QChar unit)
{
    return unit.unicode() < 0x80 && (unit.isLetterOrNumber() || unit == QLatin1Char('_'));
}

QString escaped(QChar unit)
{
    if (unit == QLatin1Char('"') || unit == QLatin1Char('\\'))
        return QLatin1Char('\\') + QString(unit);
    if (unit == QLatin1Char('\n'))
        return u"\\n"_s;
    if (unit.unicode() >= 0x80)
        return u"\\U%1"_s.arg(unit.unicode(), 4, 16, QLatin1Char('0'));
    return unit;
}

/// A string inside an array or a dictionary.
QString quoted(const QString& text)
{
    if (!text.isEmpty() && std::all_of(text.begin(), text.end(), isPlain))
        return text;
    QString result;
    for (const QChar unit : text)
        result += escaped(unit);
    return QLatin1Char('"') + result + QLatin1Char('"');
}

QString nestedText(const PropertyValue& value, int level);

QString arrayText(const PropertyValue::Array& array, int level)
{
    QStringList lines;
    for (const PropertyValue& element : array)
        lines.append(indent(level + 1) + nestedText(element, level + 1));
    const QString body = lines.join(u",\n"_s);
    return u"(\n"_s + body + (lines.isEmpty() ? QString() : u"\n"_s) + indent(level)
        + QLatin1Char(')');
}

QString dictionaryText(const PropertyDictionary& dictionary, int level)
{
    QStringList keys = dictionary.keys();
    std::sort(keys.begin(), keys.end());
    QString text = u"{\n"_s;
    for (const QString& key : keys) {
        text += indent(level + 1) + quoted(key) + u" = "_s
            + nestedText(*dictionary.value(key), level + 1) + u";\n"_s;
    }
    return text + indent(level) + QLatin1Char('}');
}

QString nestedText(const PropertyValue& value, int level)
{
    if (const PropertyValue::Array* array = value.array())
        return arrayText(*array, level);
    if (const PropertyDictionary* dictionary = value.dictionary())
        return dictionaryText(*dictionary, level);
    return quoted(value.text());
}

} // namespace

void PropertyDictionary::insert(const QString& key, const PropertyValue& value)
{
    const qsizetype index = m_keys.indexOf(key);
    if (index >= 0) {
        m_values[index] = value;
        return;
    }
    m_keys.append(key);
    m_values.append(value);
}

const PropertyValue* PropertyDictionary::value(const QString& key) const
{
    const qsizetype index = m_keys.indexOf(key);
    return index < 0 ? nullptr : &m_values.at(index);
}

const PropertyDictionary* PropertyDictionary::dictionary(const QString& key) const
{
    const PropertyValue* found = value(key);
    return found ? found->dictionary() : nullptr;
}

std::optional<QString> PropertyDictionary::text(const QString& key) const
{
    const PropertyValue* found = value(key);
    return found ? std::optional(found->text()) : std::nullopt;
}

bool operator==(const PropertyDictionary& left, const PropertyDictionary& right)
{
    return left.m_keys == right.m_keys && left.m_values == right.m_values;
}

PropertyValue::PropertyValue(qint64 value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(int value)
    : m_value(qint64{value})
{
}

PropertyValue::PropertyValue(double value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(bool value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(const QString& value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(const Array& value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(const PropertyDictionary& value)
    : m_value(value)
{
}

std::optional<double> PropertyValue::number() const
{
    if (const auto* integer = std::get_if<qint64>(&m_value))
        return static_cast<double>(*integer);
    if (const auto* real = std::get_if<double>(&m_value))
        return *real;
    if (const auto* truth = std::get_if<bool>(&m_value))
        return *truth ? 1 : 0;
    return std::nullopt;
}

QString PropertyValue::text() const
{
    if (const auto* integer = std::get_if<qint64>(&m_value))
        return QString::number(*integer);
    if (const auto* real = std::get_if<double>(&m_value))
        return numberText(*real);
    if (const auto* truth = std::get_if<bool>(&m_value))
        return *truth ? u"1"_s : u"0"_s;
    if (const QString* text = string())
        return *text;
    return nestedText(*this, 0);
}

bool operator==(const PropertyValue& left, const PropertyValue& right)
{
    return left.m_value == right.m_value;
}

} // namespace brenvaldo::platform::metadata
