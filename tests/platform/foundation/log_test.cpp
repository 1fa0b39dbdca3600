// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/exceptions.h>
#include <platform/foundation/log.h>

#include <support/text_printing.h>

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform;

TEST(Log, GoesToItsSink)
{
    QStringList lines;
    setLogSink([&](const QString& line) { lines += line; });

    log(u"été"_s);
    setLogSink({});

    EXPECT_EQ(lines, QStringList{u"été"_s});
}

TEST(Exceptions, CarryTheirKindAndReason)
{
    EXPECT_EQ(RangeError(u"why"_s).kind(), u"NSRangeException"_s);
    EXPECT_EQ(InvalidArgument(u"why"_s).kind(), u"NSInvalidArgumentException"_s);
    EXPECT_EQ(AssertionFailure(u"why"_s).kind(), u"NSInternalInconsistencyException"_s);
    EXPECT_EQ(RangeError(u"why"_s).reason(), u"why"_s);
    EXPECT_STREQ(RangeError(u"why"_s).what(), "NSRangeException: why");
}
