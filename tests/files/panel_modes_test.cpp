// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/panel_modes.h>

#include <platform/storage/file_system.h>

#include <support/case_name.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::files;
using namespace brenvaldo::test;
using brenvaldo::platform::storage::createFolder;

namespace {

constexpr auto files = PanelMode::Chooses::Files;
constexpr auto folder = PanelMode::Chooses::Folder;
constexpr auto plain = PanelForm::Plain;
constexpr auto oc = PanelForm::OC;

struct ModeCase
{
    const char* name;
    QString mode;
    PanelForm form;
    PanelMode::Chooses chooses;
    QString allowed;
    QString scanned;
};

void PrintTo(const ModeCase& modeCase, std::ostream* out) { *out << modeCase.name; }

class PanelModes : public testing::TestWithParam<ModeCase>
{
};

const QString longA = u"pdf png jpg jpeg gif tif tiff tga targa psd HEIC"_qs;
const QString shortA = u"pdf png jpg jpeg gif tif tiff"_qs;
const QString listB = u"png jpg jpeg tif tiff HEIC"_qs;
const QString listE = u"jpg jpeg tif tiff"_qs;
const QString listW = u"jpg jpeg tif tiff png JPG JPEG TIF TIFF PNG"_qs;
const QString eight = u"jpg jpeg tif tiff JPG JPEG TIF TIFF"_qs;
const QString fourteen = u"jpg jpeg tif tiff JPG JPEG TIF TIFF pdf png gif PDF PNG GIF"_qs;

const ModeCase modeCases[] = {
    {"EmmPlain", u"EMM"_qs, plain, files, listE, u""_qs},
    {"EmmOc", u"EMM"_qs, oc, files, listE, u""_qs},
    {"EmmDirOc", u"EMMDir"_qs, oc, folder, shortA, eight},
    {"BatchSortPlain", u"batchSort"_qs, plain, files, longA, u""_qs},
    {"SortPlain", u"sort"_qs, plain, files, longA, u""_qs},
    {"SortOc", u"sort"_qs, oc, files, shortA, u""_qs},
    {"WatermarkPlain", u"watermark"_qs, plain, files, listB, u""_qs},
    {"RescalePlain", u"rescale"_qs, plain, files, longA, u""_qs},
    {"RescaleOc", u"rescale"_qs, oc, files, shortA, u""_qs},
    {"RenamePlain", u"rename"_qs, plain, files, u""_qs, u""_qs},
    {"RenameOc", u"rename"_qs, oc, files, u""_qs, u""_qs},
    {"RenameDirPlain", u"renameDir"_qs, plain, folder, u""_qs, u""_qs},
    {"RenameDirOc", u"renameDir"_qs, oc, folder, u""_qs, u""_qs},
    {"BatchSortImagesOc", u"batchSortImages"_qs, oc, folder, u""_qs, fourteen},
    {"SortDirPlain", u"sortDir"_qs, plain, folder, longA, fourteen},
    {"SortDirOc", u"sortDir"_qs, oc, folder, shortA, fourteen},
    {"WatermarkDirPlain", u"WatermarkDir"_qs, plain, folder, longA, listW},
    {"WatermarkFilesPlain", u"WatermarkFiles"_qs, plain, files, listW, u""_qs},
};

} // namespace

TEST_P(PanelModes, AskForTheirFiles)
{
    const auto mode = panelMode(GetParam().mode, GetParam().form);

    ASSERT_TRUE(mode);
    EXPECT_EQ(mode->chooses, GetParam().chooses);
    EXPECT_EQ(mode->allowedTypes.join(u' '), GetParam().allowed);
    EXPECT_EQ(mode->scannedExtensions.join(u' '), GetParam().scanned);
}

INSTANTIATE_TEST_SUITE_P(Files, PanelModes, testing::ValuesIn(modeCases), CaseName{});

TEST(PanelMode, IsNothingWhereTheFormDoesNotKnowIt)
{
    for (const QString& name : {u"EMMDir"_qs, u"batchSortImages"_qs, u"nonsense"_qs, u""_qs})
        EXPECT_FALSE(panelMode(name, plain)) << name.toStdString();
    for (const QString& name :
         {u"batchSort"_qs, u"watermark"_qs, u"WatermarkDir"_qs, u"WatermarkFiles"_qs, u"emm"_qs})
        EXPECT_FALSE(panelMode(name, oc)) << name.toStdString();
}

TEST(PanelMode, HasAMessageForTheBatchSortOnly)
{
    EXPECT_EQ(panelMode(u"batchSortImages"_qs, oc)->message, u"Choose source folder"_qs);
    EXPECT_EQ(panelMode(u"sortDir"_qs, oc)->message, u""_qs);
}

TEST(ScannedFiles, GoesDownAllLevelsAndSkipsHiddenFiles)
{
    const TemporaryFolder root;
    createFolder(root.path(u"inner/deep.jpg"_qs));
    createFolder(root.path(u".hidden"_qs));
    static_cast<void>(root.write(u"a.jpg"_qs, ""));
    static_cast<void>(root.write(u".b.jpg"_qs, ""));
    static_cast<void>(root.write(u".hidden/c.jpg"_qs, ""));
    static_cast<void>(root.write(u"inner/deep.jpg/d.jpg"_qs, ""));
    static_cast<void>(root.write(u"inner/.DS_Store"_qs, ""));
    static_cast<void>(root.write(u"inner/e.txt"_qs, ""));

    EXPECT_EQ(
        scannedFiles(root.path(), {u"jpg"_qs}),
        (QStringList{root.path(u"a.jpg"_qs), root.path(u"inner/deep.jpg/d.jpg"_qs)})
    );
}

TEST(ScannedFiles, TakesMixedLetterCaseWithoutAFilterOnly)
{
    const TemporaryFolder root;
    const QString lower = root.write(u"a.jpg"_qs, "");
    const QString mixed = root.write(u"b.Jpg"_qs, "");
    const QString upper = root.write(u"c.JPG"_qs, "");

    const auto filtered = panelMode(u"sortDir"_qs, oc)->scannedExtensions;
    const auto unfiltered = panelMode(u"renameDir"_qs, oc)->scannedExtensions;

    EXPECT_EQ(scannedFiles(root.path(), filtered), (QStringList{lower, upper}));
    EXPECT_EQ(scannedFiles(root.path(), unfiltered), (QStringList{lower, mixed, upper}));
}

TEST(ScannedFiles, FindsNothingInAMissingFolder)
{
    EXPECT_EQ(scannedFiles(u"/nowhere"_qs, {}), QStringList());
}
