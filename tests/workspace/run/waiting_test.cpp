// SPDX-License-Identifier: GPL-3.0-or-later
// Who asks for what a photo before leaves behind finds it there, though it may still be in the
// making.

#include "../controller_fixture.h"

#include <platform/foundation/literals.h>
#include <platform/storage/atomic_file.h>
#include <platform/storage/file_system.h>
#include <platform/storage/trash.h>

#include <support/environment.h>

#include <QDir>

#include <atomic>
#include <chrono>
#include <thread>

using namespace brenvaldo;
using imaging::PictureToSave;
using imaging::ResultWord;
using workspace::PhotoOutput;

namespace {

ResultWord writeLate(const PictureToSave& picture)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    return platform::storage::writeFileAtomically(picture.destination, "a picture")
        ? ResultWord::Ok
        : ResultWord::Failed;
}

ResultWord writeOverWhatIsThere(const PictureToSave& picture)
{
    return QFile::exists(picture.destination) ? writeLate(picture) : ResultWord::Exists;
}

std::atomic<int> writingNow = 0;
std::atomic<int> mostWritingAtOnce = 0;

ResultWord countWriting(const PictureToSave& /*picture*/)
{
    const int now = ++writingNow;
    for (int most = mostWritingAtOnce;
         most < now && !mostWritingAtOnce.compare_exchange_weak(most, now);) { }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    --writingNow;
    return ResultWord::Ok;
}

class FilesOfARun : public test::ControllerTest
{
protected:
    FilesOfARun()
    {
        neighbours.photosAtATime = [] { return 4; };
        neighbours.cores = 4;
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path());
        panels.window.pubEditPhoto.selectIndex(2);
        select("framing");
    }

    void addPhotos(const QStringList& paths)
    {
        for (const QString& path : paths)
            photos.append(entry(path, u"L"_s));
    }

    /// A picture that is written late to the file that the run takes for its target.
    [[nodiscard]] static PictureToSave latePicture(const PhotoOutput& output)
    {
        return {
            .destination = output.photo.destinationBase + u".jpg"_s,
            .typeIdentifier = u"public.jpeg"_s,
            .image = std::nullopt,
            .writer = writeLate};
    }

    void run() { actions.send(u"hLoadImages"_s); }

    [[nodiscard]] qsizetype recorded() const { return journal.records().size(); }
};

} // namespace

TEST_F(FilesOfARun, StandBeforeAnotherRunBeginsInsideOfIt)
{
    addPhotos({u"/in/a.jpg"_s, u"/in/b.jpg"_s});
    QList<qsizetype> recordedAtPhotos;
    runs("framing", [&](const PhotoOutput& output) -> imaging::Outcome {
        recordedAtPhotos.append(recorded());
        if (recordedAtPhotos.size() == 2)
            run();
        if (recordedAtPhotos.size() == 1)
            return latePicture(output);
        return ResultWord::Ok;
    });

    run();

    // The first photo, the second, and the first of the run inside.
    ASSERT_EQ(recordedAtPhotos.size(), 4);
    EXPECT_EQ(recordedAtPhotos.at(1), 0);
    EXPECT_EQ(recordedAtPhotos.at(2), 1);
}

TEST_F(FilesOfARun, StandBeforeAnAlertIsShown)
{
    addPhotos({u"/in/a.jpg"_s, u"/in/b.jpg"_s});
    std::get<workspace::PhotoRun>(row("framing").run).start
        = [](const workspace::RunContext& context) -> workspace::PhotoRun::Operation {
        return [&context](const PhotoOutput& output) -> std::optional<imaging::Outcome> {
            if (output.photo.source == u"/in/a.jpg")
                return latePicture(output);
            context.alert({u"A title"_s, u"A text"_s});
            return std::nullopt;
        };
    };
    qsizetype recordedAtTheAlert = -1;
    const auto alert = alertShown.connect([&](const QString&, const QString&) {
        recordedAtTheAlert = recorded();
    });

    run();

    EXPECT_EQ(recordedAtTheAlert, 1);
}

TEST_F(FilesOfARun, StandBeforeTheBarGoesDown)
{
    addPhotos({u"/in/a.jpg"_s, u"/in/b.jpg"_s});
    runs("framing", latePicture);
    bool isShown = false;
    qsizetype recordedAtTheEnd = 0;
    const auto bar = panels.window.myProgressBar.changed.connect([&] {
        if (std::exchange(isShown, !panels.window.myProgressBar.isHidden()) && !isShown)
            recordedAtTheEnd = recorded();
    });

    run();

    EXPECT_EQ(recordedAtTheEnd, 2);
}

TEST_F(FilesOfARun, StandBeforeTheSameTargetIsWrittenAgain)
{
    addPhotos({u"/in/a.jpg"_s, u"/elsewhere/a.jpg"_s});
    runs("framing", [](const PhotoOutput& output) {
        PictureToSave picture = latePicture(output);
        if (output.photo.source.startsWith(u"/elsewhere"))
            picture.writer = writeOverWhatIsThere;
        return picture;
    });

    run();

    ASSERT_EQ(recorded(), 2);
    EXPECT_EQ(journal.records().at(0).word, ResultWord::Ok);
    EXPECT_EQ(journal.records().at(1).word, ResultWord::Ok);
}

TEST_F(FilesOfARun, StandBeforeAPhotoOfThatNameIsNamed)
{
    addPhotos({u"/in/a.jpg"_s, folder.path(u"a.jpg"_s)});
    panels.vwWatermark.cActionsTWMArrayController.addObject({u"Prefix"_s, u"x"_s});
    QList<bool> found;
    neighbours.hRenameTWMFile = [&](const QString& path, const QString& name, const auto&) {
        found.append(QFile::exists(path));
        return name;
    };
    runs("framing", latePicture);

    run();

    EXPECT_EQ(found, (QList<bool>{false, true}));
}

TEST_F(FilesOfARun, StandBeforeWhatTheyAreMadeOfIsChanged)
{
    using namespace platform::storage;
    const QString source = folder.path(u"in/a.jpg"_s);
    const QString other = folder.path(u"b.jpg"_s);
    const test::Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());
    const std::vector<std::function<void()>> changes{
        [&] { EXPECT_TRUE(writeFileAtomically(source, "another")); },
        [&] { EXPECT_TRUE(moveItem({.source = source, .target = other})); },
        [&] { EXPECT_TRUE(removeItem(source)); },
        [&] { EXPECT_TRUE(removeItem(folder.path(u"in"_s))); },
        [&] { EXPECT_TRUE(moveToTrash(source)); }};
    addPhotos({source, u"/in/b.jpg"_s});
    for (const auto& change : changes) {
        QDir().mkpath(folder.path(u"in"_s));
        static_cast<void>(folder.write(u"in/a.jpg"_s, "a photo"));
        const qsizetype before = recorded();
        qsizetype recordedAtLook = 0;
        qsizetype recordedAtChange = 0;
        runs("framing", [&](const PhotoOutput& output) -> imaging::Outcome {
            if (output.photo.source == source)
                return latePicture(output);
            EXPECT_TRUE(fileExists(source));
            recordedAtLook = recorded() - before;
            change();
            recordedAtChange = recorded() - before;
            return ResultWord::Ok;
        });

        run();

        EXPECT_EQ(recordedAtLook, 0);
        EXPECT_EQ(recordedAtChange, 1);
        QFile::remove(folder.path(u"a.jpg"_s));
    }
}

TEST_F(FilesOfARun, AreNoMoreAtOnceThanThereAreCores)
{
    neighbours.photosAtATime = [] { return 1'000'000; };
    neighbours.cores = 2;
    for (int photo = 0; photo < 12; ++photo)
        addPhotos({u"/in/%1.jpg"_s.arg(photo)});
    mostWritingAtOnce = 0;
    runs("framing", [](const PhotoOutput& output) {
        PictureToSave picture = latePicture(output);
        picture.writer = countWriting;
        return picture;
    });

    run();

    EXPECT_EQ(mostWritingAtOnce, 2);
}

TEST_F(FilesOfARun, HaveTheirWordsWhereTheLastOneIsAskedFor)
{
    addPhotos({u"/in/a.jpg"_s, u"/in/b.jpg"_s});
    panels.vwWatermark.tbvWatermarkType.selectIndex(1);
    panels.window.pubEditPhoto.selectIndex(0);
    select("imageWM");
    ResultWord last = ResultWord::None;
    worksOn("imageWM", [&](const workspace::ListRun::Photos& run) {
        const PhotoOutput output{
            .photo = {.source = u"/in/a.jpg"_s, .destinationBase = folder.path(u"a"_s)},
            .tail = {}};
        run.sink.take(
            {.source = u"/in/a.jpg"_s,
             .target = folder.path(u"a.jpg"_s),
             .outcome = latePicture(output)}
        );
        run.sink.take(
            {.source = u"/in/b.jpg"_s,
             .target = folder.path(u"b.jpg"_s),
             .outcome = ResultWord::IoFailure}
        );
        last = run.sink.lastWord();
    });

    run();

    EXPECT_EQ(last, ResultWord::IoFailure);
}
