// SPDX-License-Identifier: GPL-3.0-or-later
#include <workspace/run/background_writer.h>

#include <platform/foundation/commit_turn.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/graphics/engine_thread.h>

#include <gmock/gmock.h>

#include <future>
#include <mutex>
#include <stdexcept>

using namespace brenvaldo;
using imaging::ResultWord;
using testing::ElementsAre;
using workspace::BackgroundWriter;

namespace {

constexpr std::size_t plenty = 1U << 30U;

/// Notes which files were put in place, in which order.
class Places
{
public:
    /// A file that is made when `isMade` becomes true.
    BackgroundWriter::Work work(int number, std::shared_future<void> isMade, std::size_t memory = 1)
    {
        return {
            .save =
                [this, number, isMade] {
                    isMade.wait();
                    if (!platform::awaitCommitTurn())
                        return ResultWord::Failed;
                    const std::lock_guard lock(m_mutex);
                    m_placed.push_back(number);
                    return ResultWord::Ok;
                },
            .memory = memory,
            .diskSpace = plenty};
    }

    [[nodiscard]] std::vector<int> placed() const
    {
        const std::lock_guard lock(m_mutex);
        return m_placed;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<int> m_placed;
};

/// Something that a test lets happen.
class Event
{
public:
    void happen() { m_promise.set_value(); }
    [[nodiscard]] std::shared_future<void> future() const { return m_future; }

private:
    std::promise<void> m_promise;
    std::shared_future<void> m_future{m_promise.get_future().share()};
};

std::shared_future<void> atOnce()
{
    Event event;
    event.happen();
    return event.future();
}

BackgroundWriter::Limits two() { return {.files = 2, .memory = plenty}; }

} // namespace

TEST(BackgroundWriter, PutsFilesInPlaceInTheirOrder)
{
    Places places;
    Event firstIsMade;
    BackgroundWriter writer(two());
    writer.start(places.work(1, firstIsMade.future()));
    writer.start(places.work(2, atOnce()));
    // The second one only waits for its turn: there is room for a third.
    writer.start(places.work(3, atOnce()));
    EXPECT_FALSE(writer.hasFinished());
    EXPECT_TRUE(places.placed().empty());

    firstIsMade.happen();

    EXPECT_EQ(writer.takeFirst().word, ResultWord::Ok);
    EXPECT_EQ(writer.takeFirst().word, ResultWord::Ok);
    EXPECT_EQ(writer.takeFirst().word, ResultWord::Ok);
    EXPECT_THAT(places.placed(), ElementsAre(1, 2, 3));
}

TEST(BackgroundWriter, MakesNoMoreFilesAtOnceThanItMay)
{
    Places places;
    Event isMade;
    BackgroundWriter writer(two());
    writer.start(places.work(1, isMade.future()));
    writer.start(places.work(2, isMade.future()));
    auto third = std::async(std::launch::async, [&] { writer.start(places.work(3, atOnce())); });

    EXPECT_EQ(third.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    isMade.happen();
    third.wait();
    for (int file = 0; file < 3; ++file)
        EXPECT_EQ(writer.takeFirst().word, ResultWord::Ok);
}

TEST(BackgroundWriter, KeepsFewFilesWaitingForTheirTurn)
{
    Places places;
    Event firstIsMade;
    BackgroundWriter writer(two());
    writer.start(places.work(1, firstIsMade.future()));
    for (int file = 2; file <= 8; ++file)
        writer.start(places.work(file, atOnce()));
    auto ninth = std::async(std::launch::async, [&] { writer.start(places.work(9, atOnce())); });

    EXPECT_EQ(ninth.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    firstIsMade.happen();
    ninth.wait();
    for (int file = 1; file <= 9; ++file)
        EXPECT_EQ(writer.takeFirst().word, ResultWord::Ok);
}

TEST(BackgroundWriter, MakesAFileAloneThatNeedsMoreMemoryThanThereIs)
{
    Places places;
    Event isMade;
    BackgroundWriter writer(two());
    writer.start(places.work(1, isMade.future(), plenty + 1));
    auto second = std::async(std::launch::async, [&] {
        BackgroundWriter::Work work = places.work(2, atOnce());
        work.diskSpace = 4 * plenty;
        writer.start(work);
    });

    EXPECT_EQ(second.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    isMade.happen();
    second.wait();
    EXPECT_EQ(writer.takeFirst().word, ResultWord::Ok);
    EXPECT_EQ(writer.takeFirst().word, ResultWord::Ok);
}

TEST(BackgroundWriter, MakesFilesOneByOneWhereTheDiskIsNearlyFull)
{
    Places places;
    Event isMade;
    BackgroundWriter writer(two());
    writer.start(places.work(1, isMade.future(), 100));
    auto second = std::async(std::launch::async, [&] {
        BackgroundWriter::Work work = places.work(2, atOnce(), 100);
        work.diskSpace = 399;
        writer.start(work);
    });

    EXPECT_EQ(second.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    isMade.happen();
    second.wait();
    EXPECT_EQ(writer.takeFirst().word, ResultWord::Ok);
    EXPECT_EQ(writer.takeFirst().word, ResultWord::Ok);
}

TEST(BackgroundWriter, ThrowsAwayWhatDoesNotStandWhenItGoesAway)
{
    Places places;
    Event firstIsMade;
    {
        BackgroundWriter writer(two());
        writer.start(places.work(1, firstIsMade.future()));
        writer.start(places.work(2, atOnce()));
        writer.cancel();
        firstIsMade.happen();
    }
    EXPECT_TRUE(places.placed().empty());
}

TEST(BackgroundWriter, TellsEvaluationsThatTheyAreCancelled)
{
    Event hasBegun;
    Event isCancelled;
    std::atomic<bool> sawIt = false;
    {
        BackgroundWriter writer({.files = 2, .engineThreads = 3, .memory = plenty});
        writer.start(
            {.save =
                 [&] {
                     const auto& terms = platform::graphics::EvaluationTerms::ofThread();
                     EXPECT_EQ(terms.threads, 3);
                     EXPECT_FALSE(terms.isCancelled());
                     hasBegun.happen();
                     isCancelled.future().wait();
                     sawIt = terms.isCancelled();
                     return ResultWord::Failed;
                 },
             .memory = 1,
             .diskSpace = plenty}
        );
        hasBegun.future().wait();
        writer.cancel();
        isCancelled.happen();
    }
    EXPECT_TRUE(sawIt);
}

TEST(BackgroundWriter, HandsOverTheLogLinesOfEachFile)
{
    BackgroundWriter writer(two());
    for (const QString& line : {u"first"_s, u"second"_s})
        writer.start(
            {.save =
                 [line] {
                     platform::log(line);
                     return ResultWord::Failed;
                 },
             .memory = 1,
             .diskSpace = plenty}
        );

    EXPECT_EQ(writer.takeFirst().log, QStringList{u"first"_s});
    EXPECT_EQ(writer.takeFirst().log, QStringList{u"second"_s});
}

TEST(BackgroundWriter, CallsAFaultAFailure)
{
    BackgroundWriter writer(two());
    writer.start(
        {.save = []() -> ResultWord { throw std::runtime_error("no memory"); },
         .memory = 1,
         .diskSpace = plenty}
    );

    const BackgroundWriter::Finished finished = writer.takeFirst();

    EXPECT_EQ(finished.word, ResultWord::Failed);
    EXPECT_EQ(finished.log.size(), 1);
}
