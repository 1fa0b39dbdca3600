// SPDX-License-Identifier: GPL-3.0-or-later
#include "surroundings.h"

#include <platform/graphics/engine.h>

#include <QGuiApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    const brenvaldo::test::Surroundings surroundings;
    const brenvaldo::platform::graphics::Engine engine;
    const QGuiApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
