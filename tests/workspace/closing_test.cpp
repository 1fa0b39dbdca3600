// SPDX-License-Identifier: GPL-3.0-or-later
#include "controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/case_name.h>

using namespace brenvaldo;

namespace {

struct Run
{
    const char* name; ///< function id
    int editIndex = 0; ///< of `pubEditPhoto`, for the functions that are found there
};

void PrintTo(const Run& run, std::ostream* out) { *out << run.name; }

/// Runs whose operations stand still: each photo leaves its row in the Run Journal.
class ClosingDuringARun : public test::ControllerTest, public testing::WithParamInterface<Run>
{
};

} // namespace

TEST_P(ClosingDuringARun, EndsItAfterThePhotoInHand)
{
    panels.vwMainDestination.tfImageDestinationFolder.setStringValue(u"/out/"_s);
    panels.vwShowPreview.cbShowPreview.setState(1);
    panels.window.pubEditPhoto.selectIndex(GetParam().editIndex);
    for (const QString& name : {u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s, u"d.jpg"_s})
        photos.append(entry(u"/in/"_s + name, u"L"_s));
    select(GetParam().name);
    const auto closing = journal.recorded.connect([&](const workspace::RunRecord& record) {
        if (record.source == u"/in/b.jpg")
            panels.window.myProgressBar.askToEnd();
    });

    actions.send(u"hLoadImages"_s);

    ASSERT_EQ(journal.records().size(), 2);
    EXPECT_EQ(journal.records().last().source, u"/in/b.jpg"_s);
    EXPECT_TRUE(panels.window.myProgressBar.isHidden());
    EXPECT_TRUE(panels.vwShowPreview.cbShowPreview.isOn());
}

INSTANTIATE_TEST_SUITE_P(
    BatchDriver,
    ClosingDuringARun,
    testing::Values(
        Run{"framing", 2},
        Run{"batchUploadPhotos"},
        Run{"batchExifUC"},
        Run{"fileRenaming"},
        Run{"batchFileConvert"}
    ),
    test::CaseName{}
);
