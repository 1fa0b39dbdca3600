// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <support/iptc_block.h>
#include <support/result_printing.h>

#include <QDir>

using namespace brenvaldo;
using testing::ElementsAre;

namespace {

constexpr int strip = 0;
constexpr int replace = 1;
constexpr int prefix = 2;
constexpr int postfix = 3;
constexpr int numbering = 4;

/// A run of the real renaming over files of a folder.
class FileRenaming : public test::ControllerTest
{
protected:
    FileRenaming()
    {
        restoreRun("fileRenaming");
        select("fileRenaming");
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
    }

    void addFile(const QString& name, const QByteArray& contents = "x")
    {
        const QString path = folder.path(name);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        photos.append(entry(path, u"S"_s));
    }

    /// A photo whose caption, and so its search attribute "Description", is that text.
    void addPhotoWithCaption(const QString& name, const QByteArray& caption)
    {
        const QByteArray iptc = test::iptcSegmentContents(test::iptcDataSet(120, caption));
        photos.append(
            entry(test::PhotoBuilder().jpegSegment('\xED', iptc).write(folder.path(name)), u"L"_s)
        );
        panel.cbxPrefixMetaData.setTitles({u""_s, u"Description"_s});
        panel.cbxPrefixMetaData.selectIndex(1);
        panel.tbvFileRenaming.selectIndex(prefix);
    }

    void dryRun(int state = 1)
    {
        panels.vwShowPreview.cbShowPreview.setState(state);
        actions.send(u"hLoadImages"_s);
    }
    void run() { dryRun(0); }

    [[nodiscard]] QStringList written() const
    {
        return QDir(folder.path(u"out"_s)).entryList(QDir::Files | QDir::Hidden);
    }
    [[nodiscard]] QStringList newNames() const
    {
        QStringList names;
        for (const auto& item : photos.entries())
            names.append(item.myNewName);
        return names;
    }
    [[nodiscard]] QStringList words() const
    {
        QStringList texts;
        for (const auto& record : journal.records())
            texts.append(imaging::text(record.word));
        return texts;
    }
    [[nodiscard]] QByteArray contents(const QString& name) const
    {
        QFile file(folder.path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    panels::RenamePanel& panel = panels.vwFileManagementRename;
};

} // namespace

TEST_F(FileRenaming, CopiesEachFileUnderItsNewName)
{
    addFile(u"a.jpg"_s, "A");
    addFile(u"b.txt"_s, "B");
    panel.tbvFileRenaming.selectIndex(prefix);
    panel.tfPrefixToAdd.setStringValue(u"x-"_s);

    run();

    EXPECT_THAT(written(), ElementsAre(u"x-a.jpg"_s, u"x-b.txt"_s));
    EXPECT_EQ(contents(u"out/x-b.txt"_s), "B");
    EXPECT_EQ(contents(u"a.jpg"_s), "A");
    EXPECT_THAT(words(), ElementsAre(u"OK"_s, u"OK"_s));
    EXPECT_EQ(journal.records().first().target, folder.path(u"out/x-a.jpg"_s));
}

TEST_F(FileRenaming, FollowsTheTab)
{
    addFile(u"photo.jpg"_s);
    panel.tfStripNumberOfChar.setStringValue(u"2"_s);
    panel.pubReplaceCase.selectIndex(2);
    panel.tfPrefixToAdd.setStringValue(u"a"_s);
    panel.tfPostfixToAdd.setStringValue(u"z"_s);
    panel.tfNumberingDigits.setStringValue(u"3"_s);

    QStringList names;
    for (const int tab : {strip, replace, prefix, postfix, numbering}) {
        panel.tbvFileRenaming.selectIndex(tab);
        dryRun();
        names += newNames();
    }

    EXPECT_THAT(
        names,
        ElementsAre(
            u"oto.jpg"_s, u"PHOTO.JPG"_s, u"aphoto.jpg"_s, u"photoz.jpg"_s, u"photo001.jpg"_s
        )
    );
    EXPECT_TRUE(written().isEmpty());
    EXPECT_TRUE(journal.records().first().target.isEmpty());
}

TEST_F(FileRenaming, KeepsWhatStandsAtTheNewName)
{
    addFile(u"a.jpg"_s, "new");
    addFile(u"out/xa.jpg"_s, "old");
    photos.removeAt(1);
    panel.tbvFileRenaming.selectIndex(prefix);
    panel.tfPrefixToAdd.setStringValue(u"x"_s);

    run();

    EXPECT_EQ(contents(u"out/xa.jpg"_s), "old");
    EXPECT_THAT(words(), ElementsAre(u"EXISTS"_s));
}

TEST_F(FileRenaming, FreesTheDestinationFromWhatKilledProcessesLeft)
{
    const QString left = folder.write(u"out/.brenvaldo-0123abcd"_s, "half a copy");

    run();

    EXPECT_FALSE(QFile::exists(left));
}

TEST_F(FileRenaming, TellsOfAFileThatCouldNotBeCopied)
{
    photos.append(entry(folder.path(u"missing.jpg"_s), u"S"_s));
    panel.tbvFileRenaming.selectIndex(prefix);

    run();

    EXPECT_THAT(words(), ElementsAre(u"Failed"_s));
    EXPECT_TRUE(written().isEmpty());
}

TEST_F(FileRenaming, NumbersFrom1UntilTheDigitsAreUsedUp)
{
    for (int i = 0; i < 120; ++i)
        addFile(u"f%1.jpg"_s.arg(i));
    panel.tbvFileRenaming.selectIndex(numbering);
    panel.tfNumberingStartFrom.setStringValue(u"50"_s);
    panel.tfNumberingDigits.setStringValue(u"3"_s);

    dryRun();

    EXPECT_EQ(newNames().at(0), u"f0001.jpg"_s);
    EXPECT_EQ(newNames().at(98), u"f98099.jpg"_s);
    EXPECT_EQ(newNames().at(99), u"f99.jpg"_s);
    EXPECT_EQ(newNames().at(119), u"f119.jpg"_s);
}

TEST_F(FileRenaming, GivesTheNamesOfItsDryRun)
{
    addFile(u"a.jpg"_s);
    addFile(u"b.jpg"_s);
    panel.tbvFileRenaming.selectIndex(numbering);
    panel.tfNumberingDigits.setStringValue(u"2"_s);
    panel.mxNumberingPosition.selectRow(1);
    panel.tfNumberingPostFixToAdd.setStringValue(u"_"_s);

    dryRun();
    run();

    EXPECT_EQ(newNames(), written());
    EXPECT_THAT(written(), ElementsAre(u"01_a.jpg"_s, u"02_b.jpg"_s));
}

TEST_F(FileRenaming, EndsAtTheFirstRangeBeyondItsName)
{
    addFile(u"abcdefghij.jpg"_s);
    addFile(u"abcdefghijklmnop.jpg"_s);
    panel.tbvFileRenaming.selectIndex(strip);
    panel.tfStripCharStart.setStringValue(u"8"_s);
    panel.tfStripCharStop.setStringValue(u"9"_s);

    run();

    EXPECT_TRUE(written().isEmpty());
    EXPECT_TRUE(panels.window.myProgressBar.isHidden());
}

TEST_F(FileRenaming, NeverLeavesTheDestinationByWhatAPhotoTells)
{
    addPhotoWithCaption(u"a.jpg"_s, "../../up\nand away/");

    run();

    EXPECT_THAT(written(), ElementsAre(u"..-..-up and away-a.jpg"_s));
}

TEST_F(FileRenaming, ShortensANameThatNoFolderCanHold)
{
    addPhotoWithCaption(u"a.jpg"_s, QByteArray(300, 'c'));

    run();

    EXPECT_THAT(written(), ElementsAre(QString(250, u'c') + u".jpg"_s));
    EXPECT_THAT(words(), ElementsAre(u"OK"_s));
}

TEST_F(FileRenaming, TakesNamesAsLongAsAFolderHolds)
{
    const QString longest = QString(83, u'\u20ac') + u"a.jpg"_s;
    ASSERT_EQ(longest.toUtf8().size(), 254);
    addFile(longest + u'g');
    panel.tfStripNumberOfChar.setStringValue(u"1"_s);
    panel.pubReplaceCase.selectIndex(2);
    panel.tfPrefixToAdd.setStringValue(u"pre"_s);
    panel.tfPostfixToAdd.setStringValue(u"post"_s);
    panel.mxNumberingPosition.selectRow(1);

    for (const int tab : {strip, replace, prefix, postfix, numbering}) {
        panel.tbvFileRenaming.selectIndex(tab);
        run();
    }

    EXPECT_THAT(words(), ElementsAre(u"OK"_s, u"OK"_s, u"OK"_s, u"OK"_s, u"OK"_s));
    EXPECT_TRUE(written().contains(u"pre"_s + QString(82, u'\u20ac') + u".jpgg"_s));
}

TEST_F(FileRenaming, LeavesTheFilesWhereTheDestinationTakesNone)
{
    addFile(u"a.jpg"_s, "A");
    addFile(u"no folder"_s);
    photos.removeAt(1);
    panel.tbvFileRenaming.selectIndex(prefix);
    panel.tfPrefixToAdd.setStringValue(u"x"_s);

    for (const QString& destination :
         {u"/proc/"_s, folder.path(u"missing/"_s), folder.path(u"no folder/"_s)}) {
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(destination);
        run();
    }

    EXPECT_THAT(words(), ElementsAre(u"Failed"_s, u"Failed"_s, u"Failed"_s));
    EXPECT_EQ(contents(u"a.jpg"_s), "A");
    EXPECT_FALSE(QFile::exists(folder.path(u"missing"_s)));
}

TEST_F(FileRenaming, FailsWhereNoNameIsLeft)
{
    addFile(u"a..jpg"_s);
    panel.tbvFileRenaming.selectIndex(strip);
    panel.btStripPreserveExtension.setState(0);
    panel.tfStripChar.setStringValue(u"a..jpg"_s);

    run();

    EXPECT_THAT(words(), ElementsAre(u"Failed"_s));
    EXPECT_TRUE(journal.records().first().target.isEmpty());
}

TEST_F(FileRenaming, KeepsUnusualNames)
{
    for (const QString& name : {u".a"_s, u"-rf"_s, u"l\nine"_s, u"\U0001F600.jpg"_s})
        addFile(name);
    panel.tbvFileRenaming.selectIndex(postfix);

    run();

    EXPECT_EQ(written().size(), 4);
    EXPECT_TRUE(written().contains(u"l\nine"_s));
    EXPECT_TRUE(written().contains(u"\U0001F600.jpg"_s));
}
