// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <views/photos/thumbnail_store.h>

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QThread>

using namespace brenvaldo;

namespace {

constexpr int side = 94;
constexpr int storePatience = 60'000; ///< ms; machines that test can be busy

class ThumbnailStore : public testing::Test
{
protected:
    /// Waits until a picture of `path` is there, or the file has turned out unreadable.
    QImage awaited(const QString& path)
    {
        const auto isThere = [&] {
            return !store.picture(workspace::ListPicture{.path = path}).isNull()
                || store.isUnreadable(path);
        };
        const bool came = QTest::qWaitFor(isThere, storePatience);
        EXPECT_TRUE(came);
        return store.picture(workspace::ListPicture{.path = path});
    }

    test::TemporaryFolder folder;
    views::ThumbnailStore store{side};
};

} // namespace

TEST_F(ThumbnailStore, AnswersAtOnceAndTellsWhenThePictureIsThere)
{
    const QString path = test::PhotoBuilder{}.size(470, 330).write(folder.path(u"a.jpg"_s));
    QSignalSpy arrived(&store, &views::ThumbnailStore::arrived);

    EXPECT_TRUE(store.picture(workspace::ListPicture{.path = path}).isNull());
    ASSERT_TRUE(arrived.wait());

    EXPECT_EQ(store.picture(workspace::ListPicture{.path = path}).size(), QSize(94, 66));
}

TEST_F(ThumbnailStore, TurnsPhotosUpright)
{
    const QString path
        = test::PhotoBuilder{}.size(470, 330).orientation(6).write(folder.path(u"a.jpg"_s));

    EXPECT_EQ(awaited(path).size(), QSize(66, 94));
}

TEST_F(ThumbnailStore, FitsSmallPhotosIntoTheirBoxToo)
{
    const QString path = test::PhotoBuilder{}.size(47, 33).write(folder.path(u"a.png"_s));

    EXPECT_EQ(awaited(path).size(), QSize(94, 66));
}

TEST_F(ThumbnailStore, KnowsFilesThatAreNoPhotos)
{
    const QString path = folder.write(u"a.jpg"_s, "no photo at all");

    EXPECT_TRUE(awaited(path).isNull());
    EXPECT_TRUE(store.isUnreadable(path));
    EXPECT_TRUE(awaited(folder.path(u"missing.jpg"_s)).isNull());
}

TEST_F(ThumbnailStore, MakesANewPictureWhenTheFileHasChanged)
{
    const QString path = test::PhotoBuilder{}.size(470, 330).write(folder.path(u"a.jpg"_s));
    EXPECT_EQ(awaited(path).width(), 94);

    test::PhotoBuilder{}.size(330, 470).write(path);
    store.checkFilesAgain();

    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return store.picture(workspace::ListPicture{.path = path}).height() == 94; },
        storePatience
    ));
}

TEST_F(ThumbnailStore, MakesThePictureOfAFileThatIsWrittenWhileItIsRead)
{
    const QByteArray whole = test::PhotoBuilder{}.size(900, 1300).bytes();
    for (int round = 0; round < 12; ++round) {
        const QString name = u"%1.jpg"_s.arg(round);
        const QString path = folder.write(name, whole.first(whole.size() / 2));
        store.checkFilesAgain();
        (void)store.picture(workspace::ListPicture{.path = path});
        QThread::msleep(static_cast<unsigned long>(round));

        (void)folder.write(name, whole);
        store.checkFilesAgain();
        for (int asked = 0; asked < 3; ++asked)
            (void)store.picture(workspace::ListPicture{.path = path});

        const auto isReadable
            = [&] { return store.picture(workspace::ListPicture{.path = path}).height() == side; };
        ASSERT_TRUE(QTest::qWaitFor(isReadable, storePatience)) << "in round " << round;
        QTest::qWait(2 * round);
        ASSERT_TRUE(isReadable()) << "in round " << round;
    }
}

TEST_F(ThumbnailStore, EndsWhilePicturesAreStillToCome)
{
    auto* brief = new views::ThumbnailStore(side, &store);
    for (int index = 0; index < 20; ++index) {
        const QString name = u"%1.jpg"_s.arg(index);
        const QString path = test::PhotoBuilder{}.size(900, 700).write(folder.path(name));
        EXPECT_TRUE(brief->picture(workspace::ListPicture{.path = path}).isNull());
    }

    brief->deleteLater();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
