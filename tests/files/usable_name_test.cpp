// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/usable_name.h>

#include <platform/foundation/literals.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using files::asNamePart;
using files::usableName;

TEST(NamePart, CannotLeaveItsFolder)
{
    EXPECT_EQ(asNamePart(u"../../etc/passwd"_s), u"..-..-etc-passwd"_s);
}

TEST(NamePart, StandsInOneLine)
{
    EXPECT_EQ(asNamePart(u"a\nb\rc\td\u2028e\u2029f"_s), u"a b c d e f"_s);
    EXPECT_EQ(asNamePart(u"Z\u00fcrich \U0001F600"_s), u"Z\u00fcrich \U0001F600"_s);
}

TEST(UsableName, IsAsItWasMade)
{
    for (const QString& name :
         {u".hidden"_s, u"-a.jpg"_s, u"...jpg"_s, u"a\nb"_s, u"e\u0301.jpg"_s, u"\U0001F600"_s})
        EXPECT_EQ(usableName(name), name);
}

TEST(UsableName, HoldsNoSeparator)
{
    EXPECT_EQ(usableName(u"../a/b.jpg"_s), u"..-a-b.jpg"_s);
    EXPECT_EQ(usableName(u"a"_s + QChar(u'\0') + u"b"_s), u"ab"_s);
}

TEST(UsableName, IsNoneOfAFolder)
{
    EXPECT_EQ(usableName(u"."_s), QString());
    EXPECT_EQ(usableName(u".."_s), QString());
    EXPECT_EQ(usableName(QString()), QString());
}

TEST(UsableName, TakesAsManyBytesAsAFolderHolds)
{
    const QString longest = QString(251, u'a') + u".jpg"_s;
    EXPECT_EQ(usableName(longest), longest);
    EXPECT_EQ(usableName(u"b"_s + longest), u"b"_s + QString(249, u'a') + u".jpg"_s);
    EXPECT_EQ(usableName(QString(300, u'a')), QString(250, u'a'));
    EXPECT_EQ(
        usableName(QString(300, u'a') + u".photoshop"_s), QString(245, u'a') + u".photoshop"_s
    );
}

TEST(UsableName, IsCutBetweenWholeCharacters)
{
    const QString family = u"\U0001F468\u200D\U0001F469"_s; // 11 bytes, one character
    QString name;
    for (int i = 0; i < 30; ++i)
        name += family;
    EXPECT_EQ(usableName(name + u".jpg"_s).toUtf8().size(), 22 * 11 + 4);
    EXPECT_TRUE(usableName(name + u".jpg"_s).endsWith(family + u".jpg"_s));
}

TEST(UsableName, KeepsNoExtensionThatFillsItAlone)
{
    EXPECT_EQ(usableName(u"a."_s + QString(300, u'x')), u"a."_s + QString(248, u'x'));
}
