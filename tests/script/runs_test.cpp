// SPDX-License-Identifier: GPL-3.0-or-later
// Whole scripts on real photos: what a user of the script program sees.

#include "script_fixture.h"

#include <platform/foundation/literals.h>

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
      u"your processed photos."_s;

QSize sizeOf(const QString& path) { return QImageReader(path).size(); }

} // namespace

class ScriptRun : public test::ScriptTest
{
protected:
    ScriptRun() { QDir(folder()).mkdir(u"out"_s); }

    [[nodiscard]] QString output(const QString& name = {}) const
    {
        return folder() + u"out/"_s + name;
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
            {u"set pubEditPhoto 8"_s,
             u"set tfImageDestinationFolder "_s + output(),
             u"set pubScaleType 0"_s,
             u"set pubScaleMaxType 2"_s,
             u"set tfScaleMaxVal "_s + value,
             u"set pubFileType \"original file type\""_s}
        );
    }
};

TEST_F(ScriptRun, ResizesTheLongestSideAndTellsEachResult)
{
    const QString wide = photo(u"wide.jpg"_s, PhotoBuilder().size(4000, 3000).solid({90, 120, 40}));
    const QString tall = photo(
        u"tall.png"_s, PhotoBuilder().size(3000, 4000).solid({90, 120, 40}).format(PhotoFormat::Png)
    );
    const QString text = files().write(u"notes.txt"_s, "no photo");

    // A file that is no photo has no size to resize to, which the operation takes for done.
    const auto outcome = run(lines({
        u"set pubEditPhoto 8"_s,
        u"open %1 %2 %3"_s.arg(wide, tall, text),
        u"set tfImageDestinationFolder "_s + output(),
        u"set pubScaleType 0"_s,
        u"set pubScaleMaxType 2"_s,
        u"set tfScaleMaxVal 1000"_s,
        u"set pubFileType \"original file type\""_s,
        u"press hLoadImages"_s,
    }));

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            u"result\t%1\tOK"_s.arg(wide),
            u"result\t%1\tOK"_s.arg(tall),
            u"result\t%1\tOK"_s.arg(text)
        )
    );
    EXPECT_THAT(writtenFiles(), ElementsAre(u"tall.png"_s, u"wide.jpg"_s));
    EXPECT_EQ(sizeOf(output(u"wide.jpg"_s)), QSize(1000, 750));
    EXPECT_EQ(sizeOf(output(u"tall.png"_s)), QSize(750, 1000));
}

TEST_F(ScriptRun, AlertsOfAMissingDestinationBeforeItLooksAtTheList)
{
    EXPECT_THAT(run(u"press hLoadImages"_s).lines, ElementsAre(missingDestination));
}

TEST_F(ScriptRun, AlertsOfAnEmptyList)
{
    const auto outcome = run(resizeTo(u"100"_s) + u"press hLoadImages"_s);

    EXPECT_THAT(
        outcome.lines, ElementsAre(u"alert\tNo photos to process.\tPlease choose photos first."_s)
    );
}

TEST_F(ScriptRun, AlertsAnewForEachPhotoOfAWrongValue)
{
    const auto outcome = run(
        resizeTo(u"0"_s)
        + lines({u"open %1 %2"_s.arg(photo(u"a.jpg"_s), photo(u"b.jpg"_s)), u"press hLoadImages"_s})
    );

    const QString alert = u"alert\tWrong value\tValue can't be empty or '0'."_s;
    EXPECT_THAT(outcome.lines, IsSupersetOf({alert, alert}));
    EXPECT_THAT(writtenFiles(), IsEmpty());
}

TEST_F(ScriptRun, TellsTheClosingOfTheAlertAndNotItsOpening)
{
    const auto outcome
        = run(lines({u"press hLoadImages"_s, u"press closeApplicationAlertSheetObjC"_s}));

    EXPECT_THAT(outcome.lines, ElementsAre(missingDestination, u"sheet\twwAlertWindow\tclosed"_s));
}

TEST_F(ScriptRun, TellsAPanelWithItsAnswer)
{
    const auto outcome = run(lines(
        {u"answer \"%1\""_s.arg(output()),
         u"press hChooseScalingDestinationFolder"_s,
         u"show tfImageDestinationFolder"_s}
    ));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            u"panel\topen\t*** Choose destination folder ***\t%1out"_s.arg(folder()),
            u"value\ttfImageDestinationFolder\t"_s + output()
        )
    );
}

TEST_F(ScriptRun, CancelsAPanelThatIsNotAnswered)
{
    const auto outcome = run(lines(
        {u"answer cancel"_s,
         u"press hChooseScalingDestinationFolder"_s,
         u"press hChooseScalingDestinationFolder"_s,
         u"show tfImageDestinationFolder"_s}
    ));

    const QString cancelled = u"panel\topen\t*** Choose destination folder ***\tcancel"_s;
    EXPECT_THAT(
        outcome.lines, ElementsAre(cancelled, cancelled, u"value\ttfImageDestinationFolder\t"_s)
    );
}

TEST_F(ScriptRun, AddsTheFilesThatAPanelIsAnsweredWith)
{
    const QString first = photo(u"first.jpg"_s);
    const QString second = photo(u"second one.jpg"_s);

    const auto outcome = run(
        lines({u"answer \"%1\" \"%2\""_s.arg(first, second), u"press hChoosePhotos"_s, u"photos"_s})
    );

    ASSERT_EQ(outcome.lines.size(), 3);
    EXPECT_EQ(
        outcome.lines.at(0), u"panel\topen\t*** Choose your photos ***\t%1 %2"_s.arg(first, second)
    );
    EXPECT_TRUE(outcome.lines.at(2).endsWith(u"\tsecond one.jpg\t\t"_s + second));
}

TEST_F(ScriptRun, OpensTheDestinationOnTheDesktop)
{
    const auto outcome = run(lines(
        {u"set tfImageDestinationFolder "_s + output(), u"press hShowDestinationFolderInFinder"_s}
    ));

    ASSERT_EQ(outcome.lines.size(), 1);
    EXPECT_TRUE(outcome.lines.first().startsWith(u"opened\tfile://"_s + folder() + u"out"_s));
}

TEST_F(ScriptRun, ListsPhotosWithTheirFields)
{
    const QString path = photo(u"a.jpg"_s, PhotoBuilder().size(12, 7));

    const auto outcome = run(lines({u"open "_s + path, u"photos"_s}));

    ASSERT_EQ(outcome.lines.size(), 1);
    const QStringList fields = outcome.lines.first().split(u'\t');
    ASSERT_EQ(fields.size(), 9);
    EXPECT_EQ(fields.mid(0, 5), QStringList({u"photo"_s, u"0"_s, u"1"_s, u"0"_s, u"L"_s}));
    EXPECT_TRUE(fields.at(5).startsWith(u"12x7px | "_s));
    EXPECT_EQ(fields.mid(6), QStringList({u"a.jpg"_s, QString(), path}));
}

TEST_F(ScriptRun, OpensFilesRelativeToTheCurrentFolder)
{
    const QString before = QDir::currentPath();
    const QString path = photo(u"a.jpg"_s);
    QDir::setCurrent(folder());

    const auto outcome = run(lines({u"open a.jpg"_s, u"photos"_s}));

    QDir::setCurrent(before);
    ASSERT_EQ(outcome.lines.size(), 1);
    EXPECT_TRUE(outcome.lines.first().endsWith(u'\t' + path));
}

TEST_F(ScriptRun, LeavesOutPhotosWithoutATick)
{
    const QString first = photo(u"a.jpg"_s);
    const QString second = photo(u"b.jpg"_s);

    const auto outcome = run(
        resizeTo(u"10"_s)
        + lines(
            {u"open %1 %2"_s.arg(first, second),
             u"tick 0 0"_s,
             u"show cbPhotoToProcess"_s,
             u"press hLoadImages"_s}
        )
    );

    EXPECT_THAT(
        outcome.lines, ElementsAre(u"value\tcbPhotoToProcess\t0"_s, u"result\t%1\tOK"_s.arg(second))
    );
}

TEST_F(ScriptRun, SelectsPhotosByIndexAndNone)
{
    const QString path = photo(u"a.jpg"_s);

    const auto outcome = run(lines(
        {u"open "_s + path,
         u"select none"_s,
         u"select 0"_s,
         u"show myTemplatePreview"_s,
         u"select 1"_s}
    ));

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, u"line 5: no photo at index 1\n"_s);
    EXPECT_THAT(outcome.lines, ElementsAre(u"value\tmyTemplatePreview\timage"_s));
}

TEST_F(ScriptRun, WritesThePreviewAtFullPixelSize)
{
    const QString path = photo(u"a.jpg"_s, PhotoBuilder().size(220, 90));
    const QString preview = folder() + u"preview.png"_s;

    const auto outcome = run(lines({u"open "_s + path, u"select 0"_s, u"preview "_s + preview}));

    EXPECT_THAT(outcome.lines, ElementsAre(u"preview\tshown"_s));
    EXPECT_EQ(sizeOf(preview), QSize(220, 90));
}

TEST_F(ScriptRun, RefusesAPreviewThatCannotBeWritten)
{
    const QString path = folder() + u"missing/preview.png"_s;

    const auto outcome
        = run(lines({u"open "_s + photo(u"a.jpg"_s), u"select 0"_s, u"preview "_s + path}));

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, u"line 3: the preview can't be written to \"%1\"\n"_s.arg(path));
}

TEST_F(ScriptRun, ShowsNothingOfADamagedPhotoAndGoesOn)
{
    const QByteArray whole = PhotoBuilder().size(220, 90).bytes();
    const QString damaged = files().write(u"damaged.jpg"_s, whole.left(whole.size() / 2));
    const QString preview = folder() + u"preview.png"_s;

    const auto outcome
        = run(lines({u"open "_s + damaged, u"select 0"_s, u"preview "_s + preview, u"photos"_s}));

    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.lines.value(0), u"preview\tempty"_s);
    EXPECT_EQ(outcome.lines.size(), 2);
    EXPECT_FALSE(QFile::exists(preview));
}

TEST_F(ScriptRun, TellsWhichPanelStandsInTheWindow)
{
    const auto outcome = run(lines(
        {u"state vwWatermark vwResizePhotos"_s,
         u"set pubEditPhoto 8"_s,
         u"state vwWatermark vwResizePhotos dvVCUiScaleMaxView"_s}
    ));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            u"state\tvwWatermark\tenabled\tshown"_s,
            u"state\tvwResizePhotos\tenabled\thidden"_s,
            u"state\tvwWatermark\tenabled\thidden"_s,
            u"state\tvwResizePhotos\tenabled\tshown"_s,
            u"state\tdvVCUiScaleMaxView\tenabled\tshown"_s
        )
    );
}

TEST_F(ScriptRun, TellsAnExceptionAndGoesOn)
{
    std::ostringstream out;
    script::ScriptProgram program(out);
    program.workspace().actions().add(u"cTest"_s, u"hRaise"_s, [](const controls::Sender& sender) {
        throw platform::RangeError(u"tag %1\tis too large"_s.arg(sender.tag));
    });
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
    for (const QString& className : {u"cFirst"_s, u"cSecond"_s})
        program.workspace().actions().add(className, u"hTwice"_s, [](const controls::Sender&) {});
    std::istringstream script("press cFirst.hTwice\npress hTwice\n");

    const auto fault = program.run(script);

    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->line, 2);
    EXPECT_EQ(fault->reason, u"more than one class has the action \"hTwice\""_s);
}
