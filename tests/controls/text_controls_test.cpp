// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/text_controls.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::controls;

TEST(TextControls, TellObserversOfAChangeOnly)
{
    TextField field(u"tfSize"_s);
    int changes = 0;
    const auto subscription = field.changed.connect([&] { ++changes; });

    field.setStringValue(u"12"_s);
    field.setStringValue(u"12"_s);

    EXPECT_EQ(changes, 1);
}
