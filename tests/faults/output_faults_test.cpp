// SPDX-License-Identifier: GPL-3.0-or-later
// The disk refuses each single call that makes a file, in turn: nothing damaged may come of it.

#include "injected_faults.h"

#include <platform/foundation/literals.h>
#include <script/script_fixture.h>
#include <support/exif_block.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>

#include <QDir>

using namespace brenvaldo;
using test::InjectedFaults;
using test::LogLines;
using test::PhotoBuilder;

namespace {

/// The longer side of the photo; a larger one is asked for by the environment.
int photoSide()
{
    const int asked = qEnvironmentVariableIntValue("BRENVALDO_FAULT_PHOTO");
    return asked > 0 ? asked : 150;
}

struct OutputCase
{
    const char* name;
    const char* commands; ///< choose the function and its settings
    const char* type; ///< item of the file type
    const char* target; ///< the file that comes of "photo.jpg"

    friend void PrintTo(const OutputCase& row, std::ostream* out) { *out << row.name; }
};

constexpr const char* conversion = "set pubFileManagementSelect 3";
constexpr const char* resizing = "set pubEditPhoto 8\n"
                                 "set pubScaleType 0\n"
                                 "set pubScaleMaxType 2\n"
                                 "set tfScaleMaxVal 120";
constexpr const char* textMark = "set pubEditPhoto 0\n"
                                 "set tbvWatermarkType Text\n"
                                 "set cbFontList 0\n"
                                 "set tvWaterMarkText M\n"
                                 "set tfFontSize 20";

enum class Target { New, Old };
enum class Folder { WithNamelessFiles, WithoutThem };

using FaultCase = std::tuple<OutputCase, Target, Folder>;

std::string nameOf(const testing::TestParamInfo<FaultCase>& row)
{
    const auto& [output, target, folder] = row.param;
    return std::string(output.name) + (target == Target::New ? "New" : "OverOld")
        + (folder == Folder::WithNamelessFiles ? "" : "WithHiddenFile");
}

constexpr const char* oldContents = "the good old file";

} // namespace

class FullDiskAtEachCall : public test::ScriptTest, public testing::WithParamInterface<FaultCase>
{
protected:
    FullDiskAtEachCall()
    {
        QDir(folder()).mkdir(u"out"_s);
        const int side = photoSide();
        m_photo = PhotoBuilder()
                      .size(side, side * 2 / 3)
                      .pixels([](int x, int y) {
                          const int noise = (x * 7919 + y * 104729 + x * y * 31) & 255;
                          return test::Samples{noise, (noise * 3) & 255, (noise * 5) & 255};
                      })
                      .exif(test::exifBlock({.make = "Maker of cameras"}))
                      .write(folder() + u"photo.jpg"_s);
    }

    [[nodiscard]] static const OutputCase& output() { return std::get<OutputCase>(GetParam()); }

    [[nodiscard]] QString target() const
    {
        return folder() + u"out/"_s + QLatin1String(output().target);
    }

    [[nodiscard]] static bool isOverOldFile()
    {
        return std::get<Target>(GetParam()) == Target::Old;
    }

    void prepareTarget() const
    {
        QFile::remove(target());
        if (isOverOldFile())
            static_cast<void>(files().write(u"out/"_s + QLatin1String(output().target), oldContents)
            );
    }

    /// The result word of a run with these faults.
    [[nodiscard]] QString wordOfRun() const
    {
        const auto outcome = run(lines(
            {QLatin1String(output().commands),
             u"set tfImageDestinationFolder "_s + folder() + u"out/"_s,
             u"set pubFileType "_s + QLatin1String(output().type),
             u"open "_s + m_photo,
             u"press hLoadImages"_s}
        ));
        EXPECT_EQ(outcome.errors, QString());
        const QString line = outcome.lines.isEmpty() ? QString() : outcome.lines.last();
        return line.section(u'\t', 2);
    }

    [[nodiscard]] QStringList filesOfFolder() const
    {
        return QDir(folder() + u"out"_s)
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    [[nodiscard]] static InjectedFaults::Plan plan(int first, bool stays)
    {
        const bool isWithout = std::get<Folder>(GetParam()) == Folder::WithoutThem;
        return {.first = first, .stays = stays, .refusesNamelessFiles = isWithout};
    }

    void expectNoHarm(const QString& word, const QStringList& log) const
    {
        EXPECT_EQ(word, u"Failed"_s);
        EXPECT_THAT(log.join(u'\n').toStdString(), testing::HasSubstr("No space left on device"));
        EXPECT_EQ(
            filesOfFolder(),
            isOverOldFile() ? QStringList{QLatin1String(output().target)} : QStringList()
        );
        EXPECT_EQ(
            test::TemporaryFolder::read(target()), isOverOldFile() ? QByteArray(oldContents) : ""
        );
    }

private:
    QString m_photo;
};

TEST_P(FullDiskAtEachCall, FailsAndLeavesTheOldFileAlone)
{
    int calls = 0;
    {
        prepareTarget();
        const InjectedFaults none(folder() + u"out/"_s, plan(0, false));
        ASSERT_EQ(wordOfRun(), u"OK"_s);
        calls = none.calls();
        ASSERT_GE(calls, 3);
        ASSERT_EQ(filesOfFolder(), QStringList{QLatin1String(output().target)});
        ASSERT_NE(test::TemporaryFolder::read(target()), oldContents);
    }
    for (int call = 1; call <= calls; ++call) {
        for (const bool stays : {false, true}) {
            SCOPED_TRACE(
                testing::Message()
                << "call " << call << " of " << calls << (stays ? " and all after it" : "")
            );
            prepareTarget();
            const LogLines log;
            const InjectedFaults faults(folder() + u"out/"_s, plan(call, stays));
            const QString word = wordOfRun();
            expectNoHarm(word, log.lines());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Outputs,
    FullDiskAtEachCall,
    testing::Combine(
        testing::Values(
            OutputCase{"ConvertedPng", conversion, "png", "photo.png"},
            OutputCase{"ConvertedTiff", conversion, "tiff", "photo.tiff"},
            OutputCase{"ConvertedBmp", conversion, "bmp", "photo.bmp"},
            OutputCase{"ConvertedGif", conversion, "gif", "photo.gif"},
            OutputCase{"ConvertedJpeg", conversion, "jpeg", "photo.jpeg"},
            OutputCase{"ConvertedJpeg2000", conversion, "jp2", "photo.jp2"},
            OutputCase{"ConvertedHeic", conversion, "heic", "photo.heic"},
            OutputCase{"ConvertedPdf", conversion, "pdf", "photo.pdf"},
            OutputCase{"ResizedPng", resizing, "png", "photo.png"},
            OutputCase{"ResizedTiff", resizing, "tiff", "photo.tiff"},
            OutputCase{"ResizedBmp", resizing, "bmp", "photo.bmp"},
            OutputCase{"ResizedGif", resizing, "gif", "photo.gif"},
            OutputCase{"ResizedJpeg", resizing, "jpeg", "photo.jpg"},
            OutputCase{"ResizedJpeg2000", resizing, "jp2", "photo.jp2"},
            OutputCase{"ResizedHeic", resizing, "heic", "photo.heic"},
            OutputCase{"MarkedPng", textMark, "png", "photo.png"},
            OutputCase{"MarkedTiff", textMark, "tiff", "photo.tiff"},
            OutputCase{"MarkedBmp", textMark, "bmp", "photo.bmp"},
            OutputCase{"MarkedGif", textMark, "gif", "photo.gif"},
            OutputCase{"MarkedJpeg", textMark, "jpeg", "photo.jpg"},
            OutputCase{"MarkedJpeg2000", textMark, "jp2", "photo.jp2"}
        ),
        testing::Values(Target::New, Target::Old),
        testing::Values(Folder::WithNamelessFiles, Folder::WithoutThem)
    ),
    nameOf
);
