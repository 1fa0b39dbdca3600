// SPDX-License-Identifier: GPL-3.0-or-later
#include "xmp_values.h"

#include "xmp_parser.h"

#include <exiv2/exiv2.hpp>

namespace brenvaldo::platform::metadata {

namespace {

QString textOf(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The default language, else the first one.
QString defaultText(const Exiv2::LangAltValue& value)
{
    const std::string text = value.toString("x-default");
    if (!text.empty() || value.value_.empty())
        return textOf(text);
    return textOf(value.value_.begin()->second);
}

QStringList textsOf(const Exiv2::Xmpdatum& datum)
{
    const Exiv2::Value& value = datum.value();
    if (const auto* alternatives = dynamic_cast<const Exiv2::LangAltValue*>(&value))
        return {defaultText(*alternatives)};
    // Only an array counts its elements: a single value counts its bytes.
    const auto* array = dynamic_cast<const Exiv2::XmpArrayValue*>(&value);
    if (!array) {
        const QString single = textOf(value.toString(0));
        return single.isEmpty() ? QStringList() : QStringList(single);
    }
    QStringList texts;
    for (long i = 0; i < array->count(); ++i)
        texts.append(textOf(array->toString(i)));
    return texts;
}

} // namespace

struct XmpValues::Data
{
    Exiv2::XmpData properties;
};

XmpValues::XmpValues(const QByteArray& packet)
    : m_data(std::make_unique<Data>())
{
    if (packet.isEmpty())
        return;
    const auto lock = lockedXmpParser();
    try {
        if (Exiv2::XmpParser::decode(m_data->properties, packet.toStdString()) != 0)
            m_data->properties.clear();
    } catch (const std::exception&) {
        m_data->properties.clear();
    }
}

XmpValues::~XmpValues() = default;

QStringList XmpValues::texts(const QByteArray& key) const
{
    if (m_data->properties.empty())
        return {};
    try {
        const auto found = m_data->properties.findKey(Exiv2::XmpKey(key.toStdString()));
        return found == m_data->properties.end() ? QStringList() : textsOf(*found);
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace brenvaldo::platform::metadata
