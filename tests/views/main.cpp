// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/graphics/engine.h>
#include <views/theme.h>

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const brenvaldo::platform::Engine engine;
    QApplication application(argc, argv);
    brenvaldo::views::applyTheme(application);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
