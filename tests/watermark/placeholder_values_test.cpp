// SPDX-License-Identifier: GPL-3.0-or-later
#include <watermark/placeholder_values.h>

#include <watermark/kept_properties.h>

#include <support/case_name.h>
#include <support/color_profiles.h>
#include <support/exif_block.h>
#include <support/iptc_block.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::watermark;
using namespace brenvaldo::test;

namespace {

QByteArray comment(const QByteArray& text) { return QByteArray("ASCII\0\0\0", 8) + text; }

PhotoBuilder photoWithIptc(const QByteArray& dataSets)
{
    return PhotoBuilder{}.jpegSegment('\xED', iptcSegmentContents(dataSets));
}

PlaceholderValue valuesOf(const QString& path)
{
    return placeholderValuesOf(path, u"new.jpg"_s, std::make_shared<KeptProperties>());
}

/// `typed` with the tokens replaced by the values of the photo.
QString shown(const QString& typed, const PhotoBuilder& photo)
{
    const TemporaryFolder folder;
    const QString path = photo.write(folder.path(u"photo"_s));
    return replacingPlaceholders(typed, valuesOf(path));
}

struct ValueCase
{
    const char* name;
    QString typed;
    PhotoBuilder photo;
    QString shown;

    friend void PrintTo(const ValueCase& row, std::ostream* out) { *out << row.name; }
};

class PlaceholderOfAPhoto : public testing::TestWithParam<ValueCase>
{
};

PhotoBuilder photoOfEverything()
{
    return PhotoBuilder{}
        .size(61, 23)
        .iccProfile(profileOf(displayP3))
        .exif(exifBlock(
            {.orientation = 6,
             .dateTimeOriginal = "2026:11:15 10:44:33",
             .userComment = comment("hello"),
             .dotsPerInch = 300}
        ))
        .jpegSegment(
            '\xED',
            iptcSegmentContents(
                iptcDataSet(80, "Jane") + iptcDataSet(80, "Joe") + iptcDataSet(85, "Editor")
                + iptcDataSet(85, "Owner") + iptcDataSet(120, "a caption")
                + iptcDataSet(116, "\xC2\xA9 Jane") + iptcDataSet(105, "News")
                + iptcDataSet(25, "a") + iptcDataSet(25, "b") + iptcDataSet(5, "a title")
                + iptcDataSet(115, "an agency")
            )
        );
}

QString token(const char* keyword) { return u"<[%1]>"_s.arg(QString::fromLatin1(keyword)); }

} // namespace

TEST_P(PlaceholderOfAPhoto, IsReplacedByItsValue)
{
    EXPECT_EQ(shown(GetParam().typed, GetParam().photo), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Tokens,
    PlaceholderOfAPhoto,
    testing::Values(
        ValueCase{"Date", token("IMGCD"), photoOfEverything(), u"2026:11:15 10:44:33"_s},
        ValueCase{"Comment", token("IMGEUC"), photoOfEverything(), u"hello"_s},
        ValueCase{"StoredWidth", token("IMGW"), photoOfEverything(), u"61"_s},
        ValueCase{"StoredHeight", token("IMGH"), photoOfEverything(), u"23"_s},
        ValueCase{"Resolution", token("IMGDPI"), photoOfEverything(), u"300"_s},
        ValueCase{"OutputName", token("IMGFN"), photoOfEverything(), u"new.jpg"_s},
        ValueCase{"ColourModel", token("IMGCM"), photoOfEverything(), u"RGB"_s},
        ValueCase{"Profile", token("IMGCP"), photoOfEverything(), u"RGB built-in"_s},
        ValueCase{"Depth", token("IMGD"), photoOfEverything(), u"8"_s},
        ValueCase{"FirstCreator", token("IPTCCREA"), photoOfEverything(), u"Jane"_s},
        ValueCase{"FirstJobTitle", token("IPTCFUNC"), photoOfEverything(), u"Editor"_s},
        ValueCase{"Caption", token("IPTCCAP"), photoOfEverything(), u"a caption"_s},
        ValueCase{"Copyright", token("IPTCCOPY"), photoOfEverything(), u"\u00a9 Jane"_s},
        ValueCase{"Headline", token("IPTCHEAD"), photoOfEverything(), u"News"_s},
        ValueCase{"Keywords", token("IPTCKEYW"), photoOfEverything(), u"a; b"_s},
        ValueCase{"Title", token("IPTCNAME"), photoOfEverything(), u"a title"_s},
        ValueCase{"Source", token("IPTCSOUR"), photoOfEverything(), u"an agency"_s},
        ValueCase{
            "Terms",
            token("IPTCTERM"),
            PhotoBuilder{}.xmp(
                "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
                "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description "
                "rdf:about='' xmlns:xmpRights='http://ns.adobe.com/xap/1.0/rights/'>"
                "<xmpRights:UsageTerms><rdf:Alt><rdf:li xml:lang='x-default'>ask</rdf:li></rdf:Alt>"
                "</xmpRights:UsageTerms></rdf:Description></rdf:RDF></x:xmpmeta>"
            ),
            u"ask"_s},
        ValueCase{"SameTwice", u"<[IMGW]> or <[IMGW]>"_s, photoOfEverything(), u"61 or 61"_s}
    ),
    CaseName()
);

TEST(PlaceholderOfAPhoto, VanishesInAPhotoWithoutExif)
{
    EXPECT_EQ(shown(u"(<[IMGCD]><[IMGEUC]>)"_s, PhotoBuilder{}), u"()"_s);
}

TEST(PlaceholderOfAPhoto, OfIptcVanishesInAPhotoWithoutIptc)
{
    EXPECT_EQ(shown(u"(<[IPTCCREA]><[IPTCKEYW]><[IPTCTERM]>)"_s, PhotoBuilder{}), u"()"_s);
}

TEST(PlaceholderOfAPhoto, StaysAsItWasTypedForAnEmptyComment)
{
    const PhotoBuilder photo
        = PhotoBuilder{}.exif(exifBlock({.make = "Maker", .userComment = comment("")}));

    EXPECT_EQ(shown(u"(<[IMGEUC]>)"_s, photo), u"(<[IMGEUC]>)"_s);
}

TEST(PlaceholderOfAPhoto, VanishesForAMissingComment)
{
    const PhotoBuilder photo = PhotoBuilder{}.exif(exifBlock({.make = "Maker"}));

    EXPECT_EQ(shown(u"(<[IMGEUC]>)"_s, photo), u"()"_s);
}

TEST(PlaceholderOfAPhoto, StaysForAnEmptyCaptionAndAnEmptyFirstCreator)
{
    const PhotoBuilder photo = photoWithIptc(
        iptcDataSet(120, "") + iptcDataSet(80, "") + iptcDataSet(80, "Joe") + iptcDataSet(25, "")
    );

    EXPECT_EQ(shown(u"<[IPTCCAP]>"_s, photo), u"<[IPTCCAP]>"_s);
    EXPECT_EQ(shown(u"<[IPTCCREA]>"_s, photo), u"<[IPTCCREA]>"_s);
    EXPECT_EQ(shown(u"<[IPTCKEYW]>"_s, photo), u"<[IPTCKEYW]>"_s);
}

TEST(PlaceholderOfAPhoto, OfTheResolutionVanishesWhenTheFileStatesNone)
{
    EXPECT_EQ(shown(u"(<[IMGDPI]>)"_s, PhotoBuilder{}.format(PhotoFormat::Gif)), u"()"_s);
}

TEST(PlaceholderOfAPhoto, VanishesForAFileThatCannotBeRead)
{
    const auto values = valuesOf(u"/no/such/photo.jpg"_s);

    EXPECT_EQ(replacingPlaceholders(u"(<[IMGW]><[IMGCD]>)"_s, values), u"()"_s);
}
