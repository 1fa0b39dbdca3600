// SPDX-License-Identifier: GPL-3.0-or-later
#include <app/single_instance.h>
#include <platform/foundation/literals.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>

#include <atomic>
#include <functional>
#include <thread>

using namespace brenvaldo;

namespace {

class SingleInstance : public testing::Test
{
protected:
    /// A second start on a thread of its own, while this one delivers events.
    bool handOverFromSecondStart(const QStringList& files) const
    {
        std::optional<bool> answer;
        std::thread second([&] { answer = app::SingleInstance(path).handOver(files); });
        deliverEventsUntil([&] { return answer.has_value(); });
        second.join();
        return answer.value_or(false);
    }

    /// Gives up after some seconds.
    static void deliverEventsUntil(const std::function<bool()>& isDone)
    {
        QElapsedTimer clock;
        clock.start();
        while (!isDone() && clock.elapsed() < 5000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }

    test::TemporaryFolder folder;
    QString path = folder.path(u"program.sock"_s);
};

} // namespace

TEST_F(SingleInstance, FindsNoOtherProgramAtFirst)
{
    EXPECT_FALSE(app::SingleInstance(path).handOver({}));
}

TEST_F(SingleInstance, GivesTheFilesOfASecondStartToTheFirst)
{
    app::SingleInstance first(path);
    ASSERT_TRUE(first.listen());
    QStringList arrived;
    const auto subscription
        = first.filesArrived.connect([&](const auto& files) { arrived = files; });

    EXPECT_TRUE(handOverFromSecondStart({u"/a/b c.jpg"_s, u"/d/\u00e4.png"_s}));
    deliverEventsUntil([&] { return !arrived.isEmpty(); });

    EXPECT_EQ(arrived, (QStringList{u"/a/b c.jpg"_s, u"/d/\u00e4.png"_s}));
}

TEST_F(SingleInstance, OutlivesASecondStartThatHangsUpWhileItsFilesAreTaken)
{
    app::SingleInstance first(path);
    ASSERT_TRUE(first.listen());
    bool isTaken = false;
    QByteArrayList entries;
    const auto subscription = first.filesArrived.connect([&](const auto&) {
        // As the filling of the list does, until the socket that hung up is gone.
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < 100)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        // The entries of the list take the room that the socket had.
        for (qsizetype size = 16; size < 4096; size += 8)
            entries.append(QByteArray(size, '\x7f'));
        isTaken = true;
    });

    EXPECT_TRUE(handOverFromSecondStart({u"/a.jpg"_s}));
    deliverEventsUntil([&] { return isTaken; });

    EXPECT_TRUE(isTaken);
    EXPECT_TRUE(handOverFromSecondStart({})) << "the next one is heard, too";
}

TEST_F(SingleInstance, LetsLaterStartsOpenAWindowOfTheirOwnOnceItHasStoppedListening)
{
    app::SingleInstance first(path);
    ASSERT_TRUE(first.listen());

    first.stopListening();

    EXPECT_FALSE(handOverFromSecondStart({}));
    EXPECT_TRUE(app::SingleInstance(path).listen());
}

TEST_F(SingleInstance, WaitsForAProgramThatIsBusy)
{
    app::SingleInstance first(path);
    ASSERT_TRUE(first.listen());
    std::atomic<bool> answer = false;
    std::atomic<bool> ended = false;

    std::thread second([&] {
        answer = app::SingleInstance(path).handOver({u"/a.jpg"_s});
        ended = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(800));
    EXPECT_FALSE(ended);
    while (!ended)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    second.join();

    EXPECT_TRUE(answer);
}

TEST_F(SingleInstance, ReplacesASocketThatACrashedProgramLeftBehind)
{
    (void)folder.write(u"program.sock"_s, {});
    app::SingleInstance first(path);

    ASSERT_TRUE(first.listen());

    EXPECT_TRUE(handOverFromSecondStart({}));
}
