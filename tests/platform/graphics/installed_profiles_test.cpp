// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <platform/graphics/installed_profiles.h>

#include <support/color_profiles.h>
#include <support/environment.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <sys/stat.h>

using namespace brenvaldo;
using platform::graphics::ColorModel;
using platform::graphics::ColorSpace;
using platform::graphics::installedColorSpaces;

namespace {

class InstalledProfiles : public testing::Test
{
protected:
    [[nodiscard]] std::vector<ColorSpace> found() const
    {
        return installedColorSpaces({folder.path()});
    }

    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const ColorSpace& space : found())
            names.append(space.name);
        return names;
    }

    test::TemporaryFolder folder;
};

} // namespace

TEST_F(InstalledProfiles, HaveTheModelAndTheBytesOfTheirFile)
{
    (void)folder.write(u"gray.icc"_s, test::grayProfile());
    (void)folder.write(u"wide.icm"_s, test::wideProfile());

    const auto spaces = found();

    ASSERT_EQ(spaces.size(), 2U);
    EXPECT_EQ(spaces.at(0).model, ColorModel::Rgb);
    EXPECT_EQ(spaces.at(0).profile, test::wideProfile());
    EXPECT_FALSE(spaces.at(0).name.isEmpty());
    EXPECT_EQ(spaces.at(1).model, ColorModel::Gray);
    EXPECT_EQ(spaces.at(1).profile, test::grayProfile());
}

TEST_F(InstalledProfiles, AreFoundInFoldersBelowAndThroughLinks)
{
    QDir(folder.path()).mkpath(u"vendor/deep"_s);
    (void)folder.write(u"vendor/deep/WIDE.ICC"_s, test::wideProfile());
    (void)folder.write(u"plain.txt"_s, test::grayProfile());
    QFile::link(folder.path(), folder.path(u"vendor/loop"_s));

    EXPECT_EQ(found().size(), 1U);
}

TEST_F(InstalledProfiles, AreNoPipes)
{
    const QStringList withoutFiles = names();
    const QString path = folder.path(u"a.icc"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);

    EXPECT_EQ(names(), withoutFiles);
}

TEST_F(InstalledProfiles, CountOnceHoweverOftenTheyAreInstalled)
{
    (void)folder.write(u"a.icc"_s, test::wideProfile());
    (void)folder.write(u"b.icc"_s, test::wideProfile());
    (void)folder.write(u"other.icc"_s, test::wideProfile(1000));

    EXPECT_EQ(found().size(), 2U);
}

TEST_F(InstalledProfiles, LeaveOutBrokenOnesAndThoseThatMakeNoPixels)
{
    (void)folder.write(u"wide.icc"_s, test::wideProfile());
    (void)folder.write(u"empty.icc"_s, {});
    (void)folder.write(u"text.icc"_s, "no profile at all");
    (void)folder.write(u"cut.icc"_s, test::wideProfile().left(200));
    (void)folder.write(u"hollow.icc"_s, test::emptyProfile());
    (void)folder.write(u"scanner.icc"_s, test::scannerProfile());

    EXPECT_EQ(found().size(), 1U);
}

TEST_F(InstalledProfiles, StandByTheirModels)
{
    (void)folder.write(u"a.icc"_s, test::grayProfile());
    (void)folder.write(u"b.icc"_s, test::labProfile());
    (void)folder.write(u"c.icc"_s, test::wideProfile());
    (void)folder.write(u"d.icc"_s, test::blackInkProfile());

    std::vector<ColorModel> models;
    for (const ColorSpace& space : found())
        models.push_back(space.model);

    using enum ColorModel;
    EXPECT_EQ(models, (std::vector{Cmyk, Rgb, Lab, Gray}));
}

TEST_F(InstalledProfiles, HaveSrgbWhereNoRgbIsInstalled)
{
    (void)folder.write(u"gray.icc"_s, test::grayProfile());

    const auto spaces = found();

    ASSERT_EQ(spaces.size(), 2U);
    EXPECT_EQ(spaces.at(0).model, ColorModel::Rgb);
    EXPECT_TRUE(spaces.at(0).name.startsWith(u"sRGB"_s)) << spaces.at(0).name.toStdString();
    EXPECT_EQ(installedColorSpaces({u"/nowhere"_s}).size(), 1U);
}

TEST(ProfileFolders, AreThoseOfTheUserAndOfTheMachine)
{
    const test::Environment home("XDG_DATA_HOME", "/tmp/data-home");
    const test::Environment dirs("XDG_DATA_DIRS", "/tmp/first:/tmp/second");

    EXPECT_EQ(
        platform::graphics::profileFolders(),
        (QStringList{
            u"/tmp/data-home/icc"_s,
            QDir::homePath() + u"/.color/icc"_s,
            u"/tmp/first/color/icc"_s,
            u"/tmp/second/color/icc"_s,
            u"/var/lib/colord/icc"_s})
    );
}
