// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <workspace/start/full_screen_window.h>
#include <workspace/start/main_app_window.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

namespace {

const QRectF screen(0, 0, 1600, 1000);
const QRectF contents(100, 50, 800, 600);

} // namespace

TEST(MainAppWindow, TakesADropAndDoesNothingWithIt)
{
    QStringList output;
    workspace::mainAppWindow mainWindow([&](const QString& text) { output.append(text); });

    mainWindow.awakeFromNib();
    EXPECT_EQ(mainWindow.draggingEntered(), -1);
    EXPECT_TRUE(mainWindow.prepareForDragOperation());
    EXPECT_TRUE(mainWindow.performDragOperation(QStringList{u"a"_s, u"b"_s}));
    EXPECT_TRUE(mainWindow.performDragOperation(std::nullopt));

    EXPECT_EQ(
        output,
        (QStringList{u"Awake"_s, u"Enter"_s, u"Prepare"_s, u"Perform"_s, u"2\n"_s, u"Perform"_s})
    );
}

TEST(FullScreenWindow, FillsTheFirstScreenAndGoesBack)
{
    workspace::DVFFullScreen fullScreen(contents, [] { return QList<QRectF>{screen}; });

    fullScreen.toggleFullscreen();
    EXPECT_EQ(fullScreen.fullscreenState(), 1);
    EXPECT_EQ(fullScreen.frame(), screen);
    EXPECT_FALSE(fullScreen.isMenuBarShown());

    fullScreen.toggleFullscreen();
    EXPECT_EQ(fullScreen.fullscreenState(), 0);
    EXPECT_EQ(fullScreen.frame(), contents);
    EXPECT_TRUE(fullScreen.isMenuBarShown());
}

TEST(FullScreenWindow, GoesBackToWhereItWasMoved)
{
    const QRectF moved(300, 200, 640, 480);
    workspace::DVFFullScreen fullScreen(contents, [] { return QList<QRectF>{screen}; });
    fullScreen.setFrame(moved);

    fullScreen.toggleFullscreen();
    EXPECT_EQ(fullScreen.originalRect(), moved);
    fullScreen.toggleFullscreen();
    EXPECT_EQ(fullScreen.frame(), moved);

    fullScreen.setFrame(contents);
    fullScreen.setFullscreenEnabled(1);
    EXPECT_EQ(fullScreen.originalRect(), contents);
    fullScreen.setFullscreenEnabled(2);
    EXPECT_EQ(fullScreen.frame(), contents);
    EXPECT_EQ(fullScreen.fullscreenState(), 0);
}

TEST(FullScreenWindow, KeepsTheEarlierFrameWhenItIsEnabledTwice)
{
    workspace::DVFFullScreen fullScreen(contents, [] { return QList<QRectF>{screen}; });

    fullScreen.setFullscreenEnabled(1);
    fullScreen.setFullscreenEnabled(1);
    EXPECT_EQ(fullScreen.originalRect(), contents);

    fullScreen.setFullscreenEnabled(0);
    EXPECT_EQ(fullScreen.frame(), contents);
}

TEST(FullScreenWindow, IsEmptyWithoutAScreen)
{
    workspace::DVFFullScreen fullScreen(contents, [] { return QList<QRectF>(); });

    fullScreen.toggleFullscreen();

    EXPECT_EQ(fullScreen.frame(), QRectF());
}

TEST(FullScreenWindow, ShowsTheMenuBarWhenItCloses)
{
    workspace::DVFFullScreen fullScreen(contents, [] { return QList<QRectF>{screen}; });
    fullScreen.toggleFullscreen();

    fullScreen.windowWillClose();

    EXPECT_TRUE(fullScreen.isMenuBarShown());
    EXPECT_TRUE(fullScreen.canBecomeKeyWindow());
}
