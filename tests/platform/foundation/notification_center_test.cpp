// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/notification_center.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using brenvaldo::platform::NotificationCenter;

TEST(NotificationCenter, TellsTheObserversOfAName)
{
    NotificationCenter center;
    QStringList received;
    const auto one = center.addObserver(u"one"_qs, [&](const QString& name) { received += name; });
    const auto two = center.addObserver(u"two"_qs, [&](const QString& name) { received += name; });

    center.post(u"two"_qs);
    center.post(u"nobody"_qs);

    EXPECT_EQ(received, QStringList{u"two"_qs});
}
