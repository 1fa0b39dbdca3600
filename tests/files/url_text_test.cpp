// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/url_text.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::files;

TEST(UrlFromText, TakesWhatIsWrittenAsAnAddress)
{
    EXPECT_EQ(urlFromText(u"/dir/a%20b.jpg"_qs)->path(), u"/dir/a b.jpg"_qs);
    EXPECT_EQ(urlFromText(u"https://www.example/a?b=c#d"_qs)->host(), u"www.example"_qs);
}

TEST(UrlFromText, RefusesWhatAnAddressMustEncode)
{
    for (const QString& text :
         {u""_qs, u"a b"_qs, u"é"_qs, u"a%"_qs, u"a%2x"_qs, u"a[1]"_qs, u"a|b"_qs})
        EXPECT_EQ(urlFromText(text), std::nullopt) << text.toStdString();
}

TEST(WithEncodedQuerySigns, EncodesFourCharactersOnly)
{
    EXPECT_EQ(withEncodedQuerySigns(u"a?b=c&d+e #%é"_qs), u"a%3Fb%3Dc%26d%2Be #%é"_qs);
}
