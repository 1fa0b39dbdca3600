// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"

#include <platform/foundation/literals.h>
#include <platform/metadata/exif_properties.h>
#include <platform/metadata/iptc_properties.h>
#include <platform/metadata/xmp_values.h>
#include <support/iptc_block.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::metadata;
using brenvaldo::test::iptcDataSet;
using brenvaldo::test::xmpPacket;

namespace {

QByteArray packetOf(const QByteArray& properties)
{
    return "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
           "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
           "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
           "xmlns:photoshop=\"http://ns.adobe.com/photoshop/1.0/\" "
           "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" "
           "xmlns:xmpRights=\"http://ns.adobe.com/xap/1.0/rights/\" "
           "xmlns:Iptc4xmpCore=\"http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/\">"
        + properties + "</rdf:Description></rdf:RDF></x:xmpmeta>";
}

PropertyDictionary fromIim(const QByteArray& iim) { return iptcProperties(iim, XmpValues({}), {}); }

PropertyDictionary fromXmp(const QByteArray& properties)
{
    return iptcProperties({}, XmpValues(packetOf(properties)), {});
}

ExifProperties exifWith(const char* tiffKey, const QString& value)
{
    ExifProperties exif;
    exif.tiff.insert(QString::fromUtf8(tiffKey), value);
    return exif;
}

} // namespace

TEST(IptcProperties, IsEmptyWithoutAnySource) { EXPECT_TRUE(fromIim({}).isEmpty()); }

TEST(IptcProperties, GathersRepeatedDataSetsInAnArray)
{
    const PropertyDictionary iptc = fromIim(iptcDataSet(25, "a") + iptcDataSet(25, "b"));

    EXPECT_EQ(iptc.text(u"Keywords"_s), u"(\n    a,\n    b\n)"_s);
}

TEST(IptcProperties, ShowsTheFirstOfRepeatedWriters)
{
    const PropertyDictionary iptc = fromIim(iptcDataSet(122, "first") + iptcDataSet(122, "second"));

    EXPECT_EQ(iptc.text(u"Writer/Editor"_s), u"first"_s);
}

TEST(IptcProperties, ReadsTextsThatAreNotUtf8AsLatin1)
{
    EXPECT_EQ(fromIim(iptcDataSet(90, "Z\xFCrich")).text(u"City"_s), u"Z\u00fcrich"_s);
    EXPECT_EQ(fromIim(iptcDataSet(90, "Z\xC3\xBCrich")).text(u"City"_s), u"Z\u00fcrich"_s);
}

TEST(IptcProperties, StopsAtADamagedDataSet)
{
    const QByteArray damaged("\x1C\x02\x5A\x7F\xFF", 5);

    const PropertyDictionary iptc = fromIim(iptcDataSet(120, "caption") + damaged + "x");

    EXPECT_EQ(iptc.keys(), QStringList(u"Caption/Abstract"_s));
}

TEST(IptcProperties, FillsFromXmpWhatIimLacks)
{
    const PropertyDictionary iptc = fromXmp(
        "<dc:subject><rdf:Bag><rdf:li>a</rdf:li><rdf:li>b</rdf:li></rdf:Bag></dc:subject>"
        "<xmpRights:UsageTerms><rdf:Alt><rdf:li xml:lang=\"x-default\">ask</rdf:li></rdf:Alt>"
        "</xmpRights:UsageTerms>"
        "<photoshop:Headline>News</photoshop:Headline><xmp:Rating>4</xmp:Rating>"
    );

    EXPECT_EQ(iptc.text(u"Keywords"_s), u"(\n    a,\n    b\n)"_s);
    EXPECT_EQ(iptc.text(u"UsageTerms"_s), u"ask"_s);
    EXPECT_EQ(iptc.text(u"Headline"_s), u"News"_s);
    EXPECT_EQ(iptc.text(u"StarRating"_s), u"4"_s);
}

TEST(IptcProperties, ShowsTheContactAsADictionary)
{
    const PropertyDictionary iptc
        = fromXmp("<Iptc4xmpCore:CreatorContactInfo rdf:parseType=\"Resource\">"
                  "<Iptc4xmpCore:CiAdrCity>Bern</Iptc4xmpCore:CiAdrCity>"
                  "<Iptc4xmpCore:CiEmailWork>a@b.example</Iptc4xmpCore:CiEmailWork>"
                  "</Iptc4xmpCore:CreatorContactInfo>");

    const PropertyDictionary* contact = iptc.dictionary(u"CreatorContactInfo"_s);
    ASSERT_NE(contact, nullptr);
    EXPECT_EQ(contact->text(u"CiAdrCity"_s), u"Bern"_s);
    EXPECT_EQ(contact->text(u"CiEmailWork"_s), u"a@b.example"_s);
}

TEST(IptcProperties, SplitsAnXmpDateIntoDateAndTime)
{
    const PropertyDictionary iptc
        = fromXmp("<photoshop:DateCreated>2013-06-04T19:44:49.5+02:00</photoshop:DateCreated>");

    EXPECT_EQ(iptc.text(u"DateCreated"_s), u"20130604"_s);
    EXPECT_EQ(iptc.text(u"TimeCreated"_s), u"194449+0200"_s);
}

TEST(IptcProperties, PrefersIimToXmpAndXmpToExif)
{
    const QByteArray xmp
        = packetOf("<dc:description><rdf:Alt><rdf:li xml:lang=\"x-default\">xmp</rdf:li></rdf:Alt>"
                   "</dc:description>");
    const ExifProperties exif = exifWith("ImageDescription", u"exif"_s);
    const QString key = u"Caption/Abstract"_s;

    EXPECT_EQ(iptcProperties(iptcDataSet(120, "iim"), XmpValues(xmp), exif).text(key), u"iim"_s);
    EXPECT_EQ(iptcProperties({}, XmpValues(xmp), exif).text(key), u"xmp"_s);
    EXPECT_EQ(iptcProperties({}, XmpValues({}), exif).text(key), u"exif"_s);
}

TEST(IptcProperties, FillsDatesFromExif)
{
    ExifProperties exif;
    exif.exif.insert(u"DateTimeOriginal"_s, u"2026:11:15 10:44:33"_s);
    exif.exif.insert(u"DateTimeDigitized"_s, u"2026:11:16 11:45:34"_s);

    const PropertyDictionary iptc = iptcProperties({}, XmpValues({}), exif);

    EXPECT_EQ(iptc.text(u"DateCreated"_s), u"20261115"_s);
    EXPECT_EQ(iptc.text(u"TimeCreated"_s), u"104433"_s);
    EXPECT_EQ(iptc.text(u"DigitalCreationDate"_s), u"20261116"_s);
    EXPECT_EQ(iptc.text(u"DigitalCreationTime"_s), u"114534"_s);
}

TEST(IptcProperties, ShowsTheArtistAsAByline)
{
    EXPECT_EQ(
        iptcProperties({}, XmpValues({}), exifWith("Artist", u"Jane"_s)).text(u"Byline"_s),
        u"(\n    Jane\n)"_s
    );
}

TEST(IptcProperties, ShowsTheCreatorsTitleOfXmpOnce)
{
    const PropertyDictionary iptc
        = fromXmp("<photoshop:AuthorsPosition>Editor</photoshop:AuthorsPosition>");

    EXPECT_EQ(iptc.text(u"BylineTitle"_s), u"(\n    Editor\n)"_s);
}

TEST(XmpValues, HoldALongTextOnce)
{
    const QByteArray letters(5000, 'a');
    const XmpValues values(packetOf(
        "<photoshop:Credit>" + letters + "</photoshop:Credit><photoshop:City></photoshop:City>"
    ));

    const QStringList texts = values.texts("Xmp.photoshop.Credit");

    ASSERT_EQ(texts.size(), 1);
    EXPECT_EQ(texts.first().size(), 5000);
    EXPECT_EQ(values.texts("Xmp.photoshop.City"), QStringList());
}

TEST(XmpValues, HoldEachElementOfAnArray)
{
    const XmpValues values(packetOf(
        "<dc:creator><rdf:Seq><rdf:li>Jane</rdf:li><rdf:li>Joe</rdf:li></rdf:Seq></dc:creator>"
        "<dc:subject><rdf:Bag/></dc:subject>"
    ));

    EXPECT_EQ(values.texts("Xmp.dc.creator"), QStringList({u"Jane"_s, u"Joe"_s}));
    EXPECT_EQ(values.texts("Xmp.dc.subject"), QStringList());
}

TEST(XmpValues, AreNoneInADamagedPacket)
{
    EXPECT_TRUE(
        XmpValues("<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:").texts("Xmp.dc.title").isEmpty()
    );
    EXPECT_TRUE(XmpValues("not XMP").texts("Xmp.dc.title").isEmpty());
    EXPECT_EQ(XmpValues(xmpPacket("A title")).texts("Xmp.dc.title"), QStringList(u"A title"_s));
}
