// SPDX-License-Identifier: GPL-3.0-or-later
#include "controller_fixture.h"

#include <workspace/workspace.h>

#include <support/environment.h>
#include <support/exif_block.h>
#include <support/iptc_block.h>

#include <QDir>
#include <QDirIterator>

using namespace brenvaldo;

namespace {

/// What photos may tell of themselves.
const QList<QByteArray>& hostileTexts()
{
    static const QList<QByteArray> texts{
        "../../up",
        "/etc/passwd",
        "..",
        ".",
        "/",
        "a/../../b/",
        "two\nlines\r\n",
        "\x1b]0;title\x07",
        "~",
        "-rf *",
        QByteArray(300, 'c'),
        QByteArray("\xc3\xa9").repeated(200),
        QByteArray("\xf0\x9f\x98\x80").repeated(75),
        QByteArray("\xff\xfe\x80")};
    return texts;
}

/// The whole program on photos with such texts, and a folder that everything has to go into.
class HostileMetadata : public testing::TestWithParam<QString>
{
protected:
    HostileMetadata()
    {
        program.start();
        QDir().mkpath(folder.path(u"in"_s));
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
        panels.vwFileManagementSorting.tfSortDestination01.setStringValue(folder.path(u"out/"_s));
        panels.vwWatermark.cbFontList.setTitles({u"DejaVu Sans Mono"_s});
        panels.vwWatermark.tvWaterMarkText.setStringValue(u"x"_s);
        panels.vwResizePhotos.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(u"10"_s);
        addPhotos();
    }

    void addPhotos()
    {
        QStringList paths;
        for (const QByteArray& text : hostileTexts()) {
            const QString name = u"in/p%1.jpg"_s.arg(paths.size() + 10);
            const QByteArray iptc = test::iptcSegmentContents(test::iptcDataSet(120, text));
            paths.append(test::PhotoBuilder()
                             .exif(test::exifBlock({.make = text}))
                             .jpegSegment('\xED', iptc)
                             .write(folder.path(name)));
        }
        program.openFiles(paths);
    }

    void select(const char* function, int index)
    {
        workspace::cSelectedFunction::sharedModel().myString = QString::fromLatin1(function);
        panels.window.pubEditPhoto.selectIndex(index);
    }
    void run() { program.actions().send(u"hLoadImages"_s); }

    /// The transform that takes the attribute into the name, as a row of the chain.
    void chain(const QString& action)
    {
        auto& list = panels.vwWatermark.cActionsTWMArrayController;
        list.setObjects(
            {{u"n\t \t"_s + action + u"\tBrenvaldo9\t\t"_s + GetParam() + u"\t0\t0\t1"_s}}
        );
    }

    [[nodiscard]] QStringList everything() const
    {
        QStringList paths;
        QDirIterator entries(
            folder.path(),
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
            QDirIterator::Subdirectories
        );
        while (entries.hasNext())
            paths.append(entries.next().sliced(folder.path().size()));
        paths.sort();
        return paths;
    }

    /// What `work` adds stands in the destination itself, one file a photo.
    template <class Work>
    void expectOnlyInDestination(Work work)
    {
        const QStringList before = everything();
        work();
        int added = 0;
        for (const QString& path : everything()) {
            if (before.contains(path))
                continue;
            ++added;
            EXPECT_TRUE(path.startsWith(u"out/"_s) && path.count(u'/') == 1) << path.toStdString();
            EXPECT_TRUE(QFileInfo(folder.path(path)).isFile()) << path.toStdString();
            EXPECT_FALSE(path.contains(u'\n') || path.contains(u'\x1b')) << path.toStdString();
        }
        EXPECT_EQ(added, hostileTexts().size());
    }

    test::TemporaryFolder folder;
    test::TemporaryFolder home;
    test::Environment data{"XDG_DATA_HOME", home.path().toUtf8()};
    platform::UserDefaults defaults{home.path(u"defaults"_s)};
    test::QueuedChooser chooser;
    test::RecordingDesktop desktop;
    workspace::Workspace program{{.chooser = chooser, .desktop = desktop, .defaults = defaults}};
    panels::Panels& panels = program.panels();
};

} // namespace

TEST_P(HostileMetadata, StaysInTheDestinationOfARenaming)
{
    auto& panel = panels.vwFileManagementRename;
    panel.cbxPrefixMetaData.selectItemWithObjectValue(GetParam());
    panel.cbxPostfixMetaData.selectItemWithObjectValue(GetParam());
    panel.btPostfixBeforeExtension.setState(0);
    select("fileRenaming", 0);

    for (const int tab : {2, 3}) {
        panel.tbvFileRenaming.selectIndex(tab);
        expectOnlyInDestination([this] { run(); });
    }
}

TEST_P(HostileMetadata, StaysInTheDestinationOfAResize)
{
    select("resizePhotos", 8);
    for (const QString& action : {u"Prefix"_s, u"Postfix"_s}) {
        chain(action);
        expectOnlyInDestination([this] { run(); });
    }
}

TEST_P(HostileMetadata, StaysInTheDestinationOfAWatermark)
{
    select("textWM", 0);
    for (const QString& action : {u"Prefix"_s, u"Postfix"_s}) {
        chain(action);
        expectOnlyInDestination([this] { run(); });
    }
}

TEST_P(HostileMetadata, StaysInTheDestinationOfAConversion)
{
    select("batchFileConvert", 0);
    panels.vwFileType.pubFileType.selectIndex(1);
    for (const QString& action : {u"Prefix"_s, u"Postfix"_s}) {
        chain(action);
        expectOnlyInDestination([this] { run(); });
    }
}

TEST_P(HostileMetadata, StaysInTheFolderOfASorting)
{
    const auto sortAll = [this](const QString& action) {
        for (int index = 0; index < program.photos().count(); ++index) {
            program.photos().select(index);
            program.actions().send(u"cGUIcontrols."_s + action, {.tag = 1});
        }
    };
    chain(u"Prefix"_s);
    expectOnlyInDestination([&] { sortAll(u"hCopyFileToFolder"_s); });
    chain(u"Postfix"_s);
    expectOnlyInDestination([&] { sortAll(u"hCopyFileToFolder"_s); });
    panels.vwFileType.pubFileType.selectIndex(1);
    expectOnlyInDestination([&] { sortAll(u"hCopyFileToFolder"_s); });
}

INSTANTIATE_TEST_SUITE_P(
    OfExifAndIptc, HostileMetadata, testing::Values(u"AcquisitionMake"_s, u"Description"_s)
);
