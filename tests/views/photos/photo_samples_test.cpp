// SPDX-License-Identifier: GPL-3.0-or-later
#include "../sent_actions.h"

#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <views/form/binder.h>
#include <views/form/sample_chooser.h>
#include <views/photos/photo_samples.h>

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <atomic>

using namespace brenvaldo;
using platform::graphics::Image;
using views::PhotoSamples;

namespace {

constexpr int patience = 60'000; ///< ms; machines that test can be busy

/// A list of two photos, red and green, and samples that darken them.
class Samples : public testing::Test
{
protected:
    Samples()
    {
        append(u"red.png"_s, {255, 0, 0});
        append(u"green.png"_s, {0, 255, 0});
        photos.select(0);
    }

    void append(const QString& name, const test::Samples& color)
    {
        workspace::cCollectionViewItem entry;
        entry.myPhoto.path = test::PhotoBuilder{}
                                 .format(test::PhotoFormat::Png)
                                 .size(300, 400)
                                 .solid(color)
                                 .write(folder.path(name));
        photos.append(entry);
    }

    /// The photo with its levels divided by one more than the choice.
    std::optional<Image> darkened(const Image& photo, int choice)
    {
        ++rendered;
        if (QThread::currentThread() == window.thread())
            ++renderedInTheWindow;
        QImage picture = photo.toQImage();
        const QRgb pixel = picture.pixel(10, 10);
        picture.fill(QColor(qRed(pixel) / (choice + 1), qGreen(pixel) / (choice + 1), 0));
        return Image::fromQImage(picture);
    }

    /// The colour of a picture that comes.
    QColor awaited(int choice, const QColor& color)
    {
        const auto shown = [&] {
            const QImage picture = samples.picture(choice);
            return picture.isNull() ? QColor() : picture.pixelColor(3, 3);
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == color; }, patience));
        return shown();
    }

    test::TemporaryFolder folder;
    workspace::PhotoList photos;
    std::atomic<int> rendered = 0;
    std::atomic<int> renderedInTheWindow = 0;
    QWidget window;
    PhotoSamples samples{
        photos, [this](const Image& photo, int choice) { return darkened(photo, choice); }};
    test::SentActions sent;
    views::Binder binder{sent.input};
    controls::PopUpButton control{u"pubFilter"_s, {}};
};

} // namespace

TEST_F(Samples, AreMadeWhenTheyAreAskedForAndNotInTheWindow)
{
    QSignalSpy arrived(&samples, &PhotoSamples::arrived);

    EXPECT_TRUE(samples.picture(4).isNull());
    ASSERT_TRUE(arrived.wait(patience));

    EXPECT_EQ(arrived.first().first().toInt(), 4);
    EXPECT_EQ(samples.picture(4).pixelColor(3, 3), QColor(51, 0, 0));
    EXPECT_EQ(samples.picture(4).size(), QSize(208, 138));
    EXPECT_EQ(rendered, 1);
    EXPECT_EQ(renderedInTheWindow, 0);
}

TEST_F(Samples, FollowTheSelectedPhoto)
{
    EXPECT_EQ(awaited(0, QColor(255, 0, 0)), QColor(255, 0, 0));
    QSignalSpy outdated(&samples, &PhotoSamples::outdated);

    photos.select(1);

    EXPECT_EQ(outdated.size(), 1);
    EXPECT_EQ(samples.picture(0).pixelColor(3, 3), QColor(255, 0, 0)); // until the new one is there
    EXPECT_EQ(awaited(0, QColor(0, 255, 0)), QColor(0, 255, 0));
    photos.select(std::nullopt);
    EXPECT_TRUE(samples.picture(0).isNull());
}

TEST_F(Samples, StayEmptyForAFileThatIsNoPhoto)
{
    workspace::cCollectionViewItem entry;
    entry.myPhoto.path = folder.write(u"a.jpg"_s, "no photo");
    photos.append(entry);
    photos.select(2);
    QSignalSpy arrived(&samples, &PhotoSamples::arrived);

    EXPECT_TRUE(samples.picture(0).isNull());
    ASSERT_TRUE(arrived.wait(patience));

    EXPECT_TRUE(samples.picture(0).isNull());
    EXPECT_EQ(rendered, 0);
}

TEST_F(Samples, AreMadeForTheChoicesInSightAlone)
{
    QStringList titles;
    for (int index = 0; index < 200; ++index)
        titles.append(QString::number(index));
    control.setTitles(titles);
    views::SampleChooser chooser(samples);
    binder.bind(chooser, control);
    chooser.resize(chooser.sizeHint());
    chooser.show();

    EXPECT_TRUE(QTest::qWaitFor([this] { return rendered >= 6; }, patience));
    EXPECT_EQ(awaited(8, QColor(28, 0, 0)), QColor(28, 0, 0)); // the last one in sight
    EXPECT_LT(rendered, 30);
}

TEST_F(Samples, AreChosenByKeyAndByMouse)
{
    control.setTitles({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    sent.watch(control);
    views::SampleChooser chooser(samples);
    binder.bind(chooser, control);
    chooser.resize(chooser.sizeHint());
    chooser.show();
    EXPECT_EQ(chooser.currentIndex().row(), 0);

    QTest::keyClick(&chooser, Qt::Key_Right);
    EXPECT_EQ(control.selectedIndex(), 1);
    QTest::mouseClick(
        chooser.viewport(),
        Qt::LeftButton,
        {},
        chooser.visualRect(chooser.model()->index(2, 0)).center()
    );
    EXPECT_EQ(control.selectedIndex(), 2);
    EXPECT_EQ(sent.names, (QStringList{u"pubFilter"_s, u"pubFilter"_s}));

    control.selectIndex(3);
    EXPECT_EQ(chooser.currentIndex().row(), 3);
    EXPECT_EQ(sent.names.size(), 2);
}

TEST_F(Samples, ChooseNothingWhenTheFocusComes)
{
    control.setTitles({u"a"_s, u"b"_s});
    control.selectIndex(-1);
    sent.watch(control);
    views::SampleChooser chooser(samples);
    binder.bind(chooser, control);
    chooser.show();
    chooser.activateWindow();
    chooser.setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&chooser));

    EXPECT_EQ(control.selectedIndex(), -1);
    EXPECT_TRUE(sent.names.isEmpty());
}
