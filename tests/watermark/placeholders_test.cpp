// SPDX-License-Identifier: GPL-3.0-or-later
#include <watermark/placeholders.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QHash>

using namespace Qt::StringLiterals;
using namespace brenvaldo::watermark;

namespace {

/// A photo whose values are given by key; the output name stands under the empty key.
QString replaced(const QString& typed, const QHash<QString, QString>& values)
{
    return replacingPlaceholders(typed, [&](const Placeholder& placeholder) {
        return values.contains(placeholder.key) ? std::optional(values.value(placeholder.key))
                                                : std::nullopt;
    });
}

} // namespace

TEST(Placeholders, AreEighteenInTheOrderOfThePopUp)
{
    QStringList tokens;
    for (const Placeholder& placeholder : placeholders())
        tokens.append(placeholder.token);

    EXPECT_EQ(
        tokens.join(QLatin1Char(' ')),
        u"<[IMGCD]> <[IMGEUC]> <[IMGW]> <[IMGH]> <[IMGDPI]> <[IMGFN]> <[IMGCM]> "
        u"<[IMGCP]> <[IMGD]> <[IPTCCREA]> <[IPTCFUNC]> <[IPTCCAP]> <[IPTCCOPY]> "
        u"<[IPTCHEAD]> <[IPTCKEYW]> <[IPTCNAME]> <[IPTCSOUR]> <[IPTCTERM]>"_s
    );
}

TEST(Placeholders, VanishWhenTheirValueIsMissing)
{
    EXPECT_EQ(replaced(u"a<[IMGCD]>b<[IMGEUC]>c"_s, {}), u"abc"_s);
}

TEST(Placeholders, StayWhenAnExifValueIsEmpty)
{
    EXPECT_EQ(replaced(u"<[IMGEUC]>!"_s, {{u"UserComment"_s, QString()}}), u"<[IMGEUC]>!"_s);
}

TEST(Placeholders, VanishWhenATopValueIsEmpty)
{
    EXPECT_EQ(replaced(u"<[IMGCP]>!"_s, {{u"ProfileName"_s, QString()}}), u"!"_s);
}

TEST(Placeholders, AreReplacedEverywhere)
{
    EXPECT_EQ(
        replaced(u"<[IMGW]> and <[IMGW]>"_s, {{u"PixelWidth"_s, u"640"_s}}), u"640 and 640"_s
    );
}

TEST(Placeholders, ShowTheOutputName)
{
    EXPECT_EQ(replaced(u"<[IMGFN]>"_s, {{QString(), u"new.jpg"_s}}), u"new.jpg"_s);
}

TEST(Placeholders, InsideOfAValueStayUnlessTypedAndLater)
{
    const QHash<QString, QString> values{
        {u"UserComment"_s, u"<[IMGW]>"_s}, {u"PixelWidth"_s, u"640"_s}};

    EXPECT_EQ(replaced(u"<[IMGEUC]>"_s, values), u"<[IMGW]>"_s);
    EXPECT_EQ(replaced(u"<[IMGEUC]> <[IMGW]>"_s, values), u"640 640"_s);
}

TEST(Placeholders, InsideOfAValueThatComeEarlierStay)
{
    const QHash<QString, QString> values{
        {u"UserComment"_s, u"x"_s}, {u"Headline"_s, u"<[IMGEUC]>"_s}};

    EXPECT_EQ(replaced(u"<[IMGEUC]> <[IPTCHEAD]>"_s, values), u"x <[IMGEUC]>"_s);
}
