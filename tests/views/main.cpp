// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/surroundings.h"

#include <platform/graphics/engine.h>
#include <views/look/theme.h>

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    const brenvaldo::test::Surroundings surroundings;
    const brenvaldo::platform::graphics::Engine engine;
    QApplication application(argc, argv);
    brenvaldo::views::applyTheme();
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
