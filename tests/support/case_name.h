// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace brenvaldo::test {

/// Names the tests of a table after the `name` of its rows.
struct CaseName
{
    template <class Case>
    std::string operator()(const testing::TestParamInfo<Case>& row) const
    {
        return row.param.name;
    }
};

} // namespace brenvaldo::test
