// SPDX-License-Identifier: GPL-3.0-or-later
#include "../sent_actions.h"

#include <controls/text_controls.h>
#include <panels/panels.h>
#include <platform/foundation/literals.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>
#include <views/look/theme.h>
#include <views/window/alert_sheet.h>
#include <views/window/journal_window.h>
#include <views/window/panel_sheet.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using namespace brenvaldo;

namespace {

struct AlertSheet : testing::Test
{
    AlertSheet()
    {
        actions.add(u"cGUIcontrols"_s, u"closeApplicationAlertSheetObjC"_s, [this](const auto&) {
            panels.window.wwAlertWindow.close();
        });
    }

    void alert(const QString& title, const QString& text)
    {
        panels.window.wwAlertWindow.open();
        panels.window.tfHTMLAlertTitle.setStringValue(title);
        panels.window.tfHTMLAlertInfo.setStringValue(text);
    }

    panels::Panels panels;
    controls::ActionRegistry actions;
    QWidget window;
    views::AlertSheet* sheet = new views::AlertSheet(panels.window, actions, &window);
};

/// A file chooser that answers one path.
struct OnePath : controls::FileChooser
{
    explicit OnePath(QString answer)
        : path(std::move(answer))
    {
    }
    std::optional<QStringList> open(const controls::OpenPanel&) override { return std::nullopt; }
    std::optional<QString> save(const controls::SavePanel&) override { return path; }

    QString path;
};

} // namespace

TEST_F(AlertSheet, ShowsTitleAndTextWithLineBreaks)
{
    window.show();
    alert(u"Missing destination."_s, u"\rPlease choose.\rNow."_s);

    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
    EXPECT_EQ(sheet->findChild<QLabel*>(u"tfHTMLAlertTitle"_s)->text(), u"Missing destination."_s);
    EXPECT_EQ(sheet->findChild<QLabel*>(u"tfHTMLAlertInfo"_s)->text(), u"Please choose.\nNow."_s);
}

TEST_F(AlertSheet, DrawsItsMarkInTheColorsOfTheScheme)
{
    window.show();
    alert(u"Title"_s, u"Text"_s);
    auto* mark = sheet->findChild<QWidget*>(u"alertMark"_s);
    const auto hasInk = [mark](const QColor& ink) {
        const QImage picture = mark->grab().toImage();
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixelColor(x, y) == ink)
                    return true;
        return false;
    };
    EXPECT_TRUE(hasInk(views::colorsOf(views::Scheme::Light).accent));

    QApplication::setPalette(views::paletteOf(views::Scheme::Dark));
    EXPECT_TRUE(hasInk(views::colorsOf(views::Scheme::Dark).accent));
    QApplication::setPalette(QPalette());
}

TEST_F(AlertSheet, ClosesByItsButtonThroughTheAction)
{
    window.show();
    alert(u"a"_s, u"b"_s);

    QTest::mouseClick(sheet->findChild<QPushButton*>(u"closeAlert"_s), Qt::LeftButton);

    EXPECT_FALSE(panels.window.wwAlertWindow.isOpen());
    EXPECT_FALSE(sheet->isVisible());
}

TEST_F(AlertSheet, ClosesByEscapeAndOpensAgain)
{
    window.show();
    alert(u"a"_s, u"b"_s);

    QTest::keyClick(sheet, Qt::Key_Escape);
    EXPECT_FALSE(sheet->isVisible());
    alert(u"c"_s, u"d"_s);

    EXPECT_TRUE(sheet->isVisible());
}

TEST(PanelSheet, OpensAndClosesWithItsControl)
{
    struct View : panels::PanelView
    {
        View()
            : PanelView(u"wwPresetsWindow"_s)
        {
            setLayout({{panels::Row{.label = u"Name"_s, .fields = {{.control = &field}}}}});
        }
        controls::TextField field{u"tfInputPDM"_s};
    };
    const View view;
    const panels::Panels panels;
    const test::SentActions sent;
    const views::Binder binder(sent.input);
    const views::FormBuilder builder(panels, binder);
    controls::Sheet control(u"wwPresetsWindow"_s);
    QWidget window;
    window.show();
    auto* sheet = new views::PanelSheet(control, view, builder, sent.registry, &window);

    control.open();
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_TRUE(sheet->findChild<QWidget*>(u"tfInputPDM"_s));
    QTest::keyClick(sheet, Qt::Key_Escape);

    EXPECT_FALSE(control.isOpen());
    EXPECT_FALSE(sheet->isVisible());
}

TEST(JournalWindow, ListsWhatRunsDidAndSavesItAsText)
{
    const test::TemporaryFolder folder;
    OnePath chooser(folder.path(u"journal.txt"_s));
    workspace::RunJournal journal;
    const workspace::RunRecord record{
        .time = QDateTime::currentDateTime(),
        .function = u"textWM"_s,
        .source = u"/photos/a.jpg"_s,
        .target = u"/out/a.jpg"_s,
        .word = imaging::ResultWord::Ok};
    journal.add(record);
    views::JournalWindow window(journal, chooser);
    window.show();

    journal.add(record);
    EXPECT_EQ(window.rowCount(), 2);
    EXPECT_TRUE(window.findChildren<QPushButton*>().at(1)->isEnabled());
    const auto* rows = window.findChild<QTreeWidget*>();
    EXPECT_EQ(rows->topLevelItem(0)->text(1), u"Text watermark"_s);
    QTest::mouseClick(window.findChildren<QPushButton*>().at(0), Qt::LeftButton);

    const QString saved = QString::fromUtf8(test::TemporaryFolder::read(chooser.path));
    EXPECT_EQ(saved, journal.asText());

    QTest::mouseClick(window.findChildren<QPushButton*>().at(1), Qt::LeftButton);
    EXPECT_EQ(window.rowCount(), 0);
    EXPECT_FALSE(window.findChildren<QPushButton*>().at(0)->isEnabled());
    EXPECT_FALSE(window.findChildren<QPushButton*>().at(1)->isEnabled());
}
