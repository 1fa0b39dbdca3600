// SPDX-License-Identifier: GPL-3.0-or-later
#include <panels/panels.h>

#include <gtest/gtest.h>

#include <QSet>

using namespace brenvaldo;

TEST(Panels, HoldEveryControlOnce)
{
    const panels::Panels panels;

    QSet<QString> names;
    for (const controls::Control* control : panels.controls()) {
        EXPECT_FALSE(names.contains(control->name())) << control->name().toStdString();
        names.insert(control->name());
    }
}

TEST(Panels, ShowAViewOnlyWhenAllViewsAroundItAreShown)
{
    panels::Panels panels;
    const auto& inner = panels.vwResizePhotos.dvVCUiScaleMaxView;
    EXPECT_FALSE(panels.isShown(inner));

    panels.window.dvVCUiMainPropertyView.addView(panels.vwResizePhotos.name());

    EXPECT_TRUE(panels.isShown(inner));
    EXPECT_FALSE(panels.isShown(panels.vwResizePhotos.dvVCUiScaleFixView));
}
