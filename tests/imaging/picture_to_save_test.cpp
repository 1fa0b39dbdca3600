// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>
#include <imaging/file_conversion.h>

#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/result_printing.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QDir>

using namespace Qt::StringLiterals;
using namespace brenvaldo::imaging;
using namespace brenvaldo::test;

namespace {

class FinishedOutcome : public testing::Test
{
protected:
    FinishedOutcome() { (void)PhotoBuilder().size(40, 30).write(folder.path(u"in.jpg"_s)); }

    [[nodiscard]] Outcome resized(const QString& type) const
    {
        return DVImageHandling::hScalePhotosPercentage(
            {.source = folder.path(u"in.jpg"_s), .destinationBase = folder.path(u"out"_s)},
            50,
            3,
            {.outputType = type,
             .compressionLevel = u"9"_s,
             .fileExtension = {},
             .fileExtensionNSStr = {},
             .fileUTI = {},
             .myFileType = type}
        );
    }

    [[nodiscard]] QStringList files() const
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    TemporaryFolder folder;
    DVImageHandling handling;
};

} // namespace

TEST(ResultWords, HaveTheirTexts)
{
    EXPECT_EQ(text(ResultWord::Ok), u"OK"_s);
    EXPECT_EQ(text(ResultWord::Failed), u"Failed"_s);
    EXPECT_EQ(text(ResultWord::NotSupported), u"Not Supported"_s);
    EXPECT_EQ(text(ResultWord::IoFailure), u"IOFailure"_s);
    EXPECT_EQ(text(ResultWord::Exists), u"EXISTS"_s);
    EXPECT_EQ(text(ResultWord::None), QString());
}

TEST_F(FinishedOutcome, IsNoFileBeforeItIsSaved)
{
    const Outcome outcome = resized(u"public.png"_s);

    EXPECT_EQ(files(), QStringList{u"in.jpg"_s});
    EXPECT_EQ(handling.finish(outcome), ResultWord::Ok);
    EXPECT_EQ(files(), (QStringList{u"in.jpg"_s, u"out.png"_s}));
}

TEST_F(FinishedOutcome, OfAWordIsThatWordAndLeavesTheWordOfTheLastPicture)
{
    EXPECT_EQ(handling.finish(WordOfPictureBefore{}), ResultWord::Failed);
    EXPECT_EQ(handling.finish(resized(u"public.png"_s)), ResultWord::Ok);

    EXPECT_EQ(handling.finish(ResultWord::Exists), ResultWord::Exists);

    EXPECT_EQ(handling.storeResult(), ResultWord::Ok);
    EXPECT_EQ(handling.finish(WordOfPictureBefore{}), ResultWord::Ok);
}

TEST_F(FinishedOutcome, KeepsTheWordOfATypeThatIsNotSupported)
{
    EXPECT_EQ(handling.finish(resized(u"com.adobe.pdf"_s)), ResultWord::NotSupported);

    EXPECT_EQ(handling.storeResult(), ResultWord::NotSupported);
}

TEST_F(FinishedOutcome, OfAConversionLeavesTheWordOfTheLastPicture)
{
    const FileConversion::Settings settings{
        .source = folder.path(u"in.jpg"_s),
        .type = u"public.png"_s,
        .destination = folder.path(u"out.png"_s)};

    EXPECT_EQ(handling.finish(FileConversion::conversion(settings)), ResultWord::Ok);

    EXPECT_EQ(files(), (QStringList{u"in.jpg"_s, u"out.png"_s}));
    EXPECT_EQ(handling.storeResult(), ResultWord::Failed);
}

TEST_F(FinishedOutcome, OfAnUnknownTypeOfConversionHasFailed)
{
    const FileConversion::Settings settings{
        .source = folder.path(u"in.jpg"_s),
        .type = u"public.xyz"_s,
        .destination = folder.path(u"out"_s)};

    EXPECT_EQ(handling.finish(FileConversion::conversion(settings)), ResultWord::Failed);
    EXPECT_EQ(files(), QStringList{u"in.jpg"_s});
}
