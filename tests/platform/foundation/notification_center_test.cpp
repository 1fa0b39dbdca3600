// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/notification_center.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::platform::NotificationCenter;

TEST(NotificationCenter, TellsTheObserversOfAName)
{
    NotificationCenter center;
    QStringList received;
    const auto one = center.addObserver(u"one"_s, [&](const QString& name) { received += name; });
    const auto two = center.addObserver(u"two"_s, [&](const QString& name) { received += name; });

    center.post(u"two"_s);
    center.post(u"nobody"_s);

    EXPECT_EQ(received, QStringList{u"two"_s});
}
