// SPDX-License-Identifier: GPL-3.0-or-later
#include <workspace/binding_objects.h>

#include <gtest/gtest.h>

namespace brenvaldo::workspace {
namespace {

TEST(MyModel, KeepsItsNumber)
{
    MyModel model;
    EXPECT_EQ(model.floatValue(), 0);

    model.setFloatValue(2.5);

    EXPECT_EQ(model.floatValue(), 2.5);
}

TEST(MyObjectControler, SharesTheModelThatWasBoundLast)
{
    MyObjectControler controller;
    EXPECT_EQ(controller.myModelObj(), nullptr);

    const auto model = std::make_shared<MyModel>();
    controller.setMyModelObj(model);

    EXPECT_EQ(controller.myModelObj(), model);
}

} // namespace
} // namespace brenvaldo::workspace
