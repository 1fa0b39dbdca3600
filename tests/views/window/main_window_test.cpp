// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <platform/foundation/user_defaults.h>
#include <support/environment.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>
#include <views/form/rows_table.h>
#include <views/look/theme.h>
#include <views/photos/photo_grid.h>
#include <views/window/main_window.h>
#include <views/window/qt_desktop.h>
#include <workspace/functions/functions.h>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

using namespace brenvaldo;

namespace {

/// The whole program with its window, in folders of its own.
/// The functions, as if the one that cuts out faces came with a later version.
workspace::Functions functionsButFaces()
{
    workspace::Functions functions(workspace::functions());
    for (workspace::Function& function : functions) {
        if (function.id == QLatin1String("faces"))
            function.run = workspace::PhotoRun{};
    }
    return functions;
}

class MainWindow : public testing::Test
{
protected:
    MainWindow()
    {
        workspace.start();
        window = std::make_unique<views::MainWindow>(workspace, chooser);
        window->resize(1280, 720);
        window->show();
        settle();
    }

    static void settle()
    {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }

    template <class Object = QWidget>
    Object* find(const QString& name) const
    {
        auto* widget = window->findChild<Object*>(name);
        EXPECT_TRUE(widget) << name.toStdString();
        return widget;
    }

    QAction* orderNamed(const QString& name) const
    {
        for (QAction* order : window->actions()) {
            if (order->objectName() == name)
                return order;
        }
        ADD_FAILURE() << name.toStdString();
        return nullptr;
    }

    /// Tab stops once in a group of buttons, arrows go on from there.
    static const QWidget* stopOf(const QWidget* widget)
    {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        return button && button->group() ? button->group()->buttons().first() : widget;
    }

    /// Every widget that Tab is to stop at.
    QList<const QWidget*> tabStops() const
    {
        QList<const QWidget*> stops;
        for (const QWidget* widget : window->findChildren<QWidget*>()) {
            const bool isPart = widget->objectName().startsWith(u"qt_"_s);
            const auto policy = widget->focusPolicy();
            if (widget->window() == window.get() && widget->isVisible() && widget->isEnabled()
                && !isPart && (policy & Qt::TabFocus) && !widget->focusProxy())
                stops.append(stopOf(widget));
        }
        return stops;
    }

    QSet<const QWidget*> walkedBy(Qt::Key key, int steps) const
    {
        QSet<const QWidget*> reached;
        for (int step = 0; step < steps; ++step) {
            reached.insert(stopOf(window->focusWidget()));
            QTest::keyClick(window->focusWidget(), key);
        }
        return reached;
    }

    QStringList makePhotos(int count) const
    {
        QStringList paths;
        for (int index = 0; index < count; ++index) {
            const QString name = u"photo-%1.jpg"_s.arg(index);
            paths.append(test::PhotoBuilder{}.size(60, 40).write(folder.path(name)));
        }
        return paths;
    }

    test::TemporaryFolder folder;
    test::Environment data{"XDG_DATA_HOME", folder.path(u"data"_s).toUtf8()};
    test::Environment configuration{"XDG_CONFIG_HOME", folder.path(u"config"_s).toUtf8()};
    platform::UserDefaults defaults{folder.path(u"defaults.conf"_s)};
    views::QtFileChooser chooser;
    views::QtDesktop desktop;
    workspace::Workspace workspace{
        {.chooser = chooser, .desktop = desktop, .defaults = defaults}, functionsButFaces()};
    std::unique_ptr<views::MainWindow> window;
};

bool isCut(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label && label->wordWrap())
        return label->height() < label->heightForWidth(label->width());
    const QSize wanted
        = qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget)
        ? widget.sizeHint()
        : widget.minimumSizeHint();
    return widget.width() < wanted.width() || widget.height() < wanted.height();
}

} // namespace

TEST_F(MainWindow, StartsWithTheTextWatermarkAndAllHoldersFilled)
{
    for (const QString& name :
         {u"pubEditPhoto"_s,
          u"vwWatermark"_s,
          u"vwShowPreview"_s,
          u"vwApplyOn"_s,
          u"vwFileType"_s,
          u"vwMainDestination"_s,
          u"btnPresets"_s})
        EXPECT_TRUE(find(name)->isVisible()) << name.toStdString();
    EXPECT_TRUE(find<QAbstractButton>(u"btnEditPhoto"_s)->isChecked());
}

TEST_F(MainWindow, FillsTheHoldersWhenAFunctionIsPickedByKey)
{
    auto* popUp = find(u"pubEditPhoto"_s);
    popUp->setFocus();

    QTest::keyClick(popUp, Qt::Key_Down);
    settle();

    EXPECT_TRUE(find(u"vwAddTint"_s)->isVisible());
    EXPECT_FALSE(window->findChild<QWidget*>(u"vwWatermark"_s));
}

TEST_F(MainWindow, ChangesTheSectionByItsButton)
{
    QTest::mouseClick(find(u"btnFileManagement"_s), Qt::LeftButton);
    settle();

    EXPECT_TRUE(find<QAbstractButton>(u"btnFileManagement"_s)->isChecked());
    EXPECT_FALSE(find<QAbstractButton>(u"btnEditPhoto"_s)->isChecked());
    EXPECT_TRUE(find(u"pubFileManagementSelect"_s)->isVisible());
}

TEST_F(MainWindow, ShowsAnAlertThatClosesByItsButton)
{
    QTest::mouseClick(find(u"btnProcess"_s), Qt::LeftButton);
    auto* sheet = find(u"wwAlertWindow"_s);
    ASSERT_TRUE(sheet->isVisible());
    EXPECT_EQ(sheet->findChild<QLabel*>(u"tfHTMLAlertTitle"_s)->text(), u"Missing destination."_s);

    QTest::mouseClick(sheet->findChild<QPushButton*>(u"closeAlert"_s), Qt::LeftButton);

    EXPECT_FALSE(sheet->isVisible());
}

TEST_F(MainWindow, RunsByTheProcessButton)
{
    QDir().mkpath(folder.path(u"out"_s));
    workspace.openFiles(makePhotos(2));
    auto& panels = workspace.panels();
    panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
    panels.window.pubEditPhoto.selectItemAtIndex(8);
    workspace.actions().send(u"cGUIcontrols.hChooseMainEditFunction"_s);
    settle();
    auto* field = find<QLineEdit>(u"tfScaleMaxVal"_s);
    field->setFocus();
    QTest::keyClicks(field, u"30"_s);

    auto* button = find<QPushButton>(u"btnProcess"_s);
    EXPECT_EQ(button->text(), u"Process 2 photos"_s);
    QTest::mouseClick(button, Qt::LeftButton);

    const QStringList made = QDir(folder.path(u"out"_s)).entryList(QDir::Files);
    EXPECT_EQ(made, (QStringList{u"photo-0.jpg"_s, u"photo-1.jpg"_s}));
    EXPECT_EQ(workspace.journal().records().size(), 2);
}

TEST_F(MainWindow, UntickingOnePhotoTurnsTheMasterTickOffOnly)
{
    workspace.openFiles(makePhotos(3));
    auto* grid = find<views::PhotoGrid>(u"myPhotoCollectionView"_s);
    grid->setFocus();
    workspace.photos().select(1);

    QTest::keyClick(grid, Qt::Key_Space);

    const auto& entries = workspace.photos().entries();
    EXPECT_EQ(entries.at(0).myPhotoSelect, 1);
    EXPECT_EQ(entries.at(1).myPhotoSelect, 0);
    EXPECT_EQ(entries.at(2).myPhotoSelect, 1);
    EXPECT_FALSE(find<QCheckBox>(u"cbPhotoToProcess"_s)->isChecked());
    EXPECT_EQ(find<QPushButton>(u"btnProcess"_s)->text(), u"Process 2 photos"_s);
}

TEST_F(MainWindow, MovesADraggedPhotoThroughTheListsOwnRule)
{
    workspace.openFiles(makePhotos(3));

    Q_EMIT find<views::PhotoGrid>(u"myPhotoCollectionView"_s)->moveWanted({0}, 1);

    EXPECT_EQ(workspace.photos().entries().at(1).myPhotoName, u"photo-0.jpg"_s);
}

TEST_F(MainWindow, AddsNothingForADropOnItsBody)
{
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(makePhotos(1).first())});
    testing::internal::CaptureStdout();

    QDragEnterEvent enter({4, 4}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    QDropEvent drop({4, 4}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Enter\nPrepare\nPerform\n1\n");
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_TRUE(workspace.photos().isEmpty());
}

TEST_F(MainWindow, OpensNoLargerThanTheScreen)
{
    window->openInto({1920, 1080});
    EXPECT_EQ(window->size(), QSize(1440, 900));
    EXPECT_FALSE(window->isMaximized());

    window->openInto({1280, 720});
    EXPECT_EQ(window->normalGeometry().size(), QSize(1280, 720));
    EXPECT_TRUE(window->isMaximized());
}

TEST_F(MainWindow, GivesThePreviewMostOfTheHeightAndTheGridTwoRowsWhereThereIsRoom)
{
    window->resize(1600, 1000);
    settle();
    const auto* grid = find<views::PhotoGrid>(u"myPhotoCollectionView"_s);
    const int preview = find(u"myTemplatePreview"_s)->height();
    EXPECT_GE(grid->height(), 2 * grid->gridSize().height() - 10);
    EXPECT_GT(preview, 1.5 * grid->height());

    window->resize(1280, 720);
    settle();
    EXPECT_GE(grid->height(), grid->gridSize().height());
    EXPECT_GT(find(u"myTemplatePreview"_s)->height(), 1.5 * grid->height());
}

TEST_F(MainWindow, FillsTheScreenByKeyAndGoesBackByEscape)
{
    window->setGeometry(20, 30, 1280, 640);
    settle();
    const QRect before = window->geometry();

    QTest::keyClick(window.get(), Qt::Key_F11);
    settle();
    EXPECT_TRUE(window->isFullScreen());
    EXPECT_FALSE(window->menuBar()->isVisible());

    QTest::keyClick(window.get(), Qt::Key_F11);
    settle();
    EXPECT_FALSE(window->isFullScreen());
    EXPECT_TRUE(window->menuBar()->isVisible());
    EXPECT_EQ(window->geometry(), before);

    QTest::keyClick(window.get(), Qt::Key_F11);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isFullScreen());
    EXPECT_FALSE(orderNamed(u"fullScreen"_s)->isChecked());
}

TEST_F(MainWindow, FollowsAWindowManagerThatEndsFullScreen)
{
    const QRect before = window->geometry();
    window->showFullScreen();
    settle();
    EXPECT_TRUE(orderNamed(u"fullScreen"_s)->isChecked());
    EXPECT_FALSE(window->menuBar()->isVisible());

    window->showNormal();
    settle();
    EXPECT_TRUE(window->menuBar()->isVisible());
    EXPECT_EQ(window->geometry(), before);
}

TEST_F(MainWindow, EndsTheWorkWhenItIsClosed)
{
    const QString left = folder.path(u"data/Brenvaldo/Temp/left.txt"_s);
    QFile file(left);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();

    window->close();

    EXPECT_FALSE(QFile::exists(left));
}

TEST_F(MainWindow, EndsARunAfterThePhotoInHandWhenItIsClosed)
{
    defaults.set(u"PhotosAtATime"_s, u"1"_s);
    QDir().mkpath(folder.path(u"out"_s));
    window->openFiles(makePhotos(3));
    panels::Panels& panels = workspace.panels();
    panels.window.pubFileManagementSelect.selectIndex(3);
    workspace.actions().send(u"hChooseMainFileManagementFunction"_s);
    panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
    QSignalSpy closed(window.get(), &views::MainWindow::closed);
    const auto closing = workspace.journal().recorded.connect([&](const workspace::RunRecord&) {
        window->close();
    });

    QTest::mouseClick(find(u"btnProcess"_s), Qt::LeftButton);

    EXPECT_EQ(closed.size(), 1);
    EXPECT_EQ(workspace.journal().records().size(), 1);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(MainWindow, KeepsAndUsesPresetsByKeyboard)
{
    controls::TextView& text = workspace.panels().vwWatermark.tvWaterMarkText;
    controls::TextField& name = workspace.panels().wwPresetsWindow.tfInputPDM;
    QTest::mouseClick(find(u"btnPresets"_s), Qt::LeftButton);
    auto* field = find<QLineEdit>(u"tfInputPDM"_s);
    auto* table = find<views::RowsTable>(u"myPresetsTableView"_s);
    text.setStringValue(u"kept"_s);

    field->setFocus();
    QTest::keyClicks(field, u"first"_s);
    QTest::keyClick(field, Qt::Key_Return);
    ASSERT_EQ(table->model()->rowCount(), 1);
    EXPECT_EQ(name.stringValue(), u"first"_s);

    text.setStringValue(u"changed"_s);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Down);
    QTest::keyClick(table, Qt::Key_Return);
    EXPECT_EQ(text.stringValue(), u"kept"_s);
    EXPECT_EQ(table->model()->rowCount(), 1);

    text.setStringValue(u"changed"_s);
    const QPoint row = table->visualRect(table->model()->index(0, 0)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, row);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(text.stringValue(), u"kept"_s);

    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_EQ(table->model()->rowCount(), 0);

    QTest::keyClick(table, Qt::Key_Escape);
    EXPECT_FALSE(workspace.panels().wwPresetsWindow.sheet.isOpen());
}

TEST_F(MainWindow, SaysInAnEmptyListOfPresetsWhatToDo)
{
    const auto inks = [](const QImage& picture) {
        QSet<QRgb> colors;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                colors.insert(picture.pixel(x, y));
        }
        return colors.size();
    };
    QTest::mouseClick(find(u"btnPresets"_s), Qt::LeftButton);
    settle();
    auto* table = find<views::RowsTable>(u"myPresetsTableView"_s);
    const auto inksOfHint = inks(table->viewport()->grab().toImage());

    table->setEmptyText({});

    EXPECT_GT(inksOfHint, inks(table->viewport()->grab().toImage()));
}

TEST_F(MainWindow, NamesEveryWidgetThatTakesTheFocus)
{
    const auto widgets = window->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const bool isPart = widget->objectName().startsWith(u"qt_"_s);
        if (!widget->isVisible() || isPart || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty())
            << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
    }
}

TEST_F(MainWindow, ReachesEveryWidgetByTabInBothDirections)
{
    workspace.openFiles(makePhotos(2));
    orderNamed(u"photoInfo"_s)->trigger();
    auto& functions = workspace.panels().window.pubEditPhoto;
    for (int index = 0; index < functions.count(); ++index) {
        functions.selectItemAtIndex(index);
        workspace.actions().send(u"cGUIcontrols.hChooseMainEditFunction"_s);
        settle();
        const QList<const QWidget*> expected = tabStops();
        EXPECT_GT(expected.size(), 15);
        const auto steps = static_cast<int>(expected.size()) * 2;
        // Tab leads from the watermark text straight to its size; the fields between are behind it.
        const auto reached = walkedBy(Qt::Key_Tab, steps) + walkedBy(Qt::Key_Backtab, steps);
        for (const QWidget* widget : expected)
            EXPECT_TRUE(reached.contains(widget))
                << widget->metaObject()->className() << ' ' << widget->objectName().toStdString()
                << " at function " << index << ", " << widget->width() << " x " << widget->height()
                << " of " << widget->minimumSizeHint().width() << " x "
                << widget->minimumSizeHint().height();
    }
}

TEST_F(MainWindow, LeadsTheTabKeyFromThePreviewToTheProcessButton)
{
    workspace.openFiles(makePhotos(2));
    settle();
    QStringList met;
    find(u"myTemplatePreview"_s)->setFocus();
    for (int step = 0; step < 60; ++step) {
        met.append(window->focusWidget()->objectName());
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    }
    const QStringList stations{
        u"myTemplatePreview"_s,
        u"tool.hChoosePhotos"_s,
        u"cbPhotoToProcess"_s,
        u"myPhotoCollectionView"_s,
        u"btnEditPhoto"_s,
        u"pubEditPhoto"_s,
        u"btnPresets"_s,
        u"tvWaterMarkText"_s,
        u"cbShowPreview"_s,
        u"pubFileType"_s,
        u"tfImageDestinationFolder"_s,
        u"btnProcess"_s};
    qsizetype last = -1;
    for (const QString& station : stations) {
        const qsizetype place = met.indexOf(station);
        EXPECT_GT(place, last) << station.toStdString() << " in " << met.join(u' ').toStdString();
        last = place;
    }
}

TEST_F(MainWindow, OffersNoButtonWithoutAnAction)
{
    EXPECT_TRUE(workspace.panels().window.btnPresetsHelp.actions().join(QString()).isEmpty());
    for (const QString& section : {u"btnExportHtml"_s, u"btnFileManagement"_s, u"btnEditPhoto"_s}) {
        EXPECT_FALSE(find(u"btnPresetsHelp"_s)->isVisible());
        EXPECT_TRUE(find(u"btnPresets"_s)->isVisible());
        QTest::mouseClick(find(section), Qt::LeftButton);
        settle();
    }
}

TEST_F(MainWindow, LeavesTheWatermarkTextForTheFontSizeByTab)
{
    auto* text = find(u"tvWaterMarkText"_s);
    text->setFocus();

    QTest::keyClick(text, Qt::Key_Tab);

    EXPECT_EQ(window->focusWidget(), find(u"tfFontSize"_s));
}

TEST_F(MainWindow, ShowsEachTypedCharacterInThePreview)
{
    workspace.openFiles(makePhotos(1));
    QTest::mouseClick(find(u"cbShowPreview"_s), Qt::LeftButton);
    auto& panels = workspace.panels();
    panels.vwWatermark.cbFontList.selectItemWithObjectValue(u"DejaVu Sans"_s);
    panels.vwWatermark.tfFontSize.setStringValue(u"12"_s); // small enough for the photo
    controls::ImageView& overlay = panels.window.myTemplateOverlayPreview;
    auto* text = find(u"tvWaterMarkText"_s);
    text->setFocus();
    QList<QImage> shown;
    const auto afterKey = [&](const QString& key) {
        QTest::keyClicks(text, key);
        shown.append(overlay.image() ? overlay.image()->toQImage() : QImage());
    };
    ASSERT_FALSE(overlay.image().has_value());

    afterKey(u"I"_s);
    afterKey(u"M"_s);
    QTest::keyClick(text, Qt::Key_Backspace);
    QTest::keyClick(text, Qt::Key_Backspace);

    ASSERT_FALSE(shown.first().isNull());
    EXPECT_NE(shown.first(), shown.last());
    EXPECT_FALSE(overlay.image().has_value());
}

TEST_F(MainWindow, HasNoMnemonicTwiceInAMenu)
{
    for (QMenu* menu : window->menuBar()->findChildren<QMenu*>()) {
        QStringList keys;
        for (const QAction* action : menu->actions()) {
            const QKeySequence key = QKeySequence::mnemonic(action->text());
            if (!action->isVisible() || action->isSeparator())
                continue;
            EXPECT_FALSE(key.isEmpty()) << action->text().toStdString();
            EXPECT_FALSE(keys.contains(key.toString())) << action->text().toStdString();
            keys.append(key.toString());
        }
    }
}

TEST_F(MainWindow, CutsNoWidgetAtTheSmallestSize)
{
    const QSize smallest = window->minimumSize();
    EXPECT_LE(smallest.width(), 1024); // 1280 at a scale of 1.25
    EXPECT_LE(smallest.height(), 576);
    window->resize(smallest);
    auto& popUp = workspace.panels().window.pubEditPhoto;
    for (int index = 0; index < popUp.count(); ++index) {
        popUp.selectItemAtIndex(index);
        workspace.actions().send(u"cGUIcontrols.hChooseMainEditFunction"_s);
        settle();
        EXPECT_EQ(window->size(), smallest);
        for (const QWidget* widget : window->findChildren<QWidget*>()) {
            const bool isPart = widget->objectName().startsWith(u"qt_"_s);
            if (!widget->isVisible() || isPart)
                continue;
            EXPECT_FALSE(isCut(*widget))
                << widget->metaObject()->className() << ' ' << widget->objectName().toStdString()
                << " at function " << index << ", " << widget->width() << " x " << widget->height()
                << " of " << widget->minimumSizeHint().width() << " x "
                << widget->minimumSizeHint().height();
        }
    }
}

TEST_F(MainWindow, TellsThatAFunctionComesLaterAndOffersNoRun)
{
    auto* process = find<QPushButton>(u"btnProcess"_s);
    const QAction* order = orderNamed(u"hLoadImages"_s);
    auto* notice = find(u"laterNotice"_s);
    workspace.openFiles(makePhotos(2));
    EXPECT_TRUE(process->isEnabled());
    EXPECT_TRUE(notice->isHidden());

    workspace.panels().window.pubEditPhoto.selectItemAtIndex(5);
    workspace.actions().send(u"cGUIcontrols.hChooseMainEditFunction"_s);
    EXPECT_EQ(process->text(), u"Process"_s);
    EXPECT_FALSE(process->isEnabled());
    EXPECT_FALSE(order->isEnabled());
    EXPECT_TRUE(notice->isVisible());

    workspace.panels().window.pubEditPhoto.selectItemAtIndex(6);
    workspace.actions().send(u"cGUIcontrols.hChooseMainEditFunction"_s);
    EXPECT_TRUE(process->isEnabled());
    EXPECT_TRUE(order->isEnabled());
    EXPECT_TRUE(notice->isHidden());

    workspace.panels().vwWatermark.tbvWatermarkType.selectIndex(1);
    EXPECT_TRUE(process->isEnabled());
    EXPECT_TRUE(notice->isHidden());
}

TEST_F(MainWindow, RunsAFunctionThatComesLaterByItsActionAllTheSame)
{
    QDir().mkpath(folder.path(u"out"_s));
    workspace.openFiles(makePhotos(1));
    workspace.panels().vwMainDestination.tfImageDestinationFolder.setStringValue(
        folder.path(u"out/"_s)
    );
    workspace.panels().window.pubEditPhoto.selectItemAtIndex(5);
    workspace.actions().send(u"cGUIcontrols.hChooseMainEditFunction"_s);
    ASSERT_FALSE(find<QPushButton>(u"btnProcess"_s)->isEnabled());

    workspace.actions().send(u"cGUIcontrols.hLoadImages"_s);

    ASSERT_EQ(workspace.journal().records().size(), 1);
    EXPECT_EQ(text(workspace.journal().records().first().word), u"Failed"_s);
}

TEST_F(MainWindow, FollowsTheSchemeWhileItIsOpen)
{
    QApplication::setPalette(views::paletteOf(views::Scheme::Dark));
    settle();
    const QImage dark = window->grab().toImage();
    QApplication::setPalette(QPalette());
    settle();
    const QImage light = window->grab().toImage();

    const QPoint inspector(1270, 300);
    EXPECT_EQ(dark.pixelColor(inspector), views::colorsOf(views::Scheme::Dark).window);
    EXPECT_EQ(light.pixelColor(inspector), views::colorsOf(views::Scheme::Light).window);
}
