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
    return placeholderValuesOf(path, u"new.jpg"_qs, std::make_shared<KeptProperties>());
}

/// `typed` with the tokens replaced by the values of the photo.
QString shown(const QString& typed, const PhotoBuilder& photo)
{
    const TemporaryFolder folder;
    const QString path = photo.write(folder.path(QStringLiteral("photo")));
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

QString token(const char* keyword)
{
    return QStringLiteral("<[%1]>").arg(QString::fromLatin1(keyword));
}

} // namespace

TEST_P(PlaceholderOfAPhoto, IsReplacedByItsValue)
{
    EXPECT_EQ(shown(GetParam().typed, GetParam().photo), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Tokens,
    PlaceholderOfAPhoto,
    testing::Values(
        ValueCase{"Date", token("IMGCD"), photoOfEverything(), u"2026:11:15 10:44:33"_qs},
        ValueCase{"Comment", token("IMGEUC"), photoOfEverything(), u"hello"_qs},
        ValueCase{"StoredWidth", token("IMGW"), photoOfEverything(), u"61"_qs},
        ValueCase{"StoredHeight", token("IMGH"), photoOfEverything(), u"23"_qs},
        ValueCase{"Resolution", token("IMGDPI"), photoOfEverything(), u"300"_qs},
        ValueCase{"OutputName", token("IMGFN"), photoOfEverything(), u"new.jpg"_qs},
        ValueCase{"ColourModel", token("IMGCM"), photoOfEverything(), u"RGB"_qs},
        ValueCase{"Profile", token("IMGCP"), photoOfEverything(), u"RGB built-in"_qs},
        ValueCase{"Depth", token("IMGD"), photoOfEverything(), u"8"_qs},
        ValueCase{"FirstCreator", token("IPTCCREA"), photoOfEverything(), u"Jane"_qs},
        ValueCase{"FirstJobTitle", token("IPTCFUNC"), photoOfEverything(), u"Editor"_qs},
        ValueCase{"Caption", token("IPTCCAP"), photoOfEverything(), u"a caption"_qs},
        ValueCase{"Copyright", token("IPTCCOPY"), photoOfEverything(), u"\u00a9 Jane"_qs},
        ValueCase{"Headline", token("IPTCHEAD"), photoOfEverything(), u"News"_qs},
        ValueCase{"Keywords", token("IPTCKEYW"), photoOfEverything(), u"a; b"_qs},
        ValueCase{"Title", token("IPTCNAME"), photoOfEverything(), u"a title"_qs},
        ValueCase{"Source", token("IPTCSOUR"), photoOfEverything(), u"an agency"_qs},
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
            u"ask"_qs},
        ValueCase{"SameTwice", u"<[IMGW]> or <[IMGW]>"_qs, photoOfEverything(), u"61 or 61"_qs}
    ),
    CaseName()
);

TEST(PlaceholderOfAPhoto, VanishesInAPhotoWithoutExif)
{
    EXPECT_EQ(shown(u"(<[IMGCD]><[IMGEUC]>)"_qs, PhotoBuilder{}), u"()"_qs);
}

TEST(PlaceholderOfAPhoto, OfIptcVanishesInAPhotoWithoutIptc)
{
    EXPECT_EQ(shown(u"(<[IPTCCREA]><[IPTCKEYW]><[IPTCTERM]>)"_qs, PhotoBuilder{}), u"()"_qs);
}

TEST(PlaceholderOfAPhoto, StaysAsItWasTypedForAnEmptyComment)
{
    const PhotoBuilder photo
        = PhotoBuilder{}.exif(exifBlock({.make = "Maker", .userComment = comment("")}));

    EXPECT_EQ(shown(u"(<[IMGEUC]>)"_qs, photo), u"(<[IMGEUC]>)"_qs);
}

TEST(PlaceholderOfAPhoto, VanishesForAMissingComment)
{
    const PhotoBuilder photo = PhotoBuilder{}.exif(exifBlock({.make = "Maker"}));

    EXPECT_EQ(shown(u"(<[IMGEUC]>)"_qs, photo), u"()"_qs);
}

TEST(PlaceholderOfAPhoto, StaysForAnEmptyCaptionAndAnEmptyFirstCreator)
{
    const PhotoBuilder photo = photoWithIptc(
        iptcDataSet(120, "") + iptcDataSet(80, "") + iptcDataSet(80, "Joe") + iptcDataSet(25, "")
    );

    EXPECT_EQ(shown(u"<[IPTCCAP]>"_qs, photo), u"<[IPTCCAP]>"_qs);
    EXPECT_EQ(shown(u"<[IPTCCREA]>"_qs, photo), u"<[IPTCCREA]>"_qs);
    EXPECT_EQ(shown(u"<[IPTCKEYW]>"_qs, photo), u"<[IPTCKEYW]>"_qs);
}

TEST(PlaceholderOfAPhoto, OfTheResolutionVanishesWhenTheFileStatesNone)
{
    EXPECT_EQ(shown(u"(<[IMGDPI]>)"_qs, PhotoBuilder{}.format(PhotoFormat::Gif)), u"()"_qs);
}

TEST(PlaceholderOfAPhoto, VanishesForAFileThatCannotBeRead)
{
    const auto values = valuesOf(u"/no/such/photo.jpg"_qs);

    EXPECT_EQ(replacingPlaceholders(u"(<[IMGW]><[IMGCD]>)"_qs, values), u"()"_qs);
}
