// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/url_text.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::files;

TEST(UrlFromText, TakesWhatIsWrittenAsAnAddress)
{
    EXPECT_EQ(urlFromText(u"/dir/a%20b.jpg"_s)->path(), u"/dir/a b.jpg"_s);
    EXPECT_EQ(urlFromText(u"https://www.example/a?b=c#d"_s)->host(), u"www.example"_s);
}

TEST(UrlFromText, RefusesWhatAnAddressMustEncode)
{
    for (const QString& text : {u""_s, u"a b"_s, u"é"_s, u"a%"_s, u"a%2x"_s, u"a[1]"_s, u"a|b"_s})
        EXPECT_EQ(urlFromText(text), std::nullopt) << text.toStdString();
}

TEST(WithEncodedQuerySigns, EncodesFourCharactersOnly)
{
    EXPECT_EQ(withEncodedQuerySigns(u"a?b=c&d+e #%é"_s), u"a%3Fb%3Dc%26d%2Be #%é"_s);
}
