// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <platform/foundation/user_defaults.h>
#include <support/environment.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>
#include <views/window/main_window.h>
#include <views/window/qt_desktop.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

using namespace brenvaldo;

namespace {

/// The window over the functions that manage files.
class FilePanels : public testing::Test
{
protected:
    FilePanels()
    {
        workspace.start();
        window.resize(1280, 800);
        window.show();
        workspace.openFiles({test::PhotoBuilder{}.write(folder.path(u"a.jpg"_s))});
        workspace.photos().select(0);
        settle();
    }

    static void settle()
    {
        for (int round = 0; round < 3; ++round)
            QApplication::processEvents();
    }

    void showFunction(int index, int tab)
    {
        workspace.actions().send(u"hFileManagementClicked"_s);
        panels.window.pubFileManagementSelect.selectIndex(index);
        panels.vwFileManagementSorting.mySortTabView.selectIndex(tab);
        workspace.actions().send(u"hChooseMainFileManagementFunction"_s);
        settle();
    }

    [[nodiscard]] const QLabel& outlook() const { return *window.findChild<QLabel*>(u"outlook"_s); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        window.activateWindow();
        QTest::keyClick(window.findChild<QWidget*>(u"myPhotoCollectionView"_s), key, modifiers);
        settle();
    }

    [[nodiscard]] bool stands(const QString& name) const
    {
        return QFile::exists(folder.path(name));
    }

    test::TemporaryFolder folder;
    test::Environment data{"XDG_DATA_HOME", folder.path(u"data"_s).toUtf8()};
    test::Environment configuration{"XDG_CONFIG_HOME", folder.path(u"config"_s).toUtf8()};
    platform::UserDefaults defaults{folder.path(u"defaults.conf"_s)};
    views::QtFileChooser chooser;
    views::QtDesktop desktop;
    workspace::Workspace workspace{{.chooser = chooser, .desktop = desktop, .defaults = defaults}};
    panels::Panels& panels = workspace.panels();
    views::MainWindow window{workspace, chooser};
};

} // namespace

TEST_F(FilePanels, TellWhatARenamingMakesOfTheFirstName)
{
    EXPECT_FALSE(outlook().isVisible());
    showFunction(2, 0);
    EXPECT_TRUE(outlook().isVisible());
    EXPECT_EQ(outlook().text(), u"a.jpg\nkeeps its name."_s);

    panels.vwFileManagementRename.tbvFileRenaming.selectIndex(2);
    panels.vwFileManagementRename.tfPrefixToAdd.setStringValue(u"x-"_s);
    settle();
    EXPECT_EQ(outlook().text(), u"a.jpg\n\u2192 x-a.jpg"_s);

    workspace.photos().clear();
    settle();
    EXPECT_EQ(outlook().text(), u"Add files to see an example of their new names."_s);
}

TEST_F(FilePanels, TellWhatASortingWouldDo)
{
    showFunction(0, 1);
    EXPECT_EQ(outlook().text(), u"No criterion is ticked: no file would be touched."_s);

    panels.vwFileManagementSorting.cbFileTagChoice.setState(1);
    settle();
    EXPECT_EQ(
        outlook().text(),
        u"Copies files whose label is none to a folder that is still to be chosen."_s
    );

    showFunction(0, 0);
    EXPECT_FALSE(outlook().isVisible());
}

TEST_F(FilePanels, SortByHandByKeys)
{
    showFunction(0, 0);
    QDir(folder.path()).mkpath(u"one"_s);
    QDir(folder.path()).mkpath(u"six"_s);
    panels.vwFileManagementSorting.tfSortDestination01.setStringValue(folder.path(u"one/"_s));
    panels.vwFileManagementSorting.tfSortDestination06.setStringValue(folder.path(u"six/"_s));

    press(Qt::Key_1);
    EXPECT_TRUE(stands(u"one/a.jpg"_s) && stands(u"a.jpg"_s));
    press(Qt::Key_6, Qt::ShiftModifier);
    EXPECT_TRUE(stands(u"six/a.jpg"_s) && !stands(u"a.jpg"_s));
    press(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_FALSE(stands(u"six/a.jpg"_s));
    EXPECT_EQ(workspace.photos().count(), 0);
}

TEST_F(FilePanels, KeepTheKeysOfSortingToItsPage)
{
    QDir(folder.path()).mkpath(u"one"_s);
    panels.vwFileManagementSorting.tfSortDestination01.setStringValue(folder.path(u"one/"_s));

    press(Qt::Key_1);
    showFunction(0, 1);
    press(Qt::Key_1);
    EXPECT_FALSE(stands(u"one/a.jpg"_s));

    showFunction(0, 0);
    auto* field = window.findChild<QLineEdit*>(u"tfSortDestination02"_s);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_1);
    EXPECT_EQ(field->text(), u"1"_s);
    EXPECT_FALSE(stands(u"one/a.jpg"_s));
}
