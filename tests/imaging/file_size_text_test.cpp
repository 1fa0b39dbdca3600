// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>

#include <platform/foundation/exceptions.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::imaging::DVImageHandling;
using brenvaldo::test::CaseName;

namespace {

struct FileSizeCase
{
    const char* name;
    double bytes;
    QString expected;
};

void PrintTo(const FileSizeCase& fileSizeCase, std::ostream* out) { *out << fileSizeCase.name; }

class FileSizeText : public testing::TestWithParam<FileSizeCase>
{
};

constexpr double terabyte = 1024.0 * 1024.0 * 1024.0 * 1024.0;

const FileSizeCase fileSizeCases[] = {
    {"Nothing", 0, u"0.00bytes"_s},
    {"Bytes", 512, u"512.00bytes"_s},
    {"ExactlyOneKilobyte", 1024, u"1024.00bytes"_s},
    {"JustAboveOneKilobyte", 1025, u"1.00KB"_s},
    {"MiddleAboveAnEvenHundredth", 1152, u"1.12KB"_s},
    {"MiddleAboveAnOddHundredth", 1408, u"1.38KB"_s},
    {"Megabytes", 1572864, u"1.50MB"_s},
    {"Gigabytes", 5368709120.0, u"5.00GB"_s},
    {"ExactlyTheLastUnit", 1024 * terabyte, u"1024.00TB"_s},
};

} // namespace

TEST_P(FileSizeText, StepsThroughTheUnits)
{
    const FileSizeCase& row = GetParam();

    EXPECT_EQ(DVImageHandling::hNSFileSizeToHumanNotification(row.bytes), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, FileSizeText, testing::ValuesIn(fileSizeCases), CaseName());

TEST(FileSizeText, FailsToLookUpAUnitBeyondTheLast)
{
    EXPECT_THROW(
        DVImageHandling::hNSFileSizeToHumanNotification(1025 * terabyte),
        brenvaldo::platform::RangeError
    );
}
