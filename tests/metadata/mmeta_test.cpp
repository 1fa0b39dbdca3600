// SPDX-License-Identifier: GPL-3.0-or-later
#include <metadata/metadata_texts.h>
#include <metadata/mmeta.h>
#include <platform/foundation/literals.h>
#include <support/case_name.h>
#include <support/color_profiles.h>
#include <support/exif_block.h>
#include <support/iptc_block.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace brenvaldo;
using metadata::mMeta;
using metadata::PropertyNode;
using test::exifBlock;
using test::iptcDataSet;
using test::PhotoBuilder;
using test::PhotoFormat;

namespace {

const QString userComment = u"EXIF User Comment"_s;
const QString creationDate = u"EXIF Creation Date"_s;

QByteArray asciiComment(const QByteArray& text) { return QByteArray("ASCII\0\0\0", 8) + text; }

PhotoBuilder photoWithComment(const QByteArray& comment)
{
    return PhotoBuilder{}.exif(
        exifBlock({.dateTimeOriginal = "2026:11:15 10:44:33", .userComment = asciiComment(comment)})
    );
}

PhotoBuilder photoWithIptc(const QByteArray& dataSets)
{
    return PhotoBuilder{}.jpegSegment('\xED', test::iptcSegmentContents(dataSets));
}

/// The fields that IPTC data sets have no place for stand in XMP.
PhotoBuilder photoWithEveryIptcField()
{
    return photoWithComment("hello")
        .jpegSegment(
            '\xED',
            test::iptcSegmentContents(
                iptcDataSet(5, "title") + iptcDataSet(25, "a") + iptcDataSet(25, "b")
                + iptcDataSet(120, "caption") + iptcDataSet(105, "headline")
                + iptcDataSet(116, "(c) Jane") + iptcDataSet(80, "Jane") + iptcDataSet(85, "Editor")
                + iptcDataSet(115, "source") + iptcDataSet(118, "contact")
                + iptcDataSet(122, "writer")
            )
        )
        .xmp("<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
             "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description "
             "rdf:about='' xmlns:xmpRights='http://ns.adobe.com/xap/1.0/rights/' "
             "xmlns:Iptc4xmpCore='http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/'>"
             "<xmpRights:UsageTerms><rdf:Alt><rdf:li xml:lang='x-default'>ask</rdf:li></rdf:Alt>"
             "</xmpRights:UsageTerms>"
             "<Iptc4xmpCore:CreatorContactInfo rdf:parseType='Resource'>"
             "<Iptc4xmpCore:CiAdrCity>Bern</Iptc4xmpCore:CiAdrCity>"
             "<Iptc4xmpCore:CiEmailWork>jane@example.org</Iptc4xmpCore:CiEmailWork>"
             "</Iptc4xmpCore:CreatorContactInfo></rdf:Description></rdf:RDF></x:xmpmeta>");
}

class Meta : public testing::Test
{
protected:
    [[nodiscard]] QString write(const PhotoBuilder& photo, const QString& name) const
    {
        return photo.write(m_folder.path(name));
    }
    [[nodiscard]] QString jpeg(const PhotoBuilder& photo) const { return write(photo, u"a.jpg"_s); }
    [[nodiscard]] QString text() const { return m_folder.write(u"a.txt"_s, "no image"); }

    [[nodiscard]] QString shownComment() const
    {
        return m_panels.vwFileManagementEXIF.tfExifUserComment.stringValue();
    }
    [[nodiscard]] const QList<QStringList>& shownRows() const
    {
        return m_panels.vwPhotoInfo.mTree.arrangedObjects();
    }

    /// The texts of the twelve IPTC fields, in the order of their panel.
    [[nodiscard]] QStringList shownIptc() const
    {
        const panels::ExifPanel& panel = m_panels.vwFileManagementEXIF;
        return {
            panel.tfIPTCTitle.stringValue(),
            panel.tfIPTCKeyWords.stringValue(),
            panel.tfIPTCCaption.stringValue(),
            panel.tfIPTCHeadline.stringValue(),
            panel.tfIPTCCopyRight.stringValue(),
            panel.tfIPTCCopyRightTerms.stringValue(),
            panel.tfIPTCCreator.stringValue(),
            panel.tfIPTCCreatorTitle.stringValue(),
            panel.tfIPTCSourceOwner.stringValue(),
            panel.tfIPTCImageContactInfo.stringValue(),
            panel.tfIPTCEditorContactInfo.stringValue(),
            panel.tfIPTCCreatorContactInfo.stringValue()};
    }

    test::TemporaryFolder m_folder;
    panels::Panels m_panels;
    mMeta m_meta{m_panels};
};

} // namespace

TEST_F(Meta, ShowsThatAPhotoWithoutExifHasNoCommentAndStillItsTree)
{
    const QString path = jpeg(PhotoBuilder{});

    m_meta.hiDoNothing(path);

    EXPECT_EQ(m_panels.vwPhotoInfo.tfActiveFilePath.stringValue(), path);
    EXPECT_EQ(shownComment(), metadata::notSupportedOrAvailableText());
    EXPECT_TRUE(shownRows().contains(QStringList({u"0"_s, u"PixelWidth"_s, u"47"_s})));
}

TEST_F(Meta, ShowsTheCommentAndTheTreeOfThePhoto)
{
    const QList<PropertyNode>& tree = m_meta.hiDoNothing(jpeg(photoWithComment("hello")));

    EXPECT_EQ(shownComment(), u"hello"_s);
    EXPECT_EQ(shownRows(), metadata::propertyRows(tree));
    EXPECT_EQ(m_meta.myVarTree(), tree);
}

TEST_F(Meta, ShowsAnEmptyCommentAsItIs)
{
    m_meta.hiDoNothing(jpeg(photoWithComment("")));

    EXPECT_EQ(shownComment(), QString());
}

TEST_F(Meta, ForgetsNoCommentThatIsNotOfAPhoto)
{
    m_panels.vwFileManagementEXIF.tfExifUserComment.setStringValue(u"of a preset"_s);

    m_meta.forgetPhoto();

    EXPECT_EQ(shownComment(), u"of a preset"_s);
}

TEST_F(Meta, ShowsThatAFileWhichIsNoImageIsNotSupportedAndClearsTheTree)
{
    m_meta.hiDoNothing(jpeg(photoWithComment("hello")));

    m_meta.hiDoNothing(text());

    EXPECT_EQ(shownComment(), metadata::notSupportedText());
    EXPECT_TRUE(shownRows().isEmpty());
}

TEST_F(Meta, GivesANestedDictionaryAsANodeWithSortedChildren)
{
    const QList<PropertyNode>& tree = m_meta.hiDoNothing(jpeg(photoWithComment("hello")));

    const auto exif = std::find_if(tree.begin(), tree.end(), [](const PropertyNode& node) {
        return node.key == u"{Exif}"_s;
    });
    ASSERT_NE(exif, tree.end());
    EXPECT_EQ(exif->val, QString());
    EXPECT_TRUE(std::is_sorted(
        exif->children.begin(),
        exif->children.end(),
        [](const PropertyNode& left, const PropertyNode& right) { return left.key < right.key; }
    ));
    EXPECT_FALSE(exif->children.isEmpty());
}

TEST_F(Meta, AnswersTheComment)
{
    const QString path = jpeg(photoWithComment("hello"));

    EXPECT_EQ(mMeta::hGetExifUc(path, userComment), u"hello"_s);
    EXPECT_EQ(mMeta::hGetExifUcFromSource(*mMeta::getMyImageSource(path), userComment), u"hello"_s);
}

TEST_F(Meta, TakesACommentOfBlanksForNone)
{
    const QString path = jpeg(photoWithComment("   "));

    EXPECT_EQ(mMeta::hGetExifUc(path, userComment), QString());
    EXPECT_EQ(mMeta::hGetExifUcFromSource(*mMeta::getMyImageSource(path), userComment), QString());
}

TEST_F(Meta, AnswersTheCaptionInPlaceOfAnEmptyComment)
{
    const QString path = jpeg(photoWithComment("").jpegSegment(
        '\xED', test::iptcSegmentContents(iptcDataSet(120, "a caption"))
    ));

    EXPECT_EQ(mMeta::hGetExifUc(path, userComment), u"a caption"_s);
    EXPECT_EQ(mMeta::hGetExifUcFromSource(*mMeta::getMyImageSource(path), userComment), QString());
}

TEST_F(Meta, AnswersNothingInPlaceOfAMissingComment)
{
    const QString path
        = jpeg(PhotoBuilder{}
                   .exif(exifBlock({.dateTimeOriginal = "2026:11:15 10:44:33"}))
                   .jpegSegment('\xED', test::iptcSegmentContents(iptcDataSet(120, "a caption"))));

    EXPECT_EQ(mMeta::hGetExifUc(path, userComment), QString());
}

TEST_F(Meta, AnswersTheDateForEveryOtherName)
{
    const QString path = jpeg(photoWithComment("hello"));

    EXPECT_EQ(mMeta::hGetExifUc(path, creationDate), u"2026:11:15 10:44:33"_s);
    EXPECT_EQ(mMeta::hGetExifUc(path, u"anything"_s), u"2026:11:15 10:44:33"_s);
    const auto source = *mMeta::getMyImageSource(path);
    EXPECT_EQ(mMeta::hGetExifUcFromSource(source, creationDate), u"2026:11:15 10:44:33"_s);
    EXPECT_EQ(mMeta::hGetExifUcFromSource(source, u"anything"_s), u"2026:11:15 10:44:33"_s);
}

TEST_F(Meta, AnswersTheIptcTimeInPlaceOfAnEmptyDate)
{
    const QString path
        = jpeg(PhotoBuilder{}
                   .exif(exifBlock({.dateTimeOriginal = QByteArray("\0", 1)}))
                   .jpegSegment('\xED', test::iptcSegmentContents(iptcDataSet(60, "104433"))));

    EXPECT_EQ(mMeta::hGetExifUc(path, creationDate), u"104433"_s);
    EXPECT_EQ(mMeta::hGetExifUcFromSource(*mMeta::getMyImageSource(path), creationDate), QString());
}

TEST_F(Meta, AnswersNothingWithoutExif)
{
    EXPECT_EQ(mMeta::hGetExifUc(jpeg(PhotoBuilder{}), creationDate), QString());
    EXPECT_EQ(mMeta::hGetExifUc(text(), creationDate), QString());
}

TEST_F(Meta, PassesExtensionsThatArePartOfAKnownOne)
{
    const QByteArray photo = photoWithComment("hello").bytes();

    EXPECT_EQ(mMeta::hGetExifUc(m_folder.write(u"a.P"_s, photo), userComment), u"hello"_s);
    EXPECT_EQ(mMeta::hGetExifUc(m_folder.write(u"a.TIFF"_s, photo), userComment), u"hello"_s);
    EXPECT_EQ(mMeta::hGetExifUc(m_folder.write(u"a.webp"_s, photo), userComment), QString());
}

TEST_F(Meta, PassesPngForExifAndNotForIptc)
{
    const QString path = write(
        PhotoBuilder{}
            .format(PhotoFormat::Png)
            .exif(exifBlock(
                {.dateTimeOriginal = "2026:11:15 10:44:33", .userComment = asciiComment("hello")}
            )),
        u"a.png"_s
    );

    EXPECT_EQ(mMeta::hGetExifUc(path, userComment), u"hello"_s);
    EXPECT_EQ(m_meta.hGetSomeIPTC(path, u"IPTC City"_s), QString());
}

TEST_F(Meta, JoinsKeywords)
{
    const QString path = jpeg(photoWithIptc(iptcDataSet(25, "a") + iptcDataSet(25, "b")));

    EXPECT_EQ(m_meta.hGetSomeIPTC(path, u"IPTC Keyword"_s), u"a; b"_s);
}

TEST_F(Meta, AnswersTheFirstOfTheCreatorsTitles)
{
    const QString path = jpeg(photoWithIptc(iptcDataSet(85, "first") + iptcDataSet(85, "second")));

    EXPECT_EQ(m_meta.hGetSomeIPTC(path, u"IPTC Creator Title"_s), u"first"_s);
}

TEST_F(Meta, AnswersTheValueFoundLastForANameThatIsNotKnown)
{
    const QString path = jpeg(photoWithIptc(iptcDataSet(90, "Bern") + iptcDataSet(105, "News")));
    const QString found = m_meta.hGetSomeIPTC(path, u"IPTC City"_s);

    EXPECT_EQ(m_meta.hGetSomeIPTC(path, u"IPTC Description"_s), found);
    EXPECT_EQ(m_meta.hGetSomeIPTC(jpeg(PhotoBuilder{}), u"IPTC Description"_s), QString());
}

TEST_F(Meta, AnswersNothingForAnIptcValueThatIsMissing)
{
    const QString path = jpeg(photoWithIptc(iptcDataSet(90, "Bern")));

    EXPECT_EQ(m_meta.hGetSomeIPTC(path, u"IPTC Keyword"_s), QString());
    EXPECT_EQ(m_meta.hGetSomeIPTC(path, u"IPTC Creator Title"_s), QString());
}

struct IptcCase
{
    const char* name;
    QString property;
    int dataSet;

    friend void PrintTo(const IptcCase& row, std::ostream* out) { *out << row.name; }
};

class IptcValue : public Meta, public testing::WithParamInterface<IptcCase>
{
};

TEST_P(IptcValue, IsFoundByItsName)
{
    const QString path = jpeg(photoWithIptc(iptcDataSet(GetParam().dataSet, "value")));

    EXPECT_EQ(m_meta.hGetSomeIPTC(path, GetParam().property), u"value"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Names,
    IptcValue,
    testing::Values(
        IptcCase{"CreatorTitle", u"IPTC Creator Title"_s, 85},
        IptcCase{"Caption", u"IPTC Caption"_s, 120},
        IptcCase{"Keyword", u"IPTC Keyword"_s, 25},
        IptcCase{"City", u"IPTC City"_s, 90},
        IptcCase{"CaptionWriter", u"IPTC Caption Writer"_s, 122},
        IptcCase{"Copyrights", u"IPTC Copyrights"_s, 116},
        IptcCase{"Country", u"IPTC Country"_s, 101},
        IptcCase{"Credits", u"IPTC Credits"_s, 110},
        IptcCase{"Headline", u"IPTC Headline"_s, 105},
        IptcCase{"SubjectCode", u"IPTC Subject Code"_s, 12},
        IptcCase{"StateProvince", u"IPTC State Province"_s, 95}
    ),
    test::CaseName{}
);

TEST_F(Meta, FillsTheIptcFieldsAndEmptiesThemForAPhotoWithoutIptc)
{
    const QString full = write(photoWithEveryIptcField(), u"full.jpg"_s);
    const QString empty = write(PhotoBuilder{}, u"empty.jpg"_s);

    EXPECT_EQ(m_meta.hGetMetaData(full), u"OK"_s);
    EXPECT_EQ(shownComment(), u"hello"_s);
    EXPECT_EQ(
        shownIptc(),
        (QStringList{
            u"title"_s,
            u"a;b;"_s,
            u"caption"_s,
            u"headline"_s,
            u"(c) Jane"_s,
            u"ask"_s,
            u"Jane"_s,
            u"Editor"_s,
            u"source"_s,
            u"contact"_s,
            u"writer"_s,
            u"Bern; jane@example.org"_s})
    );

    EXPECT_EQ(m_meta.hGetMetaData(empty), u"OK"_s);
    EXPECT_EQ(shownComment(), QString());
    EXPECT_EQ(shownIptc(), QStringList(12));
}

TEST_F(Meta, EmptiesTheIptcFieldsForAFileThatIsNoImage)
{
    m_meta.hGetMetaData(write(photoWithEveryIptcField(), u"full.jpg"_s));

    EXPECT_EQ(m_meta.hGetMetaData(text()), u"OK"_s);

    EXPECT_EQ(shownComment(), QString());
    EXPECT_EQ(shownIptc(), QStringList(12));
}

TEST_F(Meta, AnswersStoredAndUprightSizes)
{
    const QString path = jpeg(PhotoBuilder{}.size(61, 23).orientation(6));

    EXPECT_EQ(
        mMeta::hGetPixelFormatFromSource(*mMeta::getMyImageSource(path)), (QList<qint64>{61, 23})
    );
    EXPECT_EQ(mMeta::hGetPixelFormat(path), (QStringList{u"23"_s, u"61"_s}));
    EXPECT_TRUE(mMeta::hGetPixelFormat(text()).isEmpty());
}

TEST_F(Meta, NamesTheColorSpaceOfAPhotoWithoutAProfile)
{
    using test::PhotoModel;
    const auto tiff = [this](PhotoModel model) {
        return write(PhotoBuilder{}.model(model).format(PhotoFormat::Tiff), u"a.tif"_s);
    };

    EXPECT_EQ(mMeta::hGetColorProfile(jpeg(PhotoBuilder{})), u"sRGB IEC61966-2.1"_s);
    EXPECT_EQ(
        mMeta::hGetColorProfile(jpeg(PhotoBuilder{}.model(PhotoModel::Gray))),
        u"Generic Gray Gamma 2.2 Profile"_s
    );
    EXPECT_EQ(mMeta::hGetColorProfile(tiff(PhotoModel::Cmyk)), u"Generic CMYK Profile"_s);
    EXPECT_EQ(mMeta::hGetColorProfile(text()), QString());
}

TEST_F(Meta, NamesTheProfileOfAPhotoThatHasOne)
{
    const QString wide = write(
        PhotoBuilder{}.format(PhotoFormat::Png).iccProfile(test::wideProfile()), u"wide.png"_s
    );
    const QString gray = write(
        PhotoBuilder{}
            .format(PhotoFormat::Png)
            .model(test::PhotoModel::Gray)
            .iccProfile(test::grayProfile()),
        u"gray.png"_s
    );

    EXPECT_EQ(mMeta::hGetColorProfile(wide), u"RGB built-in"_s);
    EXPECT_EQ(mMeta::hGetColorProfile(gray), u"gray built-in"_s);
}
