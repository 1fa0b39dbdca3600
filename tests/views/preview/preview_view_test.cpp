// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>
#include <views/look/theme.h>
#include <views/preview/preview_view.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QSet>
#include <QTest>
#include <QWheelEvent>

using namespace brenvaldo;

namespace {

QImage solid(int width, int height, const QColor& color)
{
    QImage picture(width, height, QImage::Format_ARGB32_Premultiplied);
    picture.fill(color);
    return picture;
}

class PreviewView : public testing::Test
{
protected:
    void SetUp() override
    {
        view.resize(600, 400);
        view.show();
    }

    /// The view as it looks when everything is drawn.
    QImage drawn()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return view.isUpToDate(); }, 60000));
        return view.grab().toImage();
    }

    static platform::graphics::Image picture(int width, int height, const QColor& color)
    {
        return platform::graphics::Image::fromQImage(solid(width, height, color));
    }

    controls::ImageView photo{u"myTemplatePreview"_s};
    controls::ImageView overlay{u"myTemplateOverlayPreview"_s};
    workspace::PhotoList photos;
    views::PreviewView view{{.photo = photo, .overlay = overlay, .photos = photos, .emptyText = [] {
                                 return u"Nothing to see"_s;
                             }}};
};

} // namespace

TEST_F(PreviewView, FitsThePhotoOnNeutralGround)
{
    photo.setImage(picture(2000, 1000, Qt::red));

    const QImage shown = drawn();

    EXPECT_EQ(shown.pixelColor(300, 200), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(2, 2), views::colors().canvas);
}

TEST_F(PreviewView, LaysTheOverlayOverThePhoto)
{
    photo.setImage(picture(2000, 1000, Qt::red));
    overlay.setImage(picture(2000, 1000, QColor(0, 0, 255, 255)));

    EXPECT_EQ(drawn().pixelColor(300, 200), QColor(Qt::blue));
    overlay.clear();

    EXPECT_EQ(drawn().pixelColor(300, 200), QColor(Qt::red));
}

TEST_F(PreviewView, ShowsAnOverlayThatReplacesThePhoto)
{
    overlay.setImage(picture(300, 300, Qt::green));

    EXPECT_EQ(drawn().pixelColor(300, 200), QColor(Qt::green));
}

TEST_F(PreviewView, DoesNotEnlargeASmallPhoto)
{
    photo.setImage(picture(100, 100, Qt::red));

    const QImage shown = drawn();

    EXPECT_EQ(shown.pixelColor(300, 200), QColor(Qt::red));
    EXPECT_NE(shown.pixelColor(200, 200), QColor(Qt::red));
}

TEST_F(PreviewView, ShowsPixelsAtOneToOneAndPansByMouse)
{
    QImage halves = solid(4000, 2000, Qt::red);
    for (int y = 0; y < halves.height(); ++y)
        for (int x = 2000; x < halves.width(); ++x)
            halves.setPixelColor(x, y, Qt::blue);
    photo.setImage(platform::graphics::Image::fromQImage(halves));
    view.setZoom(views::PreviewView::Zoom::Pixels);
    EXPECT_EQ(drawn().pixelColor(10, 200), QColor(Qt::red));
    EXPECT_EQ(drawn().pixelColor(590, 200), QColor(Qt::blue));

    QTest::mousePress(&view, Qt::LeftButton, {}, {500, 200});
    QTest::mouseMove(&view, {100, 200});
    QTest::mouseRelease(&view, Qt::LeftButton, {}, {100, 200});

    EXPECT_EQ(drawn().pixelColor(10, 200), QColor(Qt::blue));
}

TEST_F(PreviewView, TellsAboutTheFileOfTheSelectedPhoto)
{
    const test::TemporaryFolder folder;
    const QString path = test::PhotoBuilder{}.size(470, 330).write(folder.path(u"a.jpg"_s));
    workspace::cCollectionViewItem entry;
    entry.myPhotoDescription = path;
    entry.myPhotoPxSize = u"470x330px | 1.23KB"_s;
    photos.append(entry);
    photos.select(0);
    photo.setImage(picture(470, 330, Qt::red));

    (void)drawn();

    EXPECT_EQ(
        view.caption(), u"a.jpg  \u00b7  470 \u00d7 330  \u00b7  8 bit RGB  \u00b7  1.23KB"_s
    );
}

TEST_F(PreviewView, ShowsTheFittedPictureWhereAPartIsNotRenderedYet)
{
    photo.setImage(picture(4000, 2000, Qt::red));
    (void)drawn();
    view.setZoom(views::PreviewView::Zoom::Pixels);
    (void)drawn();

    QTest::mousePress(&view, Qt::LeftButton, {}, {500, 200});
    QTest::mouseMove(&view, {100, 200});

    ASSERT_FALSE(view.isUpToDate());
    EXPECT_EQ(view.grab().toImage().pixelColor(590, 200), QColor(Qt::red));
}

TEST_F(PreviewView, ShowsPixelsOfAPhotoThatIsOpenedAtOneToOne)
{
    view.setZoom(views::PreviewView::Zoom::Pixels);
    photo.setImage(picture(4000, 2000, Qt::red));
    (void)drawn();

    QTest::keyClick(&view, Qt::Key_Right);

    ASSERT_FALSE(view.isUpToDate());
    const QImage shown = view.grab().toImage();
    EXPECT_EQ(shown.pixelColor(590, 200), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(10, 200), QColor(Qt::red));
}

TEST_F(PreviewView, GoesOnShowingThePictureWhileTheZoomChanges)
{
    photo.setImage(picture(4000, 2000, Qt::red));
    (void)drawn();

    view.setZoom(views::PreviewView::Zoom::Pixels);
    ASSERT_FALSE(view.isUpToDate());
    EXPECT_EQ(view.grab().toImage().pixelColor(4, 4), QColor(Qt::red));
    (void)drawn();

    view.setZoom(views::PreviewView::Zoom::Fit);
    ASSERT_FALSE(view.isUpToDate());
    EXPECT_EQ(view.grab().toImage().pixelColor(4, 4), views::colors().canvas);
    EXPECT_EQ(view.grab().toImage().pixelColor(300, 200), QColor(Qt::red));
}

TEST_F(PreviewView, KeepsThePixelsOfAPhotoThatIsSetAgain)
{
    QImage stripes = solid(4000, 2000, Qt::black);
    for (int y = 0; y < stripes.height(); ++y)
        for (int x = 0; x < stripes.width(); x += 2)
            stripes.setPixelColor(x, y, Qt::white);
    const auto same = platform::graphics::Image::fromQImage(stripes);
    photo.setImage(same);
    view.setZoom(views::PreviewView::Zoom::Pixels);
    const QImage before = drawn();

    photo.setImage(same);
    overlay.clear();

    ASSERT_FALSE(view.isUpToDate());
    EXPECT_EQ(view.grab().toImage(), before);
}

TEST_F(PreviewView, ZoomsByTheWheelAtThePointer)
{
    QImage marked = solid(4000, 2000, Qt::red);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 300; ++x)
            marked.setPixelColor(x, y, Qt::blue);
    photo.setImage(platform::graphics::Image::fromQImage(marked));
    (void)drawn();
    const QPointF corner(40, 70); // in the blue corner of the fitted picture

    const auto turn = [&](int eighths) {
        QWheelEvent event(
            corner, view.mapToGlobal(corner), {}, {0, eighths}, {}, {}, Qt::NoScrollPhase, false
        );
        QApplication::sendEvent(&view, &event);
    };
    turn(120);
    EXPECT_EQ(view.zoom(), views::PreviewView::Zoom::Pixels);
    EXPECT_EQ(drawn().pixelColor(corner.toPoint()), QColor(Qt::blue));

    turn(-60);
    EXPECT_EQ(view.zoom(), views::PreviewView::Zoom::Pixels);
    turn(-60);
    EXPECT_EQ(view.zoom(), views::PreviewView::Zoom::Fit);
}

TEST_F(PreviewView, ZoomsAndMovesByKeyboard)
{
    QImage halves = solid(4000, 2000, Qt::red);
    for (int y = 0; y < halves.height(); ++y)
        for (int x = 2000; x < halves.width(); ++x)
            halves.setPixelColor(x, y, Qt::blue);
    photo.setImage(platform::graphics::Image::fromQImage(halves));

    QTest::keyClick(&view, Qt::Key_Plus);
    EXPECT_EQ(view.zoom(), views::PreviewView::Zoom::Pixels);
    EXPECT_EQ(drawn().pixelColor(240, 200), QColor(Qt::red));
    QTest::keyClick(&view, Qt::Key_Right);
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(drawn().pixelColor(240, 200), QColor(Qt::blue));

    QTest::keyClick(&view, Qt::Key_Minus);
    EXPECT_EQ(view.zoom(), views::PreviewView::Zoom::Fit);
}

TEST_F(PreviewView, ShowsThatTheKeyboardHasMovedToIt)
{
    photo.setImage(picture(2000, 1000, Qt::red));
    view.activateWindow();
    EXPECT_EQ(drawn().pixelColor(1, 1), views::colors().canvas);

    view.setFocus(Qt::TabFocusReason);

    EXPECT_EQ(drawn().pixelColor(1, 1), views::colors().accent);
}

TEST_F(PreviewView, TellsWhyThereIsNoPicture)
{
    const QImage empty = drawn();
    QSet<QRgb> inks;
    for (int y = 0; y < empty.height(); ++y)
        for (int x = 0; x < empty.width(); ++x)
            inks.insert(empty.pixel(x, y));
    EXPECT_GT(inks.size(), 20);
}
