// SPDX-License-Identifier: GPL-3.0-or-later
#include "../sent_actions.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>
#include <support/text_printing.h>
#include <views/form/binder.h>
#include <views/form/color_well.h>
#include <views/form/fade_slider.h>
#include <views/form/picture_view.h>
#include <views/form/pop_up.h>
#include <views/form/radio_column.h>
#include <views/form/rows_table.h>
#include <views/form/segments.h>
#include <views/form/text_area.h>
#include <views/form/unit_field.h>

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QSlider>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>

using namespace brenvaldo;

namespace {

/// A window with the widget under test and a field to leave to.
class Binding : public testing::Test
{
protected:
    template <class Widget>
    void show(Widget* widget)
    {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(widget);
        column->addWidget(other);
        window.show();
        QApplication::setActiveWindow(&window);
        widget->setFocus();
    }

    test::SentActions sent;
    views::Binder binder{sent.input};
    QWidget window;
    QLineEdit* other = new QLineEdit(&window);
};

using Binder = Binding;

} // namespace

TEST_F(Binder, SendsTheActionOfAFieldWhenTheUserHasTypedAndLeaves)
{
    controls::TextField control(u"tfWidth"_s, u"1"_s);
    control.setTag(75);
    sent.watch(control);
    auto* field = new views::UnitField(u"px"_s, &window);
    binder.bind(*field, control);
    show(field);

    QTest::keyClick(field, Qt::Key_End);
    QTest::keyClicks(field, u"20"_s);
    EXPECT_EQ(control.stringValue(), u"120"_s);
    EXPECT_TRUE(sent.names.isEmpty());
    other->setFocus();

    EXPECT_EQ(sent.names, QStringList{u"tfWidth"_s});
    EXPECT_EQ(sent.tags, QList<int>{75});
}

TEST_F(Binder, ShowsTheBeginningOfALongText)
{
    controls::TextField control(u"tfFolder"_s);
    auto* field = new views::UnitField({}, &window);
    binder.bind(*field, control);
    show(other);

    control.setStringValue(QString(400, u'w'));

    EXPECT_EQ(field->cursorPosition(), 0);
}

TEST_F(Binder, SendsNothingWhenAFieldIsLeftUntouched)
{
    controls::TextField control(u"tfWidth"_s, u"1"_s);
    sent.watch(control);
    auto* field = new views::UnitField({}, &window);
    binder.bind(*field, control);
    show(field);

    other->setFocus();

    EXPECT_TRUE(sent.names.isEmpty());
}

TEST_F(Binder, ShowsWhatCodeGivesAControlAndSendsNothing)
{
    controls::TextField control(u"tfWidth"_s);
    sent.watch(control);
    auto* field = new views::UnitField({}, &window);
    binder.bind(*field, control);
    show(field);

    control.setStringValue(u"480"_s);
    control.setEnabled(false);
    control.setToolTip(u"why"_s);

    EXPECT_EQ(field->text(), u"480"_s);
    EXPECT_FALSE(field->isEnabled());
    EXPECT_EQ(field->toolTip(), u"why"_s);
    EXPECT_EQ(field->objectName(), u"tfWidth"_s);
    EXPECT_TRUE(sent.names.isEmpty());
    control.setHidden(true);
    EXPECT_FALSE(field->isVisible());
}

TEST_F(Binder, SendsTheTypingActionAtEachKey)
{
    controls::TextView control(u"tvText"_s);
    control.addTypingAction(u"test.typed"_s);
    QStringList typed;
    sent.registry.add(u"test"_s, u"typed"_s, [&](const controls::Sender&) {
        typed.append(control.stringValue());
    });
    auto* text = new views::TextArea(&window);
    binder.bind(*text, control);
    show(text);

    QTest::keyClicks(text, u"ab"_s);
    QTest::keyClick(text, Qt::Key_Left);
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClick(text, Qt::Key_Backspace);
    other->setFocus();
    control.setStringValue(u"by code"_s);

    EXPECT_EQ(typed, (QStringList{u"a"_s, u"ab"_s, u"a\nb"_s, u"ab"_s}));
}

TEST_F(Binder, SendsTheActionOfATextViewWhenItIsLeftAfterAnEdit)
{
    controls::TextView control(u"tvText"_s);
    sent.watch(control);
    auto* text = new views::TextArea(&window);
    binder.bind(*text, control);
    show(text);

    QTest::keyClicks(text, u"hello"_s);
    QTest::keyClick(text, Qt::Key_Tab);

    EXPECT_EQ(control.stringValue(), u"hello"_s);
    EXPECT_EQ(sent.names, QStringList{u"tvText"_s});
    EXPECT_TRUE(other->hasFocus());
}

TEST_F(Binder, TicksABoxByMouseAndKey)
{
    controls::CheckBox control(u"cbOn"_s, u"On"_s);
    sent.watch(control);
    auto* box = new QCheckBox(control.title(), &window);
    binder.bind(*box, control);
    show(box);

    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    EXPECT_EQ(control.state(), 1);
    QTest::keyClick(box, Qt::Key_Space);

    EXPECT_EQ(control.state(), 0);
    EXPECT_EQ(sent.names.size(), 2);
}

TEST_F(Binder, PicksFromAPopUpByKeyAndFollowsNewTitles)
{
    controls::PopUpButton control(u"pubKind"_s, {u"a"_s, u"b"_s, u"c"_s});
    sent.watch(control);
    auto* popUp = new views::PopUp({}, &window);
    binder.bind(*popUp, control);
    show(popUp);

    QTest::keyClick(popUp, Qt::Key_Down);
    EXPECT_EQ(control.selectedIndex(), 1);
    EXPECT_EQ(sent.names, QStringList{u"pubKind"_s});
    control.setTitles({u"x"_s, u"y"_s});

    EXPECT_EQ(popUp->count(), 2);
    EXPECT_EQ(popUp->currentText(), u"x"_s);
}

TEST_F(Binder, PicksASegmentEvenTheOneThatIsChosen)
{
    controls::SegmentedControl control(u"scPlace"_s, {u"l"_s, u"m"_s, u"r"_s}, 1);
    sent.watch(control);
    auto* segments = new views::Segments(views::Segments::Look::Row, &window);
    binder.bind(*segments, control);
    show(segments);

    QTest::mouseClick(segments->segment(2), Qt::LeftButton);
    QTest::mouseClick(segments->segment(2), Qt::LeftButton);

    EXPECT_EQ(control.selectedSegment(), 2);
    EXPECT_EQ(sent.names.size(), 2);
}

TEST_F(Binder, PicksARadioRow)
{
    controls::Matrix control(u"mxSize"_s, {u"a"_s, u"b"_s});
    sent.watch(control);
    auto* column = new views::RadioColumn(&window);
    binder.bind(*column, control);
    show(column);

    auto* second = column->findChildren<QAbstractButton*>().at(1);
    QTest::mouseClick(second, Qt::LeftButton, {}, QPoint(8, second->height() / 2));

    EXPECT_EQ(control.selectedRow(), 1);
    EXPECT_EQ(sent.names, QStringList{u"mxSize"_s});
}

TEST_F(Binder, PicksATabAndFollowsOneThatCodePicks)
{
    controls::TabView control(
        u"tbv"_s,
        {{.identifier = u"1"_s, .label = u"One"_s}, {.identifier = u"2"_s, .label = u"Two"_s}}
    );
    sent.watch(control);
    auto* bar = new QTabBar(&window);
    binder.bind(*bar, control);
    show(bar);

    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    EXPECT_EQ(control.selectedIdentifier(), u"2"_s);
    control.selectIndex(0);

    EXPECT_EQ(bar->currentIndex(), 0);
    EXPECT_EQ(sent.names, QStringList{u"tbv"_s});
}

TEST_F(Binder, TakesTheColorThatTheUserChooses)
{
    controls::ColorWell control(u"cw"_s);
    sent.watch(control);
    auto* well = new views::ColorWell(&window);
    binder.bind(*well, control);
    show(well);

    Q_EMIT well->chosen(QColor(0xff8000));

    EXPECT_NEAR(control.color().green, 128 / 255.0, 1e-9);
    EXPECT_EQ(well->color(), QColor(0xff8000));
    EXPECT_EQ(sent.names, QStringList{u"cw"_s});
}

TEST_F(Binder, DragsASliderByKey)
{
    controls::Slider control(u"sr"_s, 0, 10, 5);
    sent.watch(control);
    auto* slider = new QSlider(Qt::Horizontal, &window);
    binder.bind(*slider, control);
    show(slider);

    QTest::keyClick(slider, Qt::Key_Right);

    EXPECT_GT(control.doubleValue(), 5);
    EXPECT_EQ(sent.names, QStringList{u"sr"_s});
}

namespace {

/// Drags local files above a picture and lets go; false when it does not take them.
bool dropOn(views::PictureView& picture, const QStringList& paths)
{
    QMimeData files;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls.append(QUrl::fromLocalFile(path));
    files.setUrls(urls);
    QDragEnterEvent enter({4, 4}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&picture, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop({4, 4}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&picture, &drop);
    return drop.isAccepted();
}

} // namespace

TEST_F(Binder, GivesAPictureTheFileThatIsDroppedOnIt)
{
    controls::ImageView control(u"iwImage"_s);
    sent.watch(control);
    auto* picture = new views::PictureView(&window);
    binder.bind(*picture, control);
    show(picture);

    EXPECT_TRUE(dropOn(*picture, {u"/logo.png"_s}));

    EXPECT_EQ(control.droppedFile(), u"/logo.png"_s);
    EXPECT_EQ(sent.names, QStringList{u"iwImage"_s});
    EXPECT_FALSE(dropOn(*picture, {u"/a.png"_s, u"/b.png"_s}));
    EXPECT_FALSE(dropOn(*picture, {}));
}

TEST_F(Binder, DropsNothingOnAPictureWithoutActions)
{
    controls::ImageView control(u"iwImage"_s);
    auto* picture = new views::PictureView(&window);

    binder.bind(*picture, control);

    EXPECT_FALSE(picture->acceptDrops());
    show(picture);
    const QImage plain = picture->grab().toImage();
    picture->setAcceptDrops(true);
    EXPECT_NE(picture->grab().toImage(), plain); // says that a file can be dropped
}

TEST_F(Binder, ShowsAPictureAndThatAFileHoversAboveIt)
{
    controls::ImageView control(u"iwImage"_s);
    sent.watch(control);
    auto* picture = new views::PictureView(&window);
    binder.bind(*picture, control);
    show(picture);
    const QImage empty = picture->grab().toImage();

    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(u"/logo.png"_s)});
    QDragEnterEvent enter({4, 4}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(picture, &enter);
    EXPECT_NE(picture->grab().toImage(), empty);
    QDragLeaveEvent leave;
    QApplication::sendEvent(picture, &leave);
    EXPECT_EQ(picture->grab().toImage(), empty);

    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    control.setImage(platform::graphics::Image::fromQImage(image));
    EXPECT_NE(picture->grab().toImage(), empty);
}

TEST_F(Binder, ShowsWhatAFadeLeavesAboveItsSlider)
{
    controls::Slider control(u"slider"_s, 0, 1, 0.2, controls::Slider::Look::FadeStrip);
    auto* slider = new views::FadeSlider(&window);
    binder.bind(*slider, control);
    show(slider);
    const auto strip
        = [slider] { return slider->grab(QRect(0, 0, slider->width(), 14)).toImage(); };
    const QImage narrow = strip();

    control.setDoubleValue(0.9);

    const QImage wide = strip();
    EXPECT_NE(wide, narrow);
    EXPECT_GT(slider->sizeHint().height(), QSlider(Qt::Horizontal).sizeHint().height());
    // The handle keeps below the strip.
    control.setDoubleValue(1);
    EXPECT_EQ(strip().pixelColor(slider->width() - 1, 7), wide.pixelColor(slider->width() - 1, 7));
}

TEST_F(Binder, SelectsATableRowAndFollowsItsRows)
{
    controls::ArrayController rows(u"rows"_s, {u"name"_s});
    controls::TableView control(u"table"_s, rows);
    sent.watch(control);
    rows.setObjects({{u"first"_s}, {u"second\t   \thidden"_s}});
    auto* table = new views::RowsTable({}, &window);
    binder.bind(*table, control);
    show(table);

    QTest::mouseClick(
        table->viewport(),
        Qt::LeftButton,
        {},
        table->visualRect(table->model()->index(1, 0)).center()
    );
    EXPECT_EQ(control.selectedRow(), 1);
    EXPECT_EQ(table->model()->index(1, 0).data().toString(), u"second"_s);
    rows.addObject({u"third"_s});

    EXPECT_EQ(table->model()->rowCount(), 3);
    EXPECT_EQ(table->selectedRow(), 1);
    EXPECT_EQ(sent.names, QStringList{u"table"_s});
}

TEST_F(Binder, ShowsRowsWithADepthAsATree)
{
    controls::ArrayController rows(u"mTree"_s, {u"depth"_s, u"key"_s, u"val"_s});
    controls::TableView control(u"tree"_s, rows);
    auto* table = new views::RowsTable({}, &window);
    binder.bind(*table, control);

    rows.setObjects({{u"0"_s, u"{Exif}"_s, {}}, {u"1"_s, u"ISO"_s, u"100"_s}});

    const QModelIndex parent = table->model()->index(0, 0);
    EXPECT_EQ(table->model()->rowCount(), 1);
    EXPECT_EQ(table->model()->index(0, 1, parent).data().toString(), u"100"_s);
}

TEST_F(Binder, PressesAButton)
{
    controls::Button control(u"btn"_s, u"Go"_s, u"none.none"_s);
    sent.watch(control);
    auto* button = new QPushButton(control.title(), &window);
    binder.bind(*button, control);
    show(button);

    QTest::mouseClick(button, Qt::LeftButton);

    EXPECT_EQ(sent.names, QStringList{u"btn"_s});
}
