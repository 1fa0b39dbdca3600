// SPDX-License-Identifier: GPL-3.0-or-later
#include <metadata/mmeta.h>
#include <platform/foundation/literals.h>
#include <platform/metadata/metadata_reader.h>
#include <platform/metadata/xmp_values.h>
#include <support/case_name.h>
#include <support/exif_block.h>
#include <support/faults.h>
#include <support/iptc_block.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using metadata::mMeta;
using test::iptcDataSet;
using test::PhotoBuilder;
namespace property = platform::metadata::property;

namespace {

const QString unsupported = u"This file type is not supported."_s;

PhotoBuilder photoToComment(const QByteArray& comment)
{
    return PhotoBuilder{}.exif(
        test::exifBlock({.userComment = QByteArray("ASCII\0\0\0", 8) + comment})
    );
}

/// An EXIF block that states something, and no comment.
PhotoBuilder photoWithoutComment()
{
    return PhotoBuilder{}.exif(test::exifBlock({.make = "Brand"}));
}

class MetaWriting : public testing::Test
{
protected:
    [[nodiscard]] QString write(const PhotoBuilder& photo) const
    {
        return photo.write(m_folder.path(u"a.jpg"_s));
    }
    [[nodiscard]] QString text() const { return m_folder.write(u"a.txt"_s, "no image"); }

    [[nodiscard]] static QString
    valueOf(const QString& path, QLatin1StringView dictionary, QLatin1StringView key)
    {
        const auto source = mMeta::getMyImageSource(path);
        const auto* values = source ? source->dictionary(dictionary) : nullptr;
        return values ? values->text(key).value_or(u"none"_s) : u"none"_s;
    }
    [[nodiscard]] static QString commentOf(const QString& path)
    {
        return valueOf(path, property::exifDictionary, property::exifUserComment);
    }
    [[nodiscard]] QString iptcOf(const QString& path, const char* name)
    {
        return m_meta.hGetSomeIPTC(path, QString::fromLatin1(name));
    }
    [[nodiscard]] const QList<QStringList>& log() const
    {
        return m_panel.mymMetaLogTableViewController.arrangedObjects();
    }

    test::TemporaryFolder m_folder;
    panels::Panels m_panels;
    panels::ExifPanel& m_panel = m_panels.vwFileManagementEXIF;
    mMeta m_meta{m_panels};
};

} // namespace

struct CommentCase
{
    const char* name;
    PhotoBuilder photo;
    QString comment;
    int clear;
    QString written;

    friend void PrintTo(const CommentCase& row, std::ostream* out) { *out << row.name; }
};

class WrittenComment : public MetaWriting, public testing::WithParamInterface<CommentCase>
{
};

TEST_P(WrittenComment, FollowsWhatStandsThereAndTheState)
{
    const QString path = write(GetParam().photo);

    EXPECT_EQ(m_meta.hSetExifData(path, GetParam().comment, GetParam().clear), u"OK"_s);

    EXPECT_EQ(commentOf(path), GetParam().written);
}

INSTANTIATE_TEST_SUITE_P(
    All,
    WrittenComment,
    testing::Values(
        CommentCase{"Added", photoToComment("old"), u"new"_s, 0, u"old; new"_s},
        CommentCase{"InItsPlace", photoToComment("old"), u"new"_s, 1, u"new"_s},
        CommentCase{"InItsPlaceInAMixedState", photoToComment("old"), u"new"_s, -1, u"new"_s},
        CommentCase{"NothingAdded", photoToComment("old"), {}, 0, u"old"_s},
        CommentCase{"Cleared", photoToComment("old"), {}, 1, {}},
        CommentCase{"BehindAnEmptyOne", photoToComment(""), u"new"_s, 0, u"; new"_s},
        CommentCase{"WithoutOne", photoWithoutComment(), u"new"_s, 0, u"new"_s},
        CommentCase{"WithoutOneToClear", photoWithoutComment(), u"new"_s, 1, u"new"_s},
        CommentCase{"EmptyWithoutOne", photoWithoutComment(), {}, 0, {}},
        CommentCase{"WithoutExif", PhotoBuilder{}, u"new"_s, 0, u"new"_s},
        CommentCase{"WithoutExifToClear", PhotoBuilder{}, u"new"_s, 1, u"new"_s},
        CommentCase{"EmptyWithoutExif", PhotoBuilder{}, {}, 1, {}}
    ),
    test::CaseName{}
);

TEST_F(MetaWriting, LeavesTheBytesOfACommentThatStays)
{
    // A code that texts of its letters would not be written with.
    const QByteArray code = QByteArray(8, '\0') + "old";
    const QString path = write(PhotoBuilder{}.exif(test::exifBlock({.userComment = code})));
    const QByteArray before = test::TemporaryFolder::read(path);

    EXPECT_EQ(m_meta.hSetExifData(path, {}, 0), u"OK"_s);

    EXPECT_EQ(test::TemporaryFolder::read(path), before);
}

TEST_F(MetaWriting, FailsForAFileThatIsNoImageAndLeavesIt)
{
    const QString path = text();

    EXPECT_EQ(m_meta.hSetExifData(path, u"new"_s, 0), u"Failed"_s);
    EXPECT_EQ(m_meta.writeExifData(path, {.comment = u"new"_s}), mMeta::Written::NoImage);
    EXPECT_EQ(m_meta.hSetExifData(m_folder.path(u"none.jpg"_s), u"new"_s, 0), u"Failed"_s);

    EXPECT_EQ(test::TemporaryFolder::read(path), "no image");
}

TEST_F(MetaWriting, AnswersOkForAnImageThatTakesNone)
{
    const QString path
        = PhotoBuilder{}.format(test::PhotoFormat::Gif).write(m_folder.path(u"a.gif"_s));
    const QByteArray before = test::TemporaryFolder::read(path);

    EXPECT_EQ(m_meta.hSetExifData(path, u"new"_s, 0), u"OK"_s);
    EXPECT_EQ(m_meta.hAddIPTCdata(path, 1), u"OK"_s);
    EXPECT_EQ(m_meta.writeExifData(path, {.comment = u"new"_s}), mMeta::Written::Nothing);

    EXPECT_EQ(test::TemporaryFolder::read(path), before);
}

TEST_F(MetaWriting, WritesEveryIptcField)
{
    m_panel.tfIPTCTitle.setStringValue(u"title"_s);
    m_panel.tfIPTCKeyWords.setStringValue(u"sea;boat"_s);
    m_panel.tfIPTCCaption.setStringValue(u"caption"_s);
    m_panel.tfIPTCHeadline.setStringValue(u"headline"_s);
    m_panel.tfIPTCCopyRight.setStringValue(u"(c) Jane"_s);
    m_panel.tfIPTCCopyRightTerms.setStringValue(u"ask"_s);
    m_panel.tfIPTCCreator.setStringValue(u"Jane"_s);
    m_panel.tfIPTCCreatorTitle.setStringValue(u"Editor"_s);
    m_panel.tfIPTCSourceOwner.setStringValue(u"source"_s);
    const QString path = write(PhotoBuilder{});

    EXPECT_EQ(m_meta.hSetExifData(path, u"new"_s, 0), u"OK"_s);

    const auto iptc = [&path](const char* key) {
        return valueOf(path, property::iptcDictionary, QLatin1StringView(key));
    };
    EXPECT_EQ(iptc("ObjectName"), u"title"_s);
    EXPECT_EQ(iptcOf(path, "IPTC Keyword"), u"sea; boat"_s);
    EXPECT_EQ(iptc("Caption/Abstract"), u"caption"_s);
    EXPECT_EQ(iptc("Headline"), u"headline"_s);
    EXPECT_EQ(iptc("CopyrightNotice"), u"(c) Jane"_s);
    EXPECT_EQ(iptc("UsageTerms"), u"ask"_s);
    EXPECT_EQ(iptcOf(path, "IPTC Creator Title"), u"Editor"_s);
    EXPECT_EQ(iptc("Source"), u"source"_s);
    m_meta.hGetMetaData(path);
    EXPECT_EQ(m_panel.tfIPTCCreator.stringValue(), u"Jane"_s);
    EXPECT_EQ(m_panel.tfIPTCKeyWords.stringValue(), u"sea;boat;"_s);
}

TEST_F(MetaWriting, LeavesTheOtherValuesAndClearsTheKeywords)
{
    const QString path = write(PhotoBuilder{}.jpegSegment(
        '\xED',
        test::iptcSegmentContents(
            iptcDataSet(5, "title") + iptcDataSet(25, "sea") + iptcDataSet(90, "Bern")
            + iptcDataSet(105, "old") + iptcDataSet(120, "caption")
        )
    ));
    m_panel.tfIPTCHeadline.setStringValue(u"new"_s);

    m_meta.hSetExifData(path, {}, 0);

    EXPECT_EQ(iptcOf(path, "IPTC Headline"), u"new"_s);
    EXPECT_EQ(iptcOf(path, "IPTC Keyword"), QString());
    EXPECT_EQ(iptcOf(path, "IPTC City"), u"Bern"_s);
    EXPECT_EQ(iptcOf(path, "IPTC Caption"), u"caption"_s);
    EXPECT_EQ(valueOf(path, property::iptcDictionary, property::iptcObjectName), u"title"_s);
}

TEST_F(MetaWriting, WritesTwoKeywordsAsTwo)
{
    const QString path = write(PhotoBuilder{});
    m_panel.tfIPTCKeyWords.setStringValue(u"sea;boat"_s);

    m_meta.hAddIPTCdata(path, 1);

    const platform::metadata::XmpValues xmp(platform::metadata::readMetadataBlocks(path)->xmp);
    EXPECT_EQ(xmp.texts("Xmp.dc.subject"), (QStringList{u"sea"_s, u"boat"_s}));
    EXPECT_EQ(iptcOf(path, "IPTC Keyword"), u"sea; boat"_s);
}

TEST_F(MetaWriting, WritesKeywordsAsTheyAreTypedButNoEmptyOne)
{
    const QString path = write(PhotoBuilder{});
    m_panel.tfIPTCKeyWords.setStringValue(u"sea; boat;;"_s);

    m_meta.hAddIPTCdata(path, 1);

    const platform::metadata::XmpValues xmp(platform::metadata::readMetadataBlocks(path)->xmp);
    EXPECT_EQ(xmp.texts("Xmp.dc.subject"), (QStringList{u"sea"_s, u" boat"_s}));
}

TEST_F(MetaWriting, NeverWritesTheContactFields)
{
    const QString path = write(PhotoBuilder{});
    for (controls::TextField* field :
         {&m_panel.tfIPTCImageContactInfo,
          &m_panel.tfIPTCEditorContactInfo,
          &m_panel.tfIPTCCreatorContactInfo})
        field->setStringValue(u"secret"_s);

    m_meta.hSetExifData(path, u"new"_s, 0);

    EXPECT_FALSE(test::TemporaryFolder::read(path).contains("secret"));
}

TEST_F(MetaWriting, WritesIptcForTheFlagAlone)
{
    const QString path = write(PhotoBuilder{});
    const QByteArray before = test::TemporaryFolder::read(path);
    m_panel.tfIPTCHeadline.setStringValue(u"new"_s);

    EXPECT_EQ(m_meta.hAddIPTCdata(path, 0), u"OK"_s);
    EXPECT_EQ(m_meta.hAddIPTCdata(path, 2), u"OK"_s);
    EXPECT_EQ(test::TemporaryFolder::read(path), before);

    EXPECT_EQ(m_meta.hAddIPTCdata(path, 1), u"OK"_s);
    EXPECT_EQ(iptcOf(path, "IPTC Headline"), u"new"_s);
    EXPECT_EQ(commentOf(path), u"none"_s);
}

TEST_F(MetaWriting, AppliesTheCommentShowsItAndNotesIt)
{
    const QString path = write(photoToComment("old"));
    m_panel.tfExifUserComment.setStringValue(u"new"_s);

    m_meta.btApplyExifUserComment(path);

    EXPECT_EQ(commentOf(path), u"old; new"_s);
    EXPECT_EQ(m_panel.tfExifUserComment.stringValue(), u"old; new"_s);
    EXPECT_FALSE(m_panels.vwPhotoInfo.mTree.arrangedObjects().isEmpty());
    ASSERT_EQ(log().size(), 1);
    const QDateTime date
        = QDateTime::fromString(log().first().first(), u"yyyy-MM-dd HH:mm:ss +0000"_s);
    EXPECT_TRUE(date.isValid());
    EXPECT_EQ(
        log().first().sliced(1),
        (QStringList{
            u"File Editing"_s, u"Edit meta data"_s, u"OK"_s, u"a.jpg"_s, u"a.jpg"_s, path, path})
    );
    EXPECT_EQ(
        m_panel.mymMetaLogTableViewController.columns(),
        (QStringList{
            u"LogDate"_s,
            u"LogProcess"_s,
            u"LogAction"_s,
            u"LogStatus"_s,
            u"LogI"_s,
            u"LogO"_s,
            u"LogIpath"_s,
            u"LogOpath"_s})
    );
}

TEST_F(MetaWriting, AppliesTheStateOfTheBox)
{
    const QString path = write(photoToComment("old"));
    m_panel.tfExifUserComment.setStringValue(u"new"_s);
    m_panel.cbClearBeforeAdd.setState(1);

    m_meta.btApplyExifUserComment(path);

    EXPECT_EQ(commentOf(path), u"new"_s);
}

TEST_F(MetaWriting, NotesAFailureAndSaysSo)
{
    QList<mMeta::Written> results;
    const auto subscription
        = m_meta.commentApplied.connect([&results](const QString&, mMeta::Written written) {
              results.append(written);
          });
    const QString path = text();
    m_panel.tfExifUserComment.setStringValue(u"new"_s);

    m_meta.btApplyExifUserComment(path);

    EXPECT_EQ(m_panel.tfExifUserComment.stringValue(), unsupported);
    ASSERT_EQ(log().size(), 1);
    EXPECT_EQ(log().first().at(3), u"Failed"_s);
    EXPECT_EQ(log().first().at(4), u"a.txt"_s);
    EXPECT_EQ(results, QList{mMeta::Written::NoImage});
}

TEST_F(MetaWriting, DoesNothingWithoutAnActiveFile)
{
    m_panel.tfExifUserComment.setStringValue(u"new"_s);

    m_meta.btApplyExifUserComment({});

    EXPECT_EQ(m_panel.tfExifUserComment.stringValue(), u"new"_s);
    EXPECT_TRUE(log().isEmpty());
}

TEST_F(MetaWriting, KeepsNoLogForAWriteWithoutTheButton)
{
    m_meta.hSetExifData(write(PhotoBuilder{}), u"new"_s, 0);

    EXPECT_TRUE(log().isEmpty());
}
