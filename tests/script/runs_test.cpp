// SPDX-License-Identifier: GPL-3.0-or-later
// Whole scripts on real photos: what a user of the script program sees.

#include "script_fixture.h"

#include <support/photo_builder.h>

#include <QDir>
#include <QImageReader>

using namespace brenvaldo;
using test::PhotoBuilder;
using test::PhotoFormat;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

namespace {

const QString missingDestination
    = u"alert\tMissing destination.\tPlease choose a destination folder,\\rwhere you like to store "
      u"your processed photos."_qs;

QSize sizeOf(const QString& path) { return QImageReader(path).size(); }

} // namespace

class ScriptRun : public test::ScriptTest
{
protected:
    ScriptRun() { QDir(folder()).mkdir(u"out"_qs); }

    [[nodiscard]] QString output(const QString& name = {}) const
    {
        return folder() + u"out/"_qs + name;
    }

    [[nodiscard]] QString photo(const QString& name, PhotoBuilder builder = {}) const
    {
        return builder.write(folder() + name);
    }

    [[nodiscard]] QStringList writtenFiles() const
    {
        return QDir(output()).entryList(QDir::Files, QDir::Name);
    }

    /// The commands that set up the resize function.
    [[nodiscard]] QString resizeTo(const QString& value) const
    {
        return lines(
            {u"set pubEditPhoto 8"_qs,
             u"set tfImageDestinationFolder "_qs + output(),
             u"set pubScaleType 0"_qs,
             u"set pubScaleMaxType 2"_qs,
             u"set tfScaleMaxVal "_qs + value,
             u"set pubFileType \"original file type\""_qs}
        );
    }
};

TEST_F(ScriptRun, ResizesTheLongestSideAndTellsEachResult)
{
    const QString wide
        = photo(u"wide.jpg"_qs, PhotoBuilder().size(4000, 3000).solid({90, 120, 40}));
    const QString tall = photo(
        u"tall.png"_qs,
        PhotoBuilder().size(3000, 4000).solid({90, 120, 40}).format(PhotoFormat::Png)
    );
    const QString text = files().write(u"notes.txt"_qs, "no photo");

    // A file that is no photo has no size to resize to, which the operation takes for done.
    const auto outcome = run(lines({
        u"set pubEditPhoto 8"_qs,
        u"open %1 %2 %3"_qs.arg(wide, tall, text),
        u"set tfImageDestinationFolder "_qs + output(),
        u"set pubScaleType 0"_qs,
        u"set pubScaleMaxType 2"_qs,
        u"set tfScaleMaxVal 1000"_qs,
        u"set pubFileType \"original file type\""_qs,
        u"press hLoadImages"_qs,
    }));

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            u"result\t%1\tOK"_qs.arg(wide),
            u"result\t%1\tOK"_qs.arg(tall),
            u"result\t%1\tOK"_qs.arg(text)
        )
    );
    EXPECT_THAT(writtenFiles(), ElementsAre(u"tall.png"_qs, u"wide.jpg"_qs));
    EXPECT_EQ(sizeOf(output(u"wide.jpg"_qs)), QSize(1000, 750));
    EXPECT_EQ(sizeOf(output(u"tall.png"_qs)), QSize(750, 1000));
}

TEST_F(ScriptRun, AlertsOfAMissingDestinationBeforeItLooksAtTheList)
{
    EXPECT_THAT(run(u"press hLoadImages"_qs).lines, ElementsAre(missingDestination));
}

TEST_F(ScriptRun, AlertsOfAnEmptyList)
{
    const auto outcome = run(resizeTo(u"100"_qs) + u"press hLoadImages"_qs);

    EXPECT_THAT(
        outcome.lines, ElementsAre(u"alert\tNo photos to process.\tPlease choose photos first."_qs)
    );
}

TEST_F(ScriptRun, AlertsAnewForEachPhotoOfAWrongValue)
{
    const auto outcome = run(
        resizeTo(u"0"_qs)
        + lines(
            {u"open %1 %2"_qs.arg(photo(u"a.jpg"_qs), photo(u"b.jpg"_qs)), u"press hLoadImages"_qs}
        )
    );

    const QString alert = u"alert\tWrong value\tValue can't be empty or '0'."_qs;
    EXPECT_THAT(outcome.lines, IsSupersetOf({alert, alert}));
    EXPECT_THAT(writtenFiles(), IsEmpty());
}

TEST_F(ScriptRun, TellsTheClosingOfTheAlertAndNotItsOpening)
{
    const auto outcome
        = run(lines({u"press hLoadImages"_qs, u"press closeApplicationAlertSheetObjC"_qs}));

    EXPECT_THAT(outcome.lines, ElementsAre(missingDestination, u"sheet\twwAlertWindow\tclosed"_qs));
}

TEST_F(ScriptRun, TellsAPanelWithItsAnswer)
{
    const auto outcome = run(lines(
        {u"answer \"%1\""_qs.arg(output()),
         u"press hChooseScalingDestinationFolder"_qs,
         u"show tfImageDestinationFolder"_qs}
    ));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            u"panel\topen\t*** Choose destination folder ***\t%1out"_qs.arg(folder()),
            u"value\ttfImageDestinationFolder\t"_qs + output()
        )
    );
}

TEST_F(ScriptRun, CancelsAPanelThatIsNotAnswered)
{
    const auto outcome = run(lines(
        {u"answer cancel"_qs,
         u"press hChooseScalingDestinationFolder"_qs,
         u"press hChooseScalingDestinationFolder"_qs,
         u"show tfImageDestinationFolder"_qs}
    ));

    const QString cancelled = u"panel\topen\t*** Choose destination folder ***\tcancel"_qs;
    EXPECT_THAT(
        outcome.lines, ElementsAre(cancelled, cancelled, u"value\ttfImageDestinationFolder\t"_qs)
    );
}

TEST_F(ScriptRun, AddsTheFilesThatAPanelIsAnsweredWith)
{
    const QString first = photo(u"first.jpg"_qs);
    const QString second = photo(u"second one.jpg"_qs);

    const auto outcome = run(lines(
        {u"answer \"%1\" \"%2\""_qs.arg(first, second), u"press hChoosePhotos"_qs, u"photos"_qs}
    ));

    ASSERT_EQ(outcome.lines.size(), 3);
    EXPECT_EQ(
        outcome.lines.at(0), u"panel\topen\t*** Choose your photos ***\t%1 %2"_qs.arg(first, second)
    );
    EXPECT_TRUE(outcome.lines.at(2).endsWith(u"\tsecond one.jpg\t\t"_qs + second));
}

TEST_F(ScriptRun, OpensTheDestinationOnTheDesktop)
{
    const auto outcome = run(lines(
        {u"set tfImageDestinationFolder "_qs + output(), u"press hShowDestinationFolderInFinder"_qs}
    ));

    ASSERT_EQ(outcome.lines.size(), 1);
    EXPECT_TRUE(outcome.lines.first().startsWith(u"opened\tfile://"_qs + folder() + u"out"_qs));
}

TEST_F(ScriptRun, ListsPhotosWithTheirFields)
{
    const QString path = photo(u"a.jpg"_qs, PhotoBuilder().size(12, 7));

    const auto outcome = run(lines({u"open "_qs + path, u"photos"_qs}));

    ASSERT_EQ(outcome.lines.size(), 1);
    const QStringList fields = outcome.lines.first().split(u'\t');
    ASSERT_EQ(fields.size(), 9);
    EXPECT_EQ(fields.mid(0, 5), QStringList({u"photo"_qs, u"0"_qs, u"1"_qs, u"0"_qs, u"L"_qs}));
    EXPECT_TRUE(fields.at(5).startsWith(u"12x7px | "_qs));
    EXPECT_EQ(fields.mid(6), QStringList({u"a.jpg"_qs, QString(), path}));
}

TEST_F(ScriptRun, OpensFilesRelativeToTheCurrentFolder)
{
    const QString before = QDir::currentPath();
    const QString path = photo(u"a.jpg"_qs);
    QDir::setCurrent(folder());

    const auto outcome = run(lines({u"open a.jpg"_qs, u"photos"_qs}));

    QDir::setCurrent(before);
    ASSERT_EQ(outcome.lines.size(), 1);
    EXPECT_TRUE(outcome.lines.first().endsWith(u'\t' + path));
}

TEST_F(ScriptRun, LeavesOutPhotosWithoutATick)
{
    const QString first = photo(u"a.jpg"_qs);
    const QString second = photo(u"b.jpg"_qs);

    const auto outcome = run(
        resizeTo(u"10"_qs)
        + lines(
            {u"open %1 %2"_qs.arg(first, second),
             u"tick 0 0"_qs,
             u"show cbPhotoToProcess"_qs,
             u"press hLoadImages"_qs}
        )
    );

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(u"value\tcbPhotoToProcess\t0"_qs, u"result\t%1\tOK"_qs.arg(second))
    );
}

TEST_F(ScriptRun, SelectsPhotosByIndexAndNone)
{
    const QString path = photo(u"a.jpg"_qs);

    const auto outcome = run(lines(
        {u"open "_qs + path,
         u"select none"_qs,
         u"select 0"_qs,
         u"show myTemplatePreview"_qs,
         u"select 1"_qs}
    ));

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, u"line 5: no photo at index 1\n"_qs);
    EXPECT_THAT(outcome.lines, ElementsAre(u"value\tmyTemplatePreview\timage"_qs));
}

TEST_F(ScriptRun, WritesThePreviewAtFullPixelSize)
{
    const QString path = photo(u"a.jpg"_qs, PhotoBuilder().size(220, 90));
    const QString preview = folder() + u"preview.png"_qs;

    const auto outcome = run(lines({u"open "_qs + path, u"select 0"_qs, u"preview "_qs + preview}));

    EXPECT_THAT(outcome.lines, ElementsAre(u"preview\tshown"_qs));
    EXPECT_EQ(sizeOf(preview), QSize(220, 90));
}

TEST_F(ScriptRun, RefusesAPreviewThatCannotBeWritten)
{
    const QString path = folder() + u"missing/preview.png"_qs;

    const auto outcome
        = run(lines({u"open "_qs + photo(u"a.jpg"_qs), u"select 0"_qs, u"preview "_qs + path}));

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, u"line 3: the preview can't be written to \"%1\"\n"_qs.arg(path));
}

TEST_F(ScriptRun, ShowsNothingOfADamagedPhotoAndGoesOn)
{
    const QByteArray whole = PhotoBuilder().size(220, 90).bytes();
    const QString damaged = files().write(u"damaged.jpg"_qs, whole.left(whole.size() / 2));
    const QString preview = folder() + u"preview.png"_qs;

    const auto outcome
        = run(lines({u"open "_qs + damaged, u"select 0"_qs, u"preview "_qs + preview, u"photos"_qs})
        );

    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.lines.value(0), u"preview\tempty"_qs);
    EXPECT_EQ(outcome.lines.size(), 2);
    EXPECT_FALSE(QFile::exists(preview));
}

TEST_F(ScriptRun, TellsWhichPanelStandsInTheWindow)
{
    const auto outcome = run(lines(
        {u"state vwWatermark vwResizePhotos"_qs,
         u"set pubEditPhoto 8"_qs,
         u"state vwWatermark vwResizePhotos dvVCUiScaleMaxView"_qs}
    ));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            u"state\tvwWatermark\tenabled\tshown"_qs,
            u"state\tvwResizePhotos\tenabled\thidden"_qs,
            u"state\tvwWatermark\tenabled\thidden"_qs,
            u"state\tvwResizePhotos\tenabled\tshown"_qs,
            u"state\tdvVCUiScaleMaxView\tenabled\tshown"_qs
        )
    );
}

TEST_F(ScriptRun, TellsAnExceptionAndGoesOn)
{
    std::ostringstream out;
    script::ScriptProgram program(out);
    program.workspace().actions().add(
        u"cTest"_qs,
        u"hRaise"_qs,
        [](const controls::Sender& sender) {
            throw platform::RangeError(u"tag %1\tis too large"_qs.arg(sender.tag));
        }
    );
    std::istringstream script("press hRaise tag=7\nshow tfScaleMaxVal\n");

    const auto fault = program.run(script);

    EXPECT_FALSE(fault);
    EXPECT_EQ(
        out.str(), "exception\tNSRangeException\ttag 7\\tis too large\nvalue\ttfScaleMaxVal\t\n"
    );
}

TEST_F(ScriptRun, AsksForTheClassOfAnActionThatMoreThanOneHas)
{
    std::ostringstream out;
    script::ScriptProgram program(out);
    for (const QString& className : {u"cFirst"_qs, u"cSecond"_qs})
        program.workspace().actions().add(className, u"hTwice"_qs, [](const controls::Sender&) {});
    std::istringstream script("press cFirst.hTwice\npress hTwice\n");

    const auto fault = program.run(script);

    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->line, 2);
    EXPECT_EQ(fault->reason, u"more than one class has the action \"hTwice\""_qs);
}
