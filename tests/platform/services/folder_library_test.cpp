// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/services/folder_library.h>

#include <platform/metadata/metadata_reader.h>

#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace brenvaldo;
using platform::services::FolderLibrary;
using platform::services::PhotoAlbum;

namespace {

class FolderLibraryTest : public testing::Test
{
protected:
    using Answer = FolderLibrary::Answer;

    Answer newAlbum(const QString& title)
    {
        return answerOf([&](auto completion) { library.createAlbum(title, completion); });
    }

    Answer
    add(const QString& file,
        const QString& album = {},
        const platform::metadata::PhotoNote& note = {})
    {
        return answerOf([&](auto completion) {
            library.addPhoto({.file = file, .album = album, .note = note}, completion);
        });
    }

    template <class Request>
    Answer answerOf(const Request& request)
    {
        Answer answer;
        request([&answer](const Answer& told) { answer = told; });
        library.waitForAll();
        return answer;
    }

    [[nodiscard]] QString photo(const QString& name = u"a.jpg"_s) const
    {
        return test::PhotoBuilder().size(40, 30).write(folder.path(name));
    }

    [[nodiscard]] QStringList filesOf(const QString& album) const
    {
        return QDir(folder.path(u"library/"_s + album)).entryList(QDir::Files, QDir::Name);
    }

    QString valueOf(const QString& query) const
    {
        const auto index
            = platform::storage::Connection::open(folder.path(u"library/library.db"_s));
        const auto rows = index->prepare(query);
        QStringList values;
        while (rows && rows->step() == platform::storage::Statement::Step::Row)
            values.append(rows->text(0).value_or(u"none"_s));
        return values.join(u',');
    }

    test::TemporaryFolder folder;
    FolderLibrary library{folder.path(u"library"_s)};
};

} // namespace

TEST_F(FolderLibraryTest, IsNotMadeByALook)
{
    EXPECT_TRUE(library.albums().isEmpty());
    EXPECT_FALSE(QDir(folder.path(u"library"_s)).exists());
}

TEST_F(FolderLibraryTest, TellsItsAlbumsInTheOrderOfTheirCreation)
{
    const QString second = newAlbum(u"Sea"_s).id;
    library.createAlbum(u"Sea"_s, [](const Answer&) {});
    library.createAlbum({}, [](const Answer&) {});
    const QList<PhotoAlbum> albums = library.albums();
    ASSERT_EQ(albums.size(), 3);
    EXPECT_EQ(albums.at(0), (PhotoAlbum{.id = second, .title = u"Sea"_s}));
    EXPECT_EQ(albums.at(1).title, u"Sea"_s);
    EXPECT_EQ(albums.at(2).title, QString());
    EXPECT_NE(albums.at(1).id, second);
}

TEST_F(FolderLibraryTest, GivesEachAlbumAFolderThatEveryFileSystemTakes)
{
    for (const QString& title : {u"a/b: \"c\"?"_s, u"sea"_s, u"SEA"_s, u"..."_s, u"Unsorted"_s})
        EXPECT_TRUE(newAlbum(title).isDone()) << title.toStdString();
    EXPECT_EQ(
        valueOf(u"SELECT folder FROM album ORDER BY rowid"_s),
        u"a_b_ _c__,sea,SEA (2),Untitled,Unsorted (2)"_s
    );
    EXPECT_EQ(library.albums().first().title, u"a/b: \"c\"?"_s);
}

TEST_F(FolderLibraryTest, CopiesAPhotoIntoItsAlbumUnderAFreeName)
{
    const QString album = newAlbum(u"Sea"_s).id;
    EXPECT_TRUE(add(photo(), album).isDone());
    EXPECT_TRUE(add(photo(), album).isDone());
    EXPECT_TRUE(add(photo()).isDone());
    EXPECT_EQ(filesOf(u"Sea"_s), (QStringList{u"a (2).jpg"_s, u"a.jpg"_s}));
    EXPECT_EQ(filesOf(u"Unsorted"_s), QStringList{u"a.jpg"_s});
    EXPECT_EQ(
        valueOf(u"SELECT file FROM asset ORDER BY rowid"_s),
        u"Sea/a.jpg,Sea/a (2).jpg,Unsorted/a.jpg"_s
    );
    EXPECT_EQ(valueOf(u"SELECT width || 'x' || height FROM asset LIMIT 1"_s), u"40x30"_s);
    EXPECT_EQ(valueOf(u"SELECT COUNT(*) FROM album_asset"_s), u"2"_s);
    EXPECT_EQ(valueOf(u"SELECT COUNT(DISTINCT sha1) FROM asset"_s), u"1"_s);
}

TEST_F(FolderLibraryTest, KeepsWhatIsNotedInTheIndexAndInTheFile)
{
    const platform::metadata::PhotoNote note{
        .keywords = {u"sea"_s, u"été"_s}, .title = u"Title"_s, .description = u"Text"_s};
    const QString path = photo();
    QFile source(path);
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    const QByteArray before = source.readAll();
    EXPECT_TRUE(add(path, {}, note).isDone());
    EXPECT_EQ(valueOf(u"SELECT title || '/' || caption FROM asset"_s), u"Title/Text"_s);
    EXPECT_EQ(valueOf(u"SELECT word FROM keyword ORDER BY word"_s), u"sea,été"_s);
    QFile kept(folder.path(u"library/Unsorted/a.jpg"_s));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    const QByteArray contents = kept.readAll();
    EXPECT_TRUE(contents.contains("digiKam:TagsList"));
    EXPECT_TRUE(contents.contains("été"));
    source.seek(0);
    EXPECT_EQ(source.readAll(), before);
}

TEST_F(FolderLibraryTest, MarksAFavouriteInTheIndexAndInTheFile)
{
    const QString id = add(photo()).id;
    EXPECT_TRUE(answerOf([&](auto done) { library.setFavourite(id, true, done); }).isDone());
    EXPECT_EQ(valueOf(u"SELECT favourite FROM asset"_s), u"1"_s);
    QFile kept(folder.path(u"library/Unsorted/a.jpg"_s));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_TRUE(kept.readAll().contains("xmp:Rating=\"5\""));
    EXPECT_FALSE(answerOf([&](auto done) { library.setFavourite(u"x"_s, true, done); }).isDone());
}

TEST_F(FolderLibraryTest, TellsWhyAPhotoWasNotAdded)
{
    const Answer answer = add(folder.path(u"missing.jpg"_s));
    EXPECT_EQ(answer.fault, u"The file \"%1\" can't be read."_s.arg(folder.path(u"missing.jpg"_s)));
    EXPECT_TRUE(answer.id.isEmpty());
}

TEST_F(FolderLibraryTest, FailsWhereItsFolderCannotBeMade)
{
    QFile inTheWay(folder.path(u"library"_s));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_FALSE(newAlbum(u"Sea"_s).isDone());
    EXPECT_FALSE(add(photo()).isDone());
    EXPECT_TRUE(library.albums().isEmpty());
}

TEST_F(FolderLibraryTest, FindsItsAlbumsAgainWhenTheIndexIsLost)
{
    const QString album = newAlbum(u"a/b"_s).id;
    QFile::remove(folder.path(u"library/library.db"_s));
    QFile::remove(folder.path(u"library/library.db-wal"_s));
    QFile::remove(folder.path(u"library/library.db-shm"_s));
    EXPECT_EQ(library.albums(), (QList<PhotoAlbum>{{.id = album, .title = u"a/b"_s}}));
}

TEST_F(FolderLibraryTest, MakesAllChangesBeforeItGoesAway)
{
    int done = 0;
    {
        FolderLibrary other(folder.path(u"other"_s));
        for (int photoNumber = 0; photoNumber < 5; ++photoNumber)
            other.addPhoto({.file = photo(), .album = {}, .note = {}}, [&](const Answer&) {
                ++done;
            });
    }
    EXPECT_EQ(done, 5);
}
