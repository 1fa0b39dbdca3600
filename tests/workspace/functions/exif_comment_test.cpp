// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/exif_block.h>

#include <tuple>

using namespace brenvaldo;

namespace {

/// A run of the real function over a photo with a comment.
class ExifComment : public test::ControllerTest
{
protected:
    ExifComment()
    {
        restoreRun("batchExifUC");
        select("batchExifUC");
    }

    QString add(const QString& name, const QByteArray& comment)
    {
        const QString path
            = test::PhotoBuilder()
                  .exif(test::exifBlock({.userComment = QByteArray("ASCII\0\0\0", 8) + comment}))
                  .write(folder.path(name));
        photos.append(entry(path, u"L"_s));
        return path;
    }

    void run() { actions.send(u"hLoadImages"_s); }

    [[nodiscard]] static QString commentOf(const QString& path)
    {
        return metadata::mMeta::hGetExifUc(path, u"EXIF User Comment"_s);
    }

    [[nodiscard]] QStringList words() const
    {
        QStringList words;
        for (const workspace::RunRecord& record : journal.records())
            words.append(imaging::text(record.word));
        return words;
    }
};

} // namespace

TEST_F(ExifComment, IsWrittenIntoEveryTakenPhotoWithoutADestination)
{
    const QString first = add(u"a.jpg"_s, "old");
    const QString second = add(u"b.jpg"_s, "older");
    panels.vwFileManagementEXIF.tfExifUserComment.setStringValue(u"new"_s);
    panels.vwFileManagementEXIF.tfIPTCHeadline.setStringValue(u"News"_s);

    run();

    EXPECT_EQ(commentOf(first), u"old; new"_s);
    EXPECT_EQ(commentOf(second), u"older; new"_s);
    EXPECT_EQ(meta.hGetSomeIPTC(first, u"IPTC Headline"_s), u"News"_s);
    EXPECT_EQ(words(), (QStringList{u"OK"_s, u"OK"_s}));
    EXPECT_EQ(journal.records().first().target, first);
    EXPECT_TRUE(alerts.isEmpty());
}

TEST_F(ExifComment, FollowsTheBox)
{
    const QString path = add(u"a.jpg"_s, "old");
    panels.vwFileManagementEXIF.tfExifUserComment.setStringValue(u"new"_s);
    panels.vwFileManagementEXIF.cbClearBeforeAdd.setState(1);

    run();

    EXPECT_EQ(commentOf(path), u"new"_s);
}

TEST_F(ExifComment, LeavesNoRowInTheLog)
{
    std::ignore = add(u"a.jpg"_s, "old");

    run();

    EXPECT_TRUE(panels.vwFileManagementEXIF.mymMetaLogTableViewController.arrangedObjects().isEmpty(
    ));
}

TEST_F(ExifComment, FailsForWhatIsNoImageAndForWhatTakesNoneAndGoesOn)
{
    photos.append(entry(folder.write(u"a.jpg"_s, "no image"), u"L"_s));
    photos.append(entry(
        test::PhotoBuilder().format(test::PhotoFormat::Gif).write(folder.path(u"b.gif"_s)), u"L"_s
    ));
    const QString path = add(u"c.jpg"_s, "old");
    panels.vwFileManagementEXIF.tfExifUserComment.setStringValue(u"new"_s);

    run();

    EXPECT_EQ(words(), (QStringList{u"Failed"_s, u"Failed"_s, u"OK"_s}));
    EXPECT_EQ(commentOf(path), u"old; new"_s);
    EXPECT_EQ(test::TemporaryFolder::read(folder.path(u"a.jpg"_s)), "no image");
}

TEST_F(ExifComment, RidsTheFolderOfThePhotosOfWhatAKilledRunLeft)
{
    std::ignore = add(u"a.jpg"_s, "old");
    const QString abandoned = folder.write(u".brenvaldo-0123abcd"_s, "half a photo");

    run();

    EXPECT_FALSE(QFile::exists(abandoned));
}
