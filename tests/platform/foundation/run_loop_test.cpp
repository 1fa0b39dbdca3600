// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/run_loop.h>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <gtest/gtest.h>

using brenvaldo::platform::pumpEvents;
using namespace std::chrono_literals;

TEST(PumpEvents, DeliversWhatIsWaiting)
{
    QObject context;
    int delivered = 0;
    QTimer::singleShot(0, &context, [&] { ++delivered; });
    QMetaObject::invokeMethod(
        &context, [&] { ++delivered; }, Qt::QueuedConnection
    );

    pumpEvents(1s);

    EXPECT_EQ(delivered, 2);
}

TEST(PumpEvents, ReturnsAtOnceWhenNothingIsWaiting)
{
    pumpEvents(1s);
    QElapsedTimer clock;
    clock.start();

    pumpEvents(10s);

    EXPECT_LT(clock.elapsed(), 1000);
}

TEST(PumpEvents, StopsWhenItsTimeIsOver)
{
    QTimer endless;
    int calls = 0;
    QObject::connect(&endless, &QTimer::timeout, &endless, [&] { ++calls; });
    endless.start(0);
    QElapsedTimer clock;
    clock.start();

    pumpEvents(20ms);

    EXPECT_GT(calls, 1);
    EXPECT_GE(clock.elapsed(), 19);
    EXPECT_LT(clock.elapsed(), 2000);
}
