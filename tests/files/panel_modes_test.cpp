// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/panel_modes.h>

#include <platform/storage/file_system.h>

#include <support/case_name.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
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

const QString longA = u"pdf png jpg jpeg gif tif tiff tga targa psd HEIC"_s;
const QString shortA = u"pdf png jpg jpeg gif tif tiff"_s;
const QString listB = u"png jpg jpeg tif tiff HEIC"_s;
const QString listE = u"jpg jpeg tif tiff"_s;
const QString listW = u"jpg jpeg tif tiff png JPG JPEG TIF TIFF PNG"_s;
const QString eight = u"jpg jpeg tif tiff JPG JPEG TIF TIFF"_s;
const QString fourteen = u"jpg jpeg tif tiff JPG JPEG TIF TIFF pdf png gif PDF PNG GIF"_s;

const ModeCase modeCases[] = {
    {"EmmPlain", u"EMM"_s, plain, files, listE, u""_s},
    {"EmmOc", u"EMM"_s, oc, files, listE, u""_s},
    {"EmmDirOc", u"EMMDir"_s, oc, folder, shortA, eight},
    {"BatchSortPlain", u"batchSort"_s, plain, files, longA, u""_s},
    {"SortPlain", u"sort"_s, plain, files, longA, u""_s},
    {"SortOc", u"sort"_s, oc, files, shortA, u""_s},
    {"WatermarkPlain", u"watermark"_s, plain, files, listB, u""_s},
    {"RescalePlain", u"rescale"_s, plain, files, longA, u""_s},
    {"RescaleOc", u"rescale"_s, oc, files, shortA, u""_s},
    {"RenamePlain", u"rename"_s, plain, files, u""_s, u""_s},
    {"RenameOc", u"rename"_s, oc, files, u""_s, u""_s},
    {"RenameDirPlain", u"renameDir"_s, plain, folder, u""_s, u""_s},
    {"RenameDirOc", u"renameDir"_s, oc, folder, u""_s, u""_s},
    {"BatchSortImagesOc", u"batchSortImages"_s, oc, folder, u""_s, fourteen},
    {"SortDirPlain", u"sortDir"_s, plain, folder, longA, fourteen},
    {"SortDirOc", u"sortDir"_s, oc, folder, shortA, fourteen},
    {"WatermarkDirPlain", u"WatermarkDir"_s, plain, folder, longA, listW},
    {"WatermarkFilesPlain", u"WatermarkFiles"_s, plain, files, listW, u""_s},
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
    for (const QString& name : {u"EMMDir"_s, u"batchSortImages"_s, u"nonsense"_s, u""_s})
        EXPECT_FALSE(panelMode(name, plain)) << name.toStdString();
    for (const QString& name :
         {u"batchSort"_s, u"watermark"_s, u"WatermarkDir"_s, u"WatermarkFiles"_s, u"emm"_s})
        EXPECT_FALSE(panelMode(name, oc)) << name.toStdString();
}

TEST(PanelMode, HasAMessageForTheBatchSortOnly)
{
    EXPECT_EQ(panelMode(u"batchSortImages"_s, oc)->message, u"Choose source folder"_s);
    EXPECT_EQ(panelMode(u"sortDir"_s, oc)->message, u""_s);
}

TEST(ScannedFiles, GoesDownAllLevelsAndSkipsHiddenFiles)
{
    const TemporaryFolder root;
    createFolder(root.path(u"inner/deep.jpg"_s));
    createFolder(root.path(u".hidden"_s));
    static_cast<void>(root.write(u"a.jpg"_s, ""));
    static_cast<void>(root.write(u".b.jpg"_s, ""));
    static_cast<void>(root.write(u".hidden/c.jpg"_s, ""));
    static_cast<void>(root.write(u"inner/deep.jpg/d.jpg"_s, ""));
    static_cast<void>(root.write(u"inner/.DS_Store"_s, ""));
    static_cast<void>(root.write(u"inner/e.txt"_s, ""));

    EXPECT_EQ(
        scannedFiles(root.path(), {u"jpg"_s}),
        (QStringList{root.path(u"a.jpg"_s), root.path(u"inner/deep.jpg/d.jpg"_s)})
    );
}

TEST(ScannedFiles, TakesMixedLetterCaseWithoutAFilterOnly)
{
    const TemporaryFolder root;
    const QString lower = root.write(u"a.jpg"_s, "");
    const QString mixed = root.write(u"b.Jpg"_s, "");
    const QString upper = root.write(u"c.JPG"_s, "");

    const auto filtered = panelMode(u"sortDir"_s, oc)->scannedExtensions;
    const auto unfiltered = panelMode(u"renameDir"_s, oc)->scannedExtensions;

    EXPECT_EQ(scannedFiles(root.path(), filtered), (QStringList{lower, upper}));
    EXPECT_EQ(scannedFiles(root.path(), unfiltered), (QStringList{lower, mixed, upper}));
}

TEST(ScannedFiles, FindsNothingInAMissingFolder)
{
    EXPECT_EQ(scannedFiles(u"/nowhere"_s, {}), QStringList());
}
