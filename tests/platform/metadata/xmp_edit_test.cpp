// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/metadata/xmp_edit.h>
#include <platform/metadata/xmp_values.h>
#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::metadata;

namespace {

QByteArray packetOf(const QByteArray& descriptions)
{
    return "<?xpacket begin='\xEF\xBB\xBF' id='W5M0MpCehiHzreSzNTczkc9d'?>\n"
           "<x:xmpmeta xmlns:x='adobe:ns:meta/'>"
           "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
        + descriptions + "</rdf:RDF></x:xmpmeta>\n<?xpacket end='w'?>";
}

/// One description with the name spaces of the tests.
QByteArray description(const QByteArray& attributes, const QByteArray& elements)
{
    return "<rdf:Description rdf:about='me' xmlns:dc='http://purl.org/dc/elements/1.1/' "
           "xmlns:p='http://ns.adobe.com/photoshop/1.0/' xmlns:own='http://example.org/'"
        + attributes + ">" + elements + "</rdf:Description>";
}

QByteArray changed(const QByteArray& packet, const QList<IptcChange>& changes)
{
    return xmpWith(packet, changes).value_or("damaged");
}

QStringList valuesOf(const QByteArray& packet, const char* key)
{
    return XmpValues(packet).texts(key);
}

} // namespace

struct XmpCase
{
    const char* name;
    IptcKey key;
    const char* xmp;

    friend void PrintTo(const XmpCase& row, std::ostream* out) { *out << row.name; }
};

class XmpKeys : public testing::TestWithParam<XmpCase>
{
};

TEST_P(XmpKeys, HaveAPropertyInANewPacket)
{
    const QByteArray packet = changed({}, {{GetParam().key, {u"a < b & \"é\""_s}}});

    EXPECT_EQ(valuesOf(packet, GetParam().xmp), QStringList{u"a < b & \"é\""_s});
    EXPECT_TRUE(
        packet.startsWith("<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>")
    );
    EXPECT_TRUE(packet.endsWith("<?xpacket end=\"w\"?>"));
}

TEST_P(XmpKeys, AreReplacedWhereTheyStand)
{
    const QByteArray once = changed({}, {{GetParam().key, {u"once"_s}}});

    const QByteArray twice = changed(once, {{GetParam().key, {u"twice"_s}}});

    EXPECT_EQ(valuesOf(twice, GetParam().xmp), QStringList{u"twice"_s});
    EXPECT_FALSE(twice.contains("once"));
    EXPECT_EQ(twice.size(), once.size() + 1);
}

INSTANTIATE_TEST_SUITE_P(
    All,
    XmpKeys,
    testing::Values(
        XmpCase{"Title", IptcKey::ObjectName, "Xmp.dc.title"},
        XmpCase{"Keywords", IptcKey::Keywords, "Xmp.dc.subject"},
        XmpCase{"Caption", IptcKey::CaptionAbstract, "Xmp.dc.description"},
        XmpCase{"Headline", IptcKey::Headline, "Xmp.photoshop.Headline"},
        XmpCase{"Copyright", IptcKey::CopyrightNotice, "Xmp.dc.rights"},
        XmpCase{"UsageTerms", IptcKey::RightsUsageTerms, "Xmp.xmpRights.UsageTerms"},
        XmpCase{"Creator", IptcKey::Byline, "Xmp.dc.creator"},
        XmpCase{"CreatorsTitle", IptcKey::BylineTitle, "Xmp.photoshop.AuthorsPosition"},
        XmpCase{"Source", IptcKey::Source, "Xmp.photoshop.Source"}
    ),
    brenvaldo::test::CaseName{}
);

TEST(XmpWith, KeepsEverythingElseAsItIsWritten)
{
    const QByteArray own
        = "<own:thing  a = 'x>y'><!-- <dc:title> --><![CDATA[<dc:title>]]></own:thing>";
    const QByteArray before = packetOf(description(" own:mark='1'", own));

    const QByteArray after = changed(before, {{IptcKey::ObjectName, {u"a title"_s}}});

    EXPECT_TRUE(after.contains(description(" own:mark='1'", own)));
    EXPECT_TRUE(after.contains("<rdf:li xml:lang=\"x-default\">a title</rdf:li>"));
}

TEST(XmpWith, ReplacesAPropertyThatIsAnAttribute)
{
    const QByteArray before = packetOf(description(" p:Headline='old' own:mark='1'", ""));

    const QByteArray after = changed(before, {{IptcKey::Headline, {u"new"_s}}});

    EXPECT_EQ(valuesOf(after, "Xmp.photoshop.Headline"), QStringList{u"new"_s});
    EXPECT_FALSE(after.contains("old"));
    EXPECT_TRUE(after.contains(" own:mark='1'"));
}

TEST(XmpWith, KnowsAPropertyByItsNameSpaceAndNotByItsPrefix)
{
    const QByteArray foreign = "<dc:title xmlns:dc='http://example.org/'>foreign</dc:title>";
    const QByteArray before = packetOf(description(
        "", foreign + "<t:title xmlns:t='http://purl.org/dc/elements/1.1/'>old</t:title>"
    ));

    const QByteArray after = changed(before, {{IptcKey::ObjectName, {u"new"_s}}});

    EXPECT_TRUE(after.contains(foreign));
    EXPECT_FALSE(after.contains("old"));
}

TEST(XmpWith, LeavesAPropertyInsideOfAnother)
{
    const QByteArray nested
        = "<own:history rdf:parseType='Resource'><dc:title>of then</dc:title></own:history>";

    const QByteArray after
        = changed(packetOf(description("", nested)), {{IptcKey::ObjectName, {u"new"_s}}});

    EXPECT_TRUE(after.contains(nested));
}

TEST(XmpWith, KeepsTheOtherLanguagesOfAText)
{
    const QByteArray french = "<rdf:li xml:lang='fr'>un titre</rdf:li>";
    const QByteArray before = packetOf(description(
        "",
        "<dc:title><rdf:Alt><rdf:li xml:lang='x-default'>old</rdf:li>" + french
            + "</rdf:Alt></dc:title>"
    ));

    const QByteArray after = changed(before, {{IptcKey::ObjectName, {u"a title"_s}}});

    EXPECT_EQ(valuesOf(after, "Xmp.dc.title"), QStringList{u"a title"_s});
    EXPECT_TRUE(after.contains(french));
    EXPECT_FALSE(after.contains("old"));
}

TEST(XmpWith, WritesEachKeyword)
{
    const QByteArray after = changed({}, {{IptcKey::Keywords, {u"sea"_s, u"boat"_s}}});

    EXPECT_EQ(valuesOf(after, "Xmp.dc.subject"), (QStringList{u"sea"_s, u"boat"_s}));
}

TEST(XmpWith, ClearsKeywordsWithTheDescriptionThatHeldNothingElse)
{
    const QByteArray subject = "<dc:subject><rdf:Bag><rdf:li>sea</rdf:li></rdf:Bag></dc:subject>";
    const QByteArray other = "<own:thing>1</own:thing>";

    EXPECT_EQ(
        changed(packetOf("\n  " + description("", subject)), {{IptcKey::Keywords, {}}}),
        packetOf("")
    );
    EXPECT_EQ(
        changed(packetOf(description("", "\n " + subject + other)), {{IptcKey::Keywords, {}}}),
        packetOf(description("", other))
    );
}

TEST(XmpWith, LeavesAPacketThatNothingChangesIn)
{
    const QByteArray packet = packetOf(description("", "<own:thing>1</own:thing>"));

    EXPECT_EQ(changed(packet, {{IptcKey::Keywords, {}}}), packet);
    EXPECT_EQ(changed({}, {{IptcKey::Keywords, {}}}), QByteArray());
}

TEST(XmpWith, TellsOfTheSameThing)
{
    const QByteArray before = packetOf(description("", "<own:thing>1</own:thing>"));

    EXPECT_TRUE(changed(before, {{IptcKey::Headline, {u"x"_s}}}).contains("rdf:about=\"me\""));
}

TEST(XmpWith, FillsAnEmptyList)
{
    const QByteArray before = "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'/>";

    const QByteArray after = changed(before, {{IptcKey::Headline, {u"x"_s}}});

    EXPECT_EQ(valuesOf(after, "Xmp.photoshop.Headline"), QStringList{u"x"_s});
}

TEST(XmpWith, LeavesWhatStandsAroundTheDocument)
{
    const QByteArray before = packetOf("").chopped(2) + QByteArray(2, '\0');

    const QByteArray after = changed(before, {{IptcKey::Headline, {u"x"_s}}});

    EXPECT_TRUE(after.endsWith("\n<?xpacket end='w'" + QByteArray(2, '\0')));
    EXPECT_TRUE(after.contains("<photoshop:Headline>x<"));
}

TEST(XmpWith, FillsAPacketWithoutContents)
{
    const QByteArray before = "<x:xmpmeta xmlns:x='adobe:ns:meta/' />";

    EXPECT_EQ(
        valuesOf(changed(before, {{IptcKey::Headline, {u"x"_s}}}), "Xmp.photoshop.Headline"),
        QStringList{u"x"_s}
    );
    EXPECT_EQ(changed(before, {{IptcKey::Keywords, {}}}), before);
}

TEST(XmpWith, TakesZeroBytesForNoDamage)
{
    const QByteArray before
        = "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'></rdf:RDF>"
        + QByteArray(2, '\0');

    EXPECT_TRUE(changed(before, {{IptcKey::Headline, {u"x"_s}}}).contains("<photoshop:Headline>x<")
    );
}

TEST(XmpWith, LeavesOutWhatXmlCanNotHold)
{
    const QByteArray packet = changed({}, {{IptcKey::Headline, {u"a\u0007b\tc\nd\re"_s}}});

    EXPECT_EQ(valuesOf(packet, "Xmp.photoshop.Headline"), QStringList{u"ab\tc\nd\re"_s});
}

TEST(XmpWith, RefusesADamagedPacket)
{
    const QList<IptcChange> change{{IptcKey::Headline, {u"x"_s}}};

    EXPECT_FALSE(xmpWith("no packet", change));
    EXPECT_FALSE(xmpWith(packetOf("<rdf:Description>"), change));
    EXPECT_FALSE(xmpWith("<x:xmpmeta xmlns:x='adobe:ns:meta/'><a/></x:xmpmeta>", change));
    EXPECT_FALSE(xmpWith(packetOf("<!-- \xFF -->"), change));
    EXPECT_FALSE(xmpWith(
        "<!DOCTYPE a [<!ENTITY b 'c'>]>"
        "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'/>",
        change
    ));
}
