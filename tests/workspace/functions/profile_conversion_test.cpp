// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/color_profiles.h>
#include <support/environment.h>
#include <support/pixel_probe.h>

#include <QDir>

using namespace brenvaldo;

namespace {

/// A run of the real function on a machine with one profile of RGB and one of grey.
class ProfileConversionRun : public test::ControllerTest
{
protected:
    ProfileConversionRun()
    {
        row("profileConversion")
            = *workspace::Functions(workspace::functions()).withId(u"profileConversion"_s);
        QDir(folder.path()).mkpath(u"icc"_s);
        (void)folder.write(u"icc/wide.icc"_s, test::wideProfile());
        (void)folder.write(u"icc/gray.icc"_s, test::grayProfile());
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
        panels.vwFileType.pubFileType.selectIndex(1);
        photos.append(entry(
            test::PhotoBuilder().size(80, 40).corners().write(folder.path(u"a.jpg"_s)), u"L"_s
        ));
        photos.select(0);
        user.pick(panels.window.pubEditPhoto, 4);
    }

    QByteArray writtenProfile()
    {
        actions.send(u"hLoadImages"_s);
        return test::openedPhoto(folder.path(u"out/a.png"_s)).image()->iccProfile();
    }

    test::Environment home{"XDG_DATA_HOME", folder.path().chopped(1).toUtf8()};
    test::Environment machine{"XDG_DATA_DIRS", "/nowhere"};
    panels::ProfilePanel& profile = panels.vwProfileConversion;
};

} // namespace

TEST_F(ProfileConversionRun, FillsTheListWhenItIsChosen)
{
    EXPECT_EQ(profile.pubInstalledICCProfiles.count(), 2);
    EXPECT_EQ(profile.pubInstalledICCProfiles.indexOfSelectedItem(), 0);
}

TEST_F(ProfileConversionRun, WritesTheChosenProfile)
{
    const QByteArray first = writtenProfile();
    profile.pubInstalledICCProfiles.selectIndex(1);
    const QByteArray second = writtenProfile();

    EXPECT_NE(first, second);
    EXPECT_TRUE(first == test::wideProfile() || second == test::wideProfile());
    EXPECT_TRUE(first == test::grayProfile() || second == test::grayProfile());
}

TEST_F(ProfileConversionRun, ShowsTheConvertedPhoto)
{
    panels.vwShowPreview.cbShowPreview.setState(1);

    user.pick(profile.pubInstalledICCProfiles, 1);

    ASSERT_TRUE(showsOverlay());
    const QByteArray shown = panels.window.myTemplateOverlayPreview.image()->iccProfile();
    EXPECT_EQ(shown, writtenProfile());
}
