// SPDX-License-Identifier: GPL-3.0-or-later
#include "controller_fixture.h"

#include <files/keep_number.h>
#include <platform/foundation/exceptions.h>
#include <support/environment.h>
#include <support/iptc_block.h>

#include <QDir>

using namespace brenvaldo;
using testing::ElementsAre;

namespace {

class ActionList : public test::ControllerTest
{
protected:
    ActionList() { neighbours.hRenameTWMFile = workspace::cGUIcontrols::hRenameTWMFile; }

    void import(const QString& name, const QByteArray& contents)
    {
        const QString path = folder.path(name);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        file.close();
        chooser.answers.append(QStringList{path});
        actions.send(u"cGUIcontrols.hImportTWMCActions"_s);
    }

    [[nodiscard]] QStringList rows() const
    {
        QStringList lines;
        for (const QStringList& row : chain.arrangedObjects())
            lines.append(row.value(0));
        return lines;
    }

    [[nodiscard]] QString outputName(const QString& path)
    {
        return guiControls.driver().outputName(path);
    }

    controls::ArrayController& chain = panels.vwWatermark.cActionsTWMArrayController;
};

} // namespace

TEST_F(ActionList, GrowsByTheFileThatIsChosen)
{
    defaults.set(u"cActionsDestination"_s, u"/actions"_s);

    import(u"Date first.c-action"_s, "Prefix\tBrenvaldo9\tx\t\t0\t0");

    EXPECT_THAT(
        rows(),
        ElementsAre(u"Date first\t"_s + QString(65, u' ') + u"\tPrefix\tBrenvaldo9\tx\t\t0\t0"_s)
    );
    EXPECT_EQ(chooser.panels.first().startFolder, u"/actions"_s);
}

TEST_F(ActionList, StaysAsItIsWithoutAnAnswer)
{
    actions.send(u"cGUIcontrols.hImportTWMCActions"_s);

    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(ActionList, LosesTheSelectedRowOnly)
{
    for (const QString& row : {u"a"_s, u"b"_s, u"c"_s})
        chain.addObject({row});

    actions.send(u"cGUIcontrols.hRemoveTWMCActions"_s);
    EXPECT_EQ(rows().size(), 3);

    panels.vwWatermark.tvwTWMActions.selectRow(1);
    actions.send(u"cGUIcontrols.hRemoveTWMCActions"_s);
    EXPECT_THAT(rows(), ElementsAre(u"a"_s, u"c"_s));
}

TEST_F(ActionList, GoesIntoAPresetAndComesBack)
{
    EXPECT_EQ(guiControls.hGetTWMActionsToStore(), u"NO ACTIONS"_s);
    import(u"a.c-action"_s, "Prefix\tBrenvaldo9\tx\t\t0\t0");

    const QString chainText = guiControls.hGetTWMActionsToStore();
    guiControls.hLoadTWMActions(chainText);

    EXPECT_EQ(chainText, u"a\t\tPrefix\tBrenvaldo9\tx\t\t0\t0"_s);
    EXPECT_THAT(
        rows(),
        ElementsAre(
            u"a\t"_s + QString(65, u' ') + u"\tPrefix\tBrenvaldo9\tx\t\t0\t0"_s,
            u"a\t"_s + QString(46, u' ') + u"\tPrefix\tBrenvaldo9\tx\t\t0\t0"_s
        )
    );
}

TEST_F(ActionList, NamesWhatARunWrites)
{
    import(u"a.c-action"_s, "Prefix\tBrenvaldo9\tx-\t\t0\t0");
    import(u"b.c-action"_s, "Replace\tBrenvaldo9\t2\t\t\t\t\t");

    EXPECT_EQ(outputName(u"/in/photo.jpg"_s), u"X-PHOTO.JPG"_s);
}

TEST_F(ActionList, AdvancesTheNumberOnceAnAction)
{
    import(u"a.c-action"_s, "Numbering\tBrenvaldo9\t1\t_\t\t3\t0\t1");
    import(u"b.c-action"_s, "Numbering\tBrenvaldo9\t1\t_\t\t3\t0\t1");
    files::cKeepNumber::sharedNumber().myNumberString = u"0"_s;

    EXPECT_EQ(outputName(u"/in/a.jpg"_s), u"a_001_002.jpg"_s);
    EXPECT_EQ(outputName(u"/in/b.jpg"_s), u"b_003_004.jpg"_s);
}

TEST_F(ActionList, RaisesForAFileThatIsNoAction)
{
    import(u"a.c-action"_s, "\xff\xfe");

    EXPECT_THAT(rows(), ElementsAre(u"a\t"_s + QString(65, u' ') + u'\t'));
    EXPECT_THROW(std::ignore = outputName(u"/in/a.jpg"_s), platform::RangeError);
}

TEST_F(ActionList, EndsTheRunAtARangeError)
{
    restoreRun("resizePhotos");
    select("resizePhotos");
    panels.window.pubEditPhoto.selectIndex(8);
    panels.vwResizePhotos.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(u"10"_s);
    QDir().mkpath(folder.path(u"out"_s));
    panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
    panels.vwShowPreview.cbShowPreview.setState(1);
    photos.append(entry(photo(u"longer name.jpg"_s), u"L"_s));
    photos.append(entry(photo(u"short.jpg"_s), u"L"_s));
    photos.append(entry(photo(u"last long name.jpg"_s), u"L"_s));
    import(u"a.c-action"_s, "Strip\tBrenvaldo9\t\t0\t\t4\t4\t\t0\t0\t1");

    EXPECT_EQ(actions.send(u"hLoadImages"_s), controls::ActionRegistry::Sent::Raised);

    EXPECT_THAT(QDir(folder.path(u"out"_s)).entryList(QDir::Files), ElementsAre(u"lon name.jpg"_s));
    EXPECT_EQ(panels.vwShowPreview.cbShowPreview.state(), 1);
    EXPECT_TRUE(panels.window.myProgressBar.isHidden());
}

TEST_F(ActionList, CannotLeadOutOfTheDestinationByWhatAPhotoTells)
{
    const QByteArray iptc = test::iptcSegmentContents(test::iptcDataSet(120, "../up\n/../"));
    const QString path
        = test::PhotoBuilder().jpegSegment('\xED', iptc).write(folder.path(u"a.jpg"_s));
    import(u"a.c-action"_s, "Postfix\tBrenvaldo9\t/\tDescription\t0\t0\t1");

    EXPECT_EQ(outputName(path), u"a--..-up -..-.jpg"_s);
}

TEST_F(ActionList, LeavesThePlainNameWhereItLeavesNone)
{
    import(u"a.c-action"_s, "Strip\tBrenvaldo9\t\t0\ta.jpg\t\t\t\t0\t0\t0");

    EXPECT_EQ(outputName(u"/in/a.jpg"_s), u"a.jpg"_s);
}

TEST_F(ActionList, GivesTheFilesThatThePanelSavesAnIcon)
{
    const test::Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());
    const test::Environment programs("PATH", folder.path().toUtf8());
    QFile command(folder.write(u"gio"_s, "#!/bin/sh\n"));
    command.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    restoreRun("fileRenaming");

    actions.send(u"cGUIcontrols.hCalledCActionFunc"_s);
    const QDir icons(folder.path(u"data/Brenvaldo/Icons"_s));
    EXPECT_TRUE(icons.entryList(QDir::Files).isEmpty());

    chooser.savePaths.append(folder.path(u"mine"_s));
    actions.send(u"cGUIcontrols.hCalledCActionFunc"_s);
    const QStringList kept = icons.entryList(QDir::Files);
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(QImage(icons.filePath(kept.first())).size(), QSize(256, 256));
}

TEST_F(ActionList, TakesTheFilesThatThePanelSaves)
{
    restoreRun("fileRenaming");
    panels::RenamePanel& panel = panels.vwFileManagementRename;
    panel.tbvFileRenaming.selectIndex(2);
    panel.tfPrefixToAdd.setStringValue(u"x-"_s);
    chooser.savePaths.append(folder.path(u"mine"_s));

    actions.send(u"cGUIcontrols.hCalledCActionFunc"_s);

    EXPECT_EQ(chooser.savePanels.first().suggestedName, u"PrefixFilename.c-action"_s);
    QFile file(folder.path(u"mine.c-action"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "Prefix\tBrenvaldo9\tx-\t\t0\t0");
    chooser.answers.append(QStringList{file.fileName()});
    actions.send(u"cGUIcontrols.hImportTWMCActions"_s);
    EXPECT_EQ(outputName(u"/in/a.jpg"_s), u"x-a.jpg"_s);
    EXPECT_TRUE(journal.records().isEmpty());
}
