// SPDX-License-Identifier: GPL-3.0-or-later
// The disk refuses each single call that changes a photo in place: it is the old one, or the whole
// new one.

#include "injected_faults.h"

#include <platform/foundation/literals.h>
#include <script/script_fixture.h>
#include <support/case_name.h>
#include <support/exif_block.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>

#include <QDir>

#include <csignal>

using namespace brenvaldo;
using test::InjectedFaults;
using test::PhotoBuilder;
using test::PhotoFormat;

namespace {

struct PhotoCase
{
    const char* name;
    PhotoFormat format;
    const char* file;
    bool refusesNamelessFiles = false;

    friend void PrintTo(const PhotoCase& row, std::ostream* out) { *out << row.name; }
};

} // namespace

class CommentOnAFullDisk : public test::ScriptTest, public testing::WithParamInterface<PhotoCase>
{
protected:
    CommentOnAFullDisk()
    {
        QDir(folder()).mkdir(u"photos"_s);
        m_old = PhotoBuilder()
                    .format(GetParam().format)
                    .size(64, 48)
                    .exif(test::exifBlock({.make = "Maker of cameras"}))
                    .bytes();
    }

    [[nodiscard]] QString photos() const { return folder() + u"photos/"_s; }
    [[nodiscard]] QString path() const { return photos() + QLatin1String(GetParam().file); }
    [[nodiscard]] const QByteArray& old() const { return m_old; }

    void putOldPhoto() const
    {
        static_cast<void>(files().write(u"photos/"_s + QLatin1String(GetParam().file), m_old));
    }

    [[nodiscard]] QString wordOfRun() const
    {
        const auto outcome = run(lines(
            {u"set pubFileManagementSelect 1"_s,
             u"open "_s + path(),
             u"set tfExifUserComment \"At sea\""_s,
             u"set tfIPTCKeyWords \"sea;boat\""_s,
             u"press hLoadImages"_s}
        ));
        EXPECT_EQ(outcome.errors, QString());
        return outcome.lines.isEmpty() ? QString() : outcome.lines.last().section(u'\t', 2);
    }

    [[nodiscard]] static InjectedFaults::Plan plan(int first, bool stays)
    {
        return {
            .first = first,
            .stays = stays,
            .refusesNamelessFiles = GetParam().refusesNamelessFiles};
    }

    [[nodiscard]] QStringList filesOfFolder() const
    {
        return QDir(photos()).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot
        );
    }

private:
    QByteArray m_old;
};

TEST_P(CommentOnAFullDisk, FailsAndLeavesThePhotoAsItWas)
{
    int calls = 0;
    {
        putOldPhoto();
        const InjectedFaults none(photos(), plan(0, false));
        ASSERT_EQ(wordOfRun(), u"OK"_s);
        calls = none.calls();
        ASSERT_GE(calls, 3);
        ASSERT_TRUE(test::TemporaryFolder::read(path()).contains("At sea"));
    }
    for (int call = 1; call <= calls; ++call) {
        for (const bool stays : {false, true}) {
            SCOPED_TRACE(testing::Message() << "call " << call << " of " << calls << ' ' << stays);
            putOldPhoto();
            const test::LogLines log;
            const InjectedFaults faults(photos(), plan(call, stays));

            EXPECT_EQ(wordOfRun(), u"Failed"_s);

            EXPECT_EQ(test::TemporaryFolder::read(path()), old());
            EXPECT_EQ(filesOfFolder(), QStringList{QLatin1String(GetParam().file)});
            EXPECT_THAT(
                log.lines().join(u'\n').toStdString(), testing::HasSubstr("No space left on device")
            );
        }
    }
}

TEST_P(CommentOnAFullDisk, LeavesThePhotoAsItWasWhenTheProcessIsKilled)
{
    putOldPhoto();

    EXPECT_EXIT(
        {
            InjectedFaults::Plan killing = plan(0, false);
            killing.killsAtRename = true;
            const InjectedFaults faults(photos(), killing);
            static_cast<void>(wordOfRun());
        },
        testing::KilledBySignal(SIGKILL),
        ""
    );

    EXPECT_EQ(test::TemporaryFolder::read(path()), old());
}

INSTANTIATE_TEST_SUITE_P(
    Photos,
    CommentOnAFullDisk,
    testing::Values(
        PhotoCase{"Jpeg", PhotoFormat::Jpeg, "photo.jpg"},
        PhotoCase{"JpegWithHiddenFile", PhotoFormat::Jpeg, "photo.jpg", true},
        PhotoCase{"Png", PhotoFormat::Png, "photo.png"},
        PhotoCase{"Tiff", PhotoFormat::Tiff, "photo.tif"},
        PhotoCase{"Jpeg2000", PhotoFormat::Jpeg2000, "photo.jp2"},
        PhotoCase{"Heic", PhotoFormat::Heic, "photo.heic"}
    ),
    test::CaseName{}
);
