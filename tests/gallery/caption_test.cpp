// SPDX-License-Identifier: GPL-3.0-or-later
#include <gallery/caption.h>
#include <gallery/html_text.h>

#include <platform/foundation/literals.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::gallery;

namespace {

QString captionOf(const QString& parts, const QString& separator = u" | "_s)
{
    return caption(
        {.parts = parts, .separator = separator},
        u"a.b.jpg"_s,
        [](const QString& title) { return u"E("_s + title + u")"_s; },
        [](const QString& title) { return u"I("_s + title + u")"_s; }
    );
}

QString captionWithoutValues(const QString& parts)
{
    const auto none = [](const QString&) { return QString(); };
    return caption({.parts = parts, .separator = u"; "_s}, u"a.jpg"_s, none, none);
}

} // namespace

TEST(Caption, JoinsTheValuesInTheirOrder)
{
    EXPECT_EQ(
        captionOf(u"EXIF User Comment;Show Filename;EXIF Creation Date"_s),
        u"E(EXIF User Comment) | a.b.jpg | E(EXIF Creation Date)"_s
    );
}

TEST(Caption, AsksForTheElevenIptcTitles)
{
    EXPECT_EQ(captionOf(u"IPTC Creator Title"_s), u"I(IPTC Creator Title)"_s);
    EXPECT_EQ(captionOf(u"IPTC Description"_s), u"I(IPTC Description)"_s);
    EXPECT_EQ(captionOf(u"IPTC Keyword"_s), u"I(IPTC Keyword)"_s);
    EXPECT_EQ(captionOf(u"IPTC City"_s), u"I(IPTC City)"_s);
    EXPECT_EQ(captionOf(u"IPTC Caption Writer"_s), u"I(IPTC Caption Writer)"_s);
    EXPECT_EQ(captionOf(u"IPTC Copyrights"_s), u"I(IPTC Copyrights)"_s);
    EXPECT_EQ(captionOf(u"IPTC Country"_s), u"I(IPTC Country)"_s);
    EXPECT_EQ(captionOf(u"IPTC Credits"_s), u"I(IPTC Credits)"_s);
    EXPECT_EQ(captionOf(u"IPTC Headline"_s), u"I(IPTC Headline)"_s);
    EXPECT_EQ(captionOf(u"IPTC Subject Code"_s), u"I(IPTC Subject Code)"_s);
    EXPECT_EQ(captionOf(u"IPTC State Province"_s), u"I(IPTC State Province)"_s);
}

TEST(Caption, PassesOverTitlesThatThereAreNot)
{
    EXPECT_EQ(captionOf(u"Exif User Comment"_s), QString());
    EXPECT_EQ(captionOf(u"IPTC Shoe Size;;Show Filename"_s), u"a.b.jpg"_s);
    EXPECT_EQ(captionOf({}), QString());
}

TEST(Caption, IsEmptyWhenThePhotoHasNoneOfTheValues)
{
    EXPECT_EQ(captionWithoutValues(u"EXIF User Comment;IPTC City"_s), QString());
    EXPECT_EQ(captionWithoutValues(u"IPTC City;Show Filename;IPTC Country"_s), u"a.jpg"_s);
}

TEST(Caption, KeepsMarkupOfTheSeparatorOnly)
{
    const auto comment = [](const QString&) { return u"<b>&\"x\""_s; };
    EXPECT_EQ(
        caption({u"EXIF User Comment;Show Filename"_s, u"<br>"_s}, u"a.jpg"_s, comment, comment),
        u"&lt;b&gt;&amp;&quot;x&quot;<br>a.jpg"_s
    );
}

TEST(LinkText, EncodesWhatWouldEndOrChangeTheLink)
{
    EXPECT_EQ(linkText(u"50% #1? \"<a>\\b\n"_s), u"50%25 %231%3F %22%3Ca%3E%5Cb%0A"_s);
    EXPECT_EQ(linkText(u"tea & 茶 é.x"_s), u"tea &amp; 茶 é.x"_s);
}
