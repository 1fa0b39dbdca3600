// SPDX-License-Identifier: GPL-3.0-or-later
#include "xmp_edit.h"

#include "xml_elements.h"

#include <algorithm>
#include <array>

namespace brenvaldo::platform::metadata {

namespace {

constexpr const char* rdfSpace = "http://www.w3.org/1999/02/22-rdf-syntax-ns#";
constexpr QByteArrayView defaultLanguage("x-default");

enum class Form { Text, DefaultLanguage, Bag, Sequence };

/// Where XMP keeps a value.
struct Property
{
    IptcKey key;
    const char* space;
    const char* prefix; ///< the one that everybody uses
    const char* name;
    Form form;
};

constexpr const char* dublinCore = "http://purl.org/dc/elements/1.1/";
constexpr const char* photoshop = "http://ns.adobe.com/photoshop/1.0/";
constexpr const char* rights = "http://ns.adobe.com/xap/1.0/rights/";

constexpr std::array properties{
    Property{IptcKey::ObjectName, dublinCore, "dc", "title", Form::DefaultLanguage},
    Property{IptcKey::Keywords, dublinCore, "dc", "subject", Form::Bag},
    Property{IptcKey::CaptionAbstract, dublinCore, "dc", "description", Form::DefaultLanguage},
    Property{IptcKey::Headline, photoshop, "photoshop", "Headline", Form::Text},
    Property{IptcKey::CopyrightNotice, dublinCore, "dc", "rights", Form::DefaultLanguage},
    Property{IptcKey::RightsUsageTerms, rights, "xmpRights", "UsageTerms", Form::DefaultLanguage},
    Property{IptcKey::Byline, dublinCore, "dc", "creator", Form::Sequence},
    Property{IptcKey::BylineTitle, photoshop, "photoshop", "AuthorsPosition", Form::Text},
    Property{IptcKey::Source, photoshop, "photoshop", "Source", Form::Text},
};

/// A property that is changed, and what its other languages say.
struct Change
{
    Property property;
    QStringList values;
    QByteArray otherLanguages = {}; ///< whole elements
};

QList<Change> changesOf(const QList<IptcChange>& edits)
{
    QList<Change> changes;
    for (const IptcChange& edit : edits) {
        const auto* property
            = std::find_if(properties.begin(), properties.end(), [&edit](const Property& row) {
                  return row.key == edit.key;
              });
        changes.append({.property = *property, .values = edit.values});
    }
    return changes;
}

bool setsAny(const QList<Change>& changes)
{
    return std::any_of(changes.begin(), changes.end(), [](const Change& change) {
        return !change.values.isEmpty();
    });
}

/// The text as XML holds it; characters that XML has no place for are left out.
QByteArray escaped(const QString& text)
{
    QString kept = text;
    kept.removeIf([](QChar unit) {
        return unit.unicode() < 0x20 && unit != u'\t' && unit != u'\n' && unit != u'\r';
    });
    return kept.toHtmlEscaped().replace(u'\r', QLatin1String("&#xD;")).toUtf8();
}

QByteArray items(const QByteArray& container, const QByteArray& contents)
{
    return "<rdf:" + container + '>' + contents + "</rdf:" + container + '>';
}

QByteArray contentsOf(const Change& change)
{
    const auto& values = change.values;
    QByteArray list;
    for (const QString& value : values)
        list += "<rdf:li>" + escaped(value) + "</rdf:li>";
    switch (change.property.form) {
    case Form::Text:
        return escaped(values.first());
    case Form::DefaultLanguage:
        return items(
            "Alt",
            "<rdf:li xml:lang=\"x-default\">" + escaped(values.first()) + "</rdf:li>"
                + change.otherLanguages
        );
    case Form::Bag:
        return items("Bag", list);
    case Form::Sequence:
        return items("Seq", list);
    }
    return {};
}

/// What all the changes set, as a description of `about`; empty where they set nothing.
QByteArray descriptionOf(const QList<Change>& changes, QByteArrayView about)
{
    if (!setsAny(changes))
        return {};
    QByteArray spaces;
    QByteArray elements;
    for (const Change& change : changes) {
        if (change.values.isEmpty())
            continue;
        const Property& property = change.property;
        const QByteArray name = QByteArray(property.prefix) + ':' + property.name;
        const QByteArray space
            = QByteArray("\n    xmlns:") + property.prefix + "=\"" + property.space + '"';
        if (!spaces.contains(space))
            spaces += space;
        elements += "\n   <" + name + '>' + contentsOf(change) + "</" + name + '>';
    }
    return "<rdf:Description rdf:about=\"" + about.toByteArray() + "\" xmlns:rdf=\"" + rdfSpace
        + '"' + spaces + '>' + elements + "\n  </rdf:Description>";
}

QByteArray newPacket(const QByteArray& description)
{
    return QByteArray("<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
                      "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
                      " <rdf:RDF xmlns:rdf=\"")
        + rdfSpace + "\">\n  " + description + "\n </rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"w\"?>";
}

/// The document without what stands around it: instructions, padding, and what may have become of
/// them.
QByteArrayView documentIn(QByteArrayView packet)
{
    constexpr QByteArrayView endTag("</x:xmpmeta>");
    const qsizetype start = packet.indexOf("<x:xmpmeta");
    const qsizetype end = packet.lastIndexOf(endTag);
    if (start >= 0 && end > start)
        return packet.sliced(start, end + endTag.size() - start);
    while (packet.endsWith('\0'))
        packet.chop(1);
    return packet;
}

bool holdsRdf(const QList<XmlElement>& elements) { return elements.first().name.endsWith("RDF"); }

/// The packet that is changed: what is taken out of it, and where the new description goes.
class Editor
{
public:
    Editor(QByteArrayView packet, QList<XmlElement> elements)
        : m_packet(packet)
        , m_elements(std::move(elements))
    {
    }

    std::optional<QByteArray> edited(QList<Change>& changes)
    {
        const qsizetype rdf = indexOfRdf();
        if (rdf < 0)
            return std::nullopt;
        QByteArrayView about;
        for (qsizetype index = rdf + 1; index < m_elements.size(); ++index) {
            if (m_elements[index].parent != rdf || !is(index, rdfSpace, "Description"))
                continue;
            if (about.isEmpty())
                about = aboutOf(index);
            takeFrom(index, changes);
        }
        if (m_removed.isEmpty() && !setsAny(changes))
            return m_packet.toByteArray();
        return withoutRemoved(m_elements[rdf], descriptionOf(changes, about));
    }

private:
    [[nodiscard]] static std::pair<QByteArrayView, QByteArrayView> split(QByteArrayView name)
    {
        const qsizetype colon = name.indexOf(':');
        return {name.first(qMax<qsizetype>(colon, 0)), name.sliced(colon + 1)};
    }

    /// The name space of a prefix where the element stands.
    [[nodiscard]] QByteArrayView spaceOf(qsizetype index, QByteArrayView prefix) const
    {
        const QByteArray declaration
            = prefix.isEmpty() ? QByteArray("xmlns") : "xmlns:" + prefix.toByteArray();
        for (; index >= 0; index = m_elements[index].parent) {
            for (const XmlAttribute& attribute : m_elements[index].attributes) {
                if (attribute.name == QByteArrayView(declaration))
                    return attribute.value;
            }
        }
        return {};
    }

    [[nodiscard]] bool
    isName(qsizetype index, QByteArrayView name, QByteArrayView space, QByteArrayView local) const
    {
        const auto [prefix, given] = split(name);
        return given == local && spaceOf(index, prefix) == space;
    }

    [[nodiscard]] bool is(qsizetype index, QByteArrayView space, QByteArrayView local) const
    {
        return isName(index, m_elements[index].name, space, local);
    }

    [[nodiscard]] qsizetype indexOfRdf() const
    {
        for (qsizetype index = 0; index < m_elements.size(); ++index) {
            if (is(index, rdfSpace, "RDF"))
                return index;
        }
        return -1;
    }

    [[nodiscard]] QByteArrayView aboutOf(qsizetype description) const
    {
        for (const XmlAttribute& attribute : m_elements[description].attributes) {
            if (isName(description, attribute.name, rdfSpace, "about"))
                return attribute.value;
        }
        return {};
    }

    /// The change of the property that the name stands for; null when it is none of them.
    [[nodiscard]] Change*
    changeOf(qsizetype index, QByteArrayView name, QList<Change>& changes) const
    {
        const auto found = std::find_if(changes.begin(), changes.end(), [&](const Change& change) {
            return isName(index, name, change.property.space, change.property.name);
        });
        return found == changes.end() ? nullptr : &*found;
    }

    /// Takes what is changed out of a description, and the description when nothing else is in it.
    void takeFrom(qsizetype description, QList<Change>& changes)
    {
        const XmlElement& element = m_elements[description];
        QList<QByteArrayView> removed;
        bool holdsOther = false;
        for (const XmlAttribute& attribute : element.attributes) {
            if (changeOf(description, attribute.name, changes))
                removed.append(attribute.whole);
            else
                holdsOther = holdsOther || isProperty(description, attribute);
        }
        for (qsizetype index = description + 1; isWithin(index, element); ++index) {
            if (m_elements[index].parent != description)
                continue;
            if (Change* change = changeOf(index, m_elements[index].name, changes)) {
                keepOtherLanguages(index, *change);
                removed.append(withBlanksBefore(m_elements[index].whole));
            } else {
                holdsOther = true;
            }
        }
        if (holdsOther)
            m_removed += removed;
        else if (!removed.isEmpty())
            m_removed.append(withBlanksBefore(element.whole));
    }

    [[nodiscard]] bool isProperty(qsizetype description, const XmlAttribute& attribute) const
    {
        return attribute.name != QByteArrayView("xmlns") && !attribute.name.startsWith("xmlns:")
            && !isName(description, attribute.name, rdfSpace, "about");
    }

    [[nodiscard]] bool isWithin(qsizetype index, const XmlElement& element) const
    {
        return index < m_elements.size() && m_elements[index].whole.begin() < element.whole.end();
    }

    void keepOtherLanguages(qsizetype property, Change& change) const
    {
        if (change.property.form != Form::DefaultLanguage)
            return;
        const XmlElement& element = m_elements[property];
        for (qsizetype index = property + 1; isWithin(index, element); ++index) {
            const XmlElement& item = m_elements[index];
            for (const XmlAttribute& attribute : item.attributes) {
                if (attribute.name == QByteArrayView("xml:lang")
                    && attribute.value != defaultLanguage)
                    change.otherLanguages.append(item.whole);
            }
        }
    }

    [[nodiscard]] QByteArrayView withBlanksBefore(QByteArrayView part) const
    {
        const auto* start = part.begin();
        while (start > m_packet.begin() && QByteArrayView(" \t\r\n").contains(*(start - 1)))
            --start;
        return {start, part.end()};
    }

    /// The packet without what is removed, and with `description` at the end of `rdf`.
    [[nodiscard]] QByteArray
    withoutRemoved(const XmlElement& rdf, const QByteArray& description) const
    {
        QByteArray result;
        const char* place = m_packet.begin();
        for (const QByteArrayView removed : m_removed) {
            result.append(place, removed.begin() - place);
            place = removed.end();
        }
        const char* const end = rdf.isEmptyTag() ? rdf.whole.end() : endOfContents(rdf);
        result.append(place, end - place);
        if (rdf.isEmptyTag())
            result.chop(2); // "/>"
        result.append(rdf.isEmptyTag() ? ">" : "");
        result.append(description.isEmpty() ? QByteArray() : "\n  " + description);
        if (rdf.isEmptyTag())
            result.append("</").append(rdf.name).append('>');
        return result.append(end, m_packet.end() - end);
    }

    /// In front of the blanks before the end tag.
    [[nodiscard]] const char* endOfContents(const XmlElement& element) const
    {
        const qsizetype endTag
            = m_packet.lastIndexOf("</", element.whole.end() - m_packet.begin() - 1);
        return withBlanksBefore(m_packet.sliced(endTag)).begin();
    }

    QByteArrayView m_packet;
    QList<XmlElement> m_elements;
    QList<QByteArrayView> m_removed; ///< in their order, none within another
};

} // namespace

std::optional<QByteArray> xmpWith(const QByteArray& packet, const QList<IptcChange>& edits)
{
    QList<Change> changes = changesOf(edits);
    const QByteArrayView document = documentIn(packet);
    const auto elements = xmlElements(document);
    const bool isEmpty
        = packet.isEmpty() || (elements && elements->size() == 1 && !holdsRdf(*elements));
    if (isEmpty)
        return setsAny(changes) ? newPacket(descriptionOf(changes, {})) : packet;
    const auto edited = elements ? Editor(document, *elements).edited(changes) : std::nullopt;
    if (!edited || !xmlElements(*edited))
        return std::nullopt;
    QByteArray result = packet;
    return result.replace(document.begin() - packet.begin(), document.size(), *edited);
}

} // namespace brenvaldo::platform::metadata
