// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <watermark/kept_properties.h>

#include <platform/metadata/image_properties.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using test::PhotoBuilder;

namespace {

class PropertiesKept : public testing::Test
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

TEST_F(PropertiesKept, AreReadOnceWhileTheFileStays)
{
    const QString path = PhotoBuilder().size(40, 20).write(folder.path(u"a.jpg"_s));

    const auto first = kept.of(path);

    EXPECT_EQ(kept.of(path), first);
    EXPECT_EQ(widthOf(path), u"40"_s);
}

TEST_F(PropertiesKept, AreReadAnewWhenTheFileHasChanged)
{
    const QString path = PhotoBuilder().size(40, 20).write(folder.path(u"a.jpg"_s));
    EXPECT_EQ(widthOf(path), u"40"_s);

    PhotoBuilder().size(90, 70).write(path);

    EXPECT_EQ(widthOf(path), u"90"_s);
}

TEST_F(PropertiesKept, AreThoseOfThePhotoAskedFor)
{
    const QString first = PhotoBuilder().size(40, 20).write(folder.path(u"a.jpg"_s));
    const QString second = PhotoBuilder().size(50, 20).write(folder.path(u"b.jpg"_s));

    EXPECT_EQ(widthOf(first), u"40"_s);
    EXPECT_EQ(widthOf(second), u"50"_s);
    EXPECT_EQ(widthOf(first), u"40"_s);
}

TEST_F(PropertiesKept, OfAnUnreadableFileAreEmpty)
{
    EXPECT_EQ(widthOf(folder.path(u"none.jpg"_s)), QString());
}
