// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/action_registry.h>
#include <platform/foundation/literals.h>

#include <support/log_lines.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace brenvaldo;
using controls::ActionRegistry;

namespace {

/// Sends an action that raises something; the answers are what is logged and what is told.
class RaisingActions : public testing::Test
{
protected:
    ActionRegistry::Sent sendActionThat(const std::function<void()>& raises)
    {
        actions.add(u"cTest"_s, u"hRaise"_s, [raises](const controls::Sender&) { raises(); });
        return actions.send(u"hRaise"_s);
    }

    ActionRegistry actions;
    QStringList told;
    platform::Subscription watch
        = actions.exceptionRaised.connect([this](const platform::Exception& exception) {
              told.append(exception.kind() + u": "_s + exception.reason());
          });
    test::LogLines log;
};

} // namespace

TEST_F(RaisingActions, EndWithTheReasonOfAFaultOfThePlatform)
{
    EXPECT_EQ(
        sendActionThat([] { throw platform::RangeError(u"beyond the end"_s); }),
        ActionRegistry::Sent::Raised
    );

    EXPECT_EQ(told, QStringList{u"NSRangeException: beyond the end"_s});
    EXPECT_EQ(log.lines(), QStringList{u"hRaise: beyond the end"_s});
}

TEST_F(RaisingActions, EndWithTheReasonOfAnyStandardException)
{
    EXPECT_EQ(
        sendActionThat([] { throw std::runtime_error("a library gave up"); }),
        ActionRegistry::Sent::Raised
    );

    EXPECT_EQ(told, QStringList{u"NSGenericException: a library gave up"_s});
    EXPECT_EQ(log.lines(), QStringList{u"hRaise: a library gave up"_s});
}

TEST_F(RaisingActions, EndWithAnythingElseThatIsThrown)
{
    EXPECT_EQ(sendActionThat([] { throw 42; }), ActionRegistry::Sent::Raised);

    EXPECT_EQ(told, QStringList{u"NSGenericException: an exception of no known type"_s});
    EXPECT_EQ(log.lines(), QStringList{u"hRaise: an exception of no known type"_s});
}

TEST_F(RaisingActions, LeaveTheOtherActionsToWork)
{
    int calls = 0;
    actions.add(u"cTest"_s, u"hWork"_s, [&](const controls::Sender&) { ++calls; });
    (void)sendActionThat([] { throw 42; });

    EXPECT_EQ(actions.send(u"hWork"_s), ActionRegistry::Sent::Done);

    EXPECT_EQ(calls, 1);
}
