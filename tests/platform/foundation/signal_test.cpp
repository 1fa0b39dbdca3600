// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/signal.h>

#include <gtest/gtest.h>

#include <vector>

using brenvaldo::platform::Signal;
using brenvaldo::platform::Subscription;

TEST(Signal, CallsObserversInTheOrderOfConnecting)
{
    const Signal<int> signal;
    std::vector<int> calls;
    const auto first = signal.connect([&](int value) { calls.push_back(value); });
    const auto second = signal.connect([&](int value) { calls.push_back(10 * value); });

    signal(2);

    EXPECT_EQ(calls, (std::vector{2, 20}));
}

TEST(Signal, ForgetsAnObserverWithItsSubscription)
{
    const Signal<> signal;
    int calls = 0;
    {
        const auto subscription = signal.connect([&] { ++calls; });
        signal();
    }

    signal();

    EXPECT_EQ(calls, 1);
}

TEST(Signal, SkipsAnObserverThatAnotherDisconnects)
{
    const Signal<> signal;
    Subscription second;
    int calls = 0;
    const auto first = signal.connect([&] { second = {}; });
    second = signal.connect([&] { ++calls; });

    signal();

    EXPECT_EQ(calls, 0);
}

TEST(Signal, CallsAnObserverAddedMeanwhileFromTheNextTimeOn)
{
    const Signal<> signal;
    std::vector<Subscription> added;
    int calls = 0;
    const auto first = signal.connect([&] { added.push_back(signal.connect([&] { ++calls; })); });

    signal();
    EXPECT_EQ(calls, 0);

    signal();
    EXPECT_EQ(calls, 1);
}
