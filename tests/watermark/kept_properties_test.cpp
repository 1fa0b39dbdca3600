// SPDX-License-Identifier: GPL-3.0-or-later
#include <watermark/kept_properties.h>

#include <platform/metadata/image_properties.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using test::PhotoBuilder;

namespace {

class KeptProperties : public testing::Test
{
protected:
    QString widthOf(const QString& path)
    {
        const auto properties = kept.of(path);
        const auto* width = properties->value(platform::metadata::property::pixelWidth);
        return width ? width->text() : QString();
    }

    test::TemporaryFolder folder;
    watermark::KeptProperties kept;
};

} // namespace

TEST_F(KeptProperties, AreReadOnceWhileTheFileStays)
{
    const QString path = PhotoBuilder().size(40, 20).write(folder.path(QStringLiteral("a.jpg")));

    const auto first = kept.of(path);

    EXPECT_EQ(kept.of(path), first);
    EXPECT_EQ(widthOf(path), QStringLiteral("40"));
}

TEST_F(KeptProperties, AreReadAnewWhenTheFileHasChanged)
{
    const QString path = PhotoBuilder().size(40, 20).write(folder.path(QStringLiteral("a.jpg")));
    EXPECT_EQ(widthOf(path), QStringLiteral("40"));

    PhotoBuilder().size(90, 70).write(path);

    EXPECT_EQ(widthOf(path), QStringLiteral("90"));
}

TEST_F(KeptProperties, AreThoseOfThePhotoAskedFor)
{
    const QString first = PhotoBuilder().size(40, 20).write(folder.path(QStringLiteral("a.jpg")));
    const QString second = PhotoBuilder().size(50, 20).write(folder.path(QStringLiteral("b.jpg")));

    EXPECT_EQ(widthOf(first), QStringLiteral("40"));
    EXPECT_EQ(widthOf(second), QStringLiteral("50"));
    EXPECT_EQ(widthOf(first), QStringLiteral("40"));
}

TEST_F(KeptProperties, OfAnUnreadableFileAreEmpty)
{
    EXPECT_EQ(widthOf(folder.path(QStringLiteral("none.jpg"))), QString());
}
