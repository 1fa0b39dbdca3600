// SPDX-License-Identifier: GPL-3.0-or-later
#include "xml_elements.h"

#include <QXmlStreamReader>

namespace brenvaldo::platform::metadata {

namespace {

constexpr QByteArrayView blanks(" \t\r\n");

/// What the scan below takes for granted.
bool isWellFormed(QByteArrayView document)
{
    if (!document.isValidUtf8() || document.contains('\0'))
        return false;
    QXmlStreamReader reader(QString::fromUtf8(document));
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::DTD)
            return false;
    }
    return !reader.hasError();
}

qsizetype behind(QByteArrayView document, QByteArrayView end, qsizetype from)
{
    return document.indexOf(end, from) + end.size();
}

struct Tag
{
    enum class Kind { Start, End, Empty };

    Kind kind = Kind::Start;
    XmlElement element;
};

class TagScanner
{
public:
    explicit TagScanner(QByteArrayView document)
        : m_document(document)
    {
    }

    /// The tag at `start`, a "<".
    Tag tagAt(qsizetype start)
    {
        m_place = start + 1;
        Tag tag;
        if (take('/'))
            tag.kind = Tag::Kind::End;
        tag.element.name = word();
        for (qsizetype before = m_place; !isAtEnd(); before = m_place)
            tag.element.attributes.append(attribute(before));
        if (take('/'))
            tag.kind = Tag::Kind::Empty;
        tag.element.startTag = m_document.sliced(start, m_place + 1 - start);
        tag.element.whole = tag.element.startTag;
        return tag;
    }

private:
    bool take(char letter)
    {
        const bool isThere = m_document[m_place] == letter;
        m_place += isThere ? 1 : 0;
        return isThere;
    }

    /// True in front of the end of the tag, behind blanks.
    bool isAtEnd()
    {
        while (blanks.contains(m_document[m_place]))
            ++m_place;
        return m_document[m_place] == '/' || m_document[m_place] == '>';
    }

    QByteArrayView word()
    {
        const qsizetype start = m_place;
        while (!QByteArrayView(" \t\r\n=/>").contains(m_document[m_place]))
            ++m_place;
        return m_document.sliced(start, m_place - start);
    }

    XmlAttribute attribute(qsizetype before)
    {
        XmlAttribute attribute;
        attribute.name = word();
        while (m_document[m_place] != '"' && m_document[m_place] != '\'')
            ++m_place;
        const qsizetype start = m_place + 1;
        const qsizetype end = m_document.indexOf(m_document[m_place], start);
        m_place = end + 1;
        attribute.value = m_document.sliced(start, end - start);
        attribute.whole = m_document.sliced(before, m_place - before);
        return attribute;
    }

    QByteArrayView m_document;
    qsizetype m_place = 0;
};

/// Puts the tags of one document together.
class Elements
{
public:
    void add(const Tag& tag)
    {
        if (tag.kind == Tag::Kind::End) {
            close(tag.element.startTag);
            return;
        }
        m_elements.append(tag.element);
        m_elements.last().parent = m_open.isEmpty() ? -1 : m_open.last();
        if (tag.kind == Tag::Kind::Start)
            m_open.append(m_elements.size() - 1);
    }

    [[nodiscard]] const QList<XmlElement>& all() const { return m_elements; }

private:
    void close(QByteArrayView endTag)
    {
        XmlElement& element = m_elements[m_open.takeLast()];
        element.whole = QByteArrayView(element.whole.begin(), endTag.end());
    }

    QList<XmlElement> m_elements;
    QList<qsizetype> m_open;
};

} // namespace

std::optional<QList<XmlElement>> xmlElements(QByteArrayView document)
{
    if (!isWellFormed(document))
        return std::nullopt;
    TagScanner scanner(document);
    Elements elements;
    qsizetype place = 0;
    while ((place = document.indexOf('<', place)) >= 0) {
        const QByteArrayView rest = document.sliced(place);
        if (rest.startsWith("<!--"))
            place = behind(document, "-->", place + 4);
        else if (rest.startsWith("<![CDATA["))
            place = behind(document, "]]>", place);
        else if (rest.startsWith("<?"))
            place = behind(document, "?>", place);
        else {
            const Tag tag = scanner.tagAt(place);
            elements.add(tag);
            place += tag.element.startTag.size();
        }
    }
    return elements.all();
}

} // namespace brenvaldo::platform::metadata
