// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/exceptions.h>
#include <platform/foundation/log.h>

#include <support/text_printing.h>

#include <QStringList>

#include <gtest/gtest.h>

using namespace brenvaldo::platform;

TEST(Log, GoesToItsSink)
{
    QStringList lines;
    setLogSink([&](const QString& line) { lines += line; });

    log(u"été"_qs);
    setLogSink({});

    EXPECT_EQ(lines, QStringList{u"été"_qs});
}

TEST(Exceptions, CarryTheirKindAndReason)
{
    EXPECT_EQ(RangeError(u"why"_qs).kind(), u"NSRangeException"_qs);
    EXPECT_EQ(InvalidArgument(u"why"_qs).kind(), u"NSInvalidArgumentException"_qs);
    EXPECT_EQ(AssertionFailure(u"why"_qs).kind(), u"NSInternalInconsistencyException"_qs);
    EXPECT_EQ(RangeError(u"why"_qs).reason(), u"why"_qs);
    EXPECT_STREQ(RangeError(u"why"_qs).what(), "NSRangeException: why");
}
