// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/text_controls.h>

#include <gtest/gtest.h>

using namespace brenvaldo::controls;

TEST(TextControls, TellObserversOfAChangeOnly)
{
    TextField field(QStringLiteral("tfSize"));
    int changes = 0;
    const auto subscription = field.changed.connect([&] { ++changes; });

    field.setStringValue(QStringLiteral("12"));
    field.setStringValue(QStringLiteral("12"));

    EXPECT_EQ(changes, 1);
}
