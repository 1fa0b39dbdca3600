// SPDX-License-Identifier: GPL-3.0-or-later
#include "property_list.h"

#include "atomic_file.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/regular_file.h>

#include <QDateTime>
#include <QFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace brenvaldo::platform::storage {

namespace {

constexpr int deepestNesting = 100;

/// Reads one value after the other; a fault sets the error of the XML stream.
class Reader
{
public:
    explicit Reader(QIODevice& device)
        : m_xml(&device)
    {
    }

    std::optional<QVariantMap> dictionary()
    {
        if (!m_xml.readNextStartElement() || m_xml.name() != u"plist")
            return std::nullopt;
        if (!m_xml.readNextStartElement() || m_xml.name() != u"dict")
            return std::nullopt;
        QVariantMap result = readDictionary();
        while (!m_xml.atEnd())
            m_xml.readNext();
        if (m_xml.hasError())
            return std::nullopt;
        return result;
    }

private:
    QVariant readValue()
    {
        const QString kind = m_xml.name().toString();
        if (kind == u"dict")
            return readDictionary();
        if (kind == u"array")
            return readList();
        const QString text = m_xml.readElementText();
        if (kind == u"string")
            return text;
        if (kind == u"true" || kind == u"false")
            return kind == u"true";
        if (kind == u"data")
            return QByteArray::fromBase64(text.toLatin1());
        return readScalar(kind, text);
    }

    QVariant readScalar(const QString& kind, const QString& text)
    {
        bool isValid = false;
        QVariant value;
        if (kind == u"integer") {
            value = text.trimmed().toLongLong(&isValid);
        } else if (kind == u"real") {
            value = text.trimmed().toDouble(&isValid);
        } else if (kind == u"date") {
            const QDateTime date = QDateTime::fromString(text.trimmed(), Qt::ISODate);
            isValid = date.isValid();
            value = date;
        }
        if (!isValid)
            m_xml.raiseError(u"no value: "_s + kind);
        return value;
    }

    QVariantMap readDictionary()
    {
        QVariantMap result;
        enterLevel();
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() != u"key") {
                m_xml.raiseError(u"a key is missing"_s);
                break;
            }
            const QString key = m_xml.readElementText();
            if (!m_xml.readNextStartElement()) {
                m_xml.raiseError(u"a value is missing"_s);
                break;
            }
            result.insert(key, readValue());
        }
        --m_level;
        return result;
    }

    QVariantList readList()
    {
        QVariantList result;
        enterLevel();
        while (m_xml.readNextStartElement())
            result += readValue();
        --m_level;
        return result;
    }

    void enterLevel()
    {
        if (++m_level > deepestNesting)
            m_xml.raiseError(u"nested too deep"_s);
    }

    QXmlStreamReader m_xml;
    int m_level = 0;
};

class Writer
{
public:
    explicit Writer(QByteArray& target)
        : m_xml(&target)
    {
        m_xml.setAutoFormatting(true);
        m_xml.setAutoFormattingIndent(-1);
    }

    bool write(const QVariantMap& dictionary)
    {
        m_xml.writeStartDocument();
        m_xml.writeStartElement(u"plist"_s);
        m_xml.writeAttribute(u"version"_s, u"1.0"_s);
        writeDictionary(dictionary);
        m_xml.writeEndDocument();
        return m_knowsAll && !m_xml.hasError();
    }

private:
    void writeValue(const QVariant& value)
    {
        switch (value.typeId()) {
        case QMetaType::QVariantMap:
            return writeDictionary(value.toMap());
        case QMetaType::QVariantList:
        case QMetaType::QStringList:
            return writeList(value.toList());
        case QMetaType::Bool:
            return m_xml.writeEmptyElement(value.toBool() ? u"true"_s : u"false"_s);
        case QMetaType::Int:
        case QMetaType::LongLong:
            return m_xml.writeTextElement(u"integer"_s, value.toString());
        case QMetaType::Double:
            return m_xml.writeTextElement(u"real"_s, QString::number(value.toDouble(), 'g', 17));
        case QMetaType::QString:
            return m_xml.writeTextElement(u"string"_s, value.toString());
        case QMetaType::QByteArray:
            return m_xml.writeTextElement(
                u"data"_s, QString::fromLatin1(value.toByteArray().toBase64())
            );
        case QMetaType::QDateTime:
            return m_xml.writeTextElement(
                u"date"_s, value.toDateTime().toUTC().toString(Qt::ISODate)
            );
        default:
            m_knowsAll = false;
        }
    }

    void writeDictionary(const QVariantMap& dictionary)
    {
        m_xml.writeStartElement(u"dict"_s);
        for (auto entry = dictionary.begin(); entry != dictionary.end(); ++entry) {
            m_xml.writeTextElement(u"key"_s, entry.key());
            writeValue(entry.value());
        }
        m_xml.writeEndElement();
    }

    void writeList(const QVariantList& list)
    {
        m_xml.writeStartElement(u"array"_s);
        for (const QVariant& value : list)
            writeValue(value);
        m_xml.writeEndElement();
    }

    QXmlStreamWriter m_xml;
    bool m_knowsAll = true;
};

} // namespace

std::optional<QVariantMap> readPropertyList(const QString& path)
{
    QFile file(path);
    if (!openRegularFile(file))
        return std::nullopt;
    return Reader(file).dictionary();
}

bool writePropertyList(const QString& path, const QVariantMap& dictionary)
{
    QByteArray contents;
    return Writer(contents).write(dictionary) && writeFileAtomically(path, contents);
}

} // namespace brenvaldo::platform::storage
