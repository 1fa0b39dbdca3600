// SPDX-License-Identifier: GPL-3.0-or-later
#include "controller_fixture.h"

#include <platform/foundation/files_in_the_making.h>
#include <platform/foundation/literals.h>
#include <platform/graphics/engine_thread.h>
#include <platform/storage/atomic_file.h>

#include <support/case_name.h>

#include <QDir>

#include <chrono>
#include <thread>

using namespace brenvaldo;

namespace {

struct Run
{
    const char* name; ///< function id
    int editIndex = 0; ///< of `pubEditPhoto`, for the functions that are found there
};

void PrintTo(const Run& run, std::ostream* out) { *out << run.name; }

imaging::ResultWord writeAtOnce(const imaging::PictureToSave& picture)
{
    return platform::storage::writeFileAtomically(picture.destination, "a picture")
        ? imaging::ResultWord::Ok
        : imaging::ResultWord::Failed;
}

/// Takes as long as nobody gives it up.
imaging::ResultWord writeWhenCancelled(const imaging::PictureToSave& picture)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::minutes(2);
    while (!platform::graphics::EvaluationTerms::ofThread().isCancelled()) {
        if (std::chrono::steady_clock::now() > deadline)
            return imaging::ResultWord::IoFailure;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return writeAtOnce(picture);
}

using ClosingWhilePhotosAreMade = test::ControllerTest;

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

TEST_F(ClosingWhilePhotosAreMade, WaitsForNothingButWhatIsPutInPlace)
{
    panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path());
    for (const QString& name : {u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s, u"d.jpg"_s})
        photos.append(entry(u"/in/"_s + name, u"L"_s));
    neighbours.photosAtATime = [] { return 4; };
    neighbours.cores = 4;
    panels.window.pubEditPhoto.selectIndex(2);
    select("framing");
    runs("framing", [&](const workspace::PhotoOutput& output) -> imaging::Outcome {
        const QString name = output.photo.source.section(u'/', -1);
        if (name == u"b.jpg")
            platform::awaitAllFiles(); // the first photo stands before the program is asked to end
        if (name == u"d.jpg")
            panels.window.myProgressBar.askToEnd();
        return imaging::PictureToSave{
            .destination = folder.path(name),
            .typeIdentifier = u"public.jpeg"_s,
            .image = std::nullopt,
            .writer = name == u"b.jpg" ? writeWhenCancelled : writeAtOnce};
    });

    actions.send(u"hLoadImages"_s);

    ASSERT_EQ(journal.records().size(), 1);
    EXPECT_EQ(journal.records().first().source, u"/in/a.jpg"_s);
    EXPECT_EQ(journal.records().first().word, imaging::ResultWord::Ok);
    EXPECT_EQ(QDir(folder.path()).entryList({u"*.jpg"_s}), QStringList{u"a.jpg"_s});
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
