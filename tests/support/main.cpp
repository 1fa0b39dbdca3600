// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/graphics/engine.h>

#include <QGuiApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const brenvaldo::platform::Engine engine;
    const QGuiApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
