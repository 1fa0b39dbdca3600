// SPDX-License-Identifier: GPL-3.0-or-later
#include <watermark/placeholders.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QHash>

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
        QStringLiteral("<[IMGCD]> <[IMGEUC]> <[IMGW]> <[IMGH]> <[IMGDPI]> <[IMGFN]> <[IMGCM]> "
                       "<[IMGCP]> <[IMGD]> <[IPTCCREA]> <[IPTCFUNC]> <[IPTCCAP]> <[IPTCCOPY]> "
                       "<[IPTCHEAD]> <[IPTCKEYW]> <[IPTCNAME]> <[IPTCSOUR]> <[IPTCTERM]>")
    );
}

TEST(Placeholders, VanishWhenTheirValueIsMissing)
{
    EXPECT_EQ(replaced(QStringLiteral("a<[IMGCD]>b<[IMGEUC]>c"), {}), QStringLiteral("abc"));
}

TEST(Placeholders, StayWhenAnExifValueIsEmpty)
{
    EXPECT_EQ(
        replaced(QStringLiteral("<[IMGEUC]>!"), {{QStringLiteral("UserComment"), QString()}}),
        QStringLiteral("<[IMGEUC]>!")
    );
}

TEST(Placeholders, VanishWhenATopValueIsEmpty)
{
    EXPECT_EQ(
        replaced(QStringLiteral("<[IMGCP]>!"), {{QStringLiteral("ProfileName"), QString()}}),
        QStringLiteral("!")
    );
}

TEST(Placeholders, AreReplacedEverywhere)
{
    EXPECT_EQ(
        replaced(
            QStringLiteral("<[IMGW]> and <[IMGW]>"),
            {{QStringLiteral("PixelWidth"), QStringLiteral("640")}}
        ),
        QStringLiteral("640 and 640")
    );
}

TEST(Placeholders, ShowTheOutputName)
{
    EXPECT_EQ(
        replaced(QStringLiteral("<[IMGFN]>"), {{QString(), QStringLiteral("new.jpg")}}),
        QStringLiteral("new.jpg")
    );
}

TEST(Placeholders, InsideOfAValueStayUnlessTypedAndLater)
{
    const QHash<QString, QString> values{
        {QStringLiteral("UserComment"), QStringLiteral("<[IMGW]>")},
        {QStringLiteral("PixelWidth"), QStringLiteral("640")}};

    EXPECT_EQ(replaced(QStringLiteral("<[IMGEUC]>"), values), QStringLiteral("<[IMGW]>"));
    EXPECT_EQ(replaced(QStringLiteral("<[IMGEUC]> <[IMGW]>"), values), QStringLiteral("640 640"));
}

TEST(Placeholders, InsideOfAValueThatComeEarlierStay)
{
    const QHash<QString, QString> values{
        {QStringLiteral("UserComment"), QStringLiteral("x")},
        {QStringLiteral("Headline"), QStringLiteral("<[IMGEUC]>")}};

    EXPECT_EQ(
        replaced(QStringLiteral("<[IMGEUC]> <[IPTCHEAD]>"), values), QStringLiteral("x <[IMGEUC]>")
    );
}
