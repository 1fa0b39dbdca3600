// SPDX-License-Identifier: GPL-3.0-or-later
#include <panels/panels.h>

#include <gtest/gtest.h>

#include <QSet>

using namespace brenvaldo;

TEST(Panels, HoldEveryControlOnceAndGiveNoNameTwice)
{
    const panels::Panels panels;

    QSet<QString> names;
    for (const controls::Control* control : panels.controls()) {
        for (const QString& name : control->aliases() + QStringList{control->name()}) {
            EXPECT_FALSE(names.contains(name)) << name.toStdString();
            names.insert(name);
        }
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
