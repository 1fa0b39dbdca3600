// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <workspace/run/photos_of_run.h>

#include <support/case_name.h>

using namespace brenvaldo;

namespace {

struct Row
{
    const char* name; ///< function id
    QStringList taken;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

/// A wide, a tall, an unticked and a square photo, and a file that is no photo; the hidden filter
/// takes wide ones.
class PhotosOfRun : public test::ControllerTest
{
protected:
    PhotosOfRun()
    {
        photos.append(entry(u"wide"_qs, u"L"_qs));
        photos.append(entry(u"tall"_qs, u"P"_qs));
        photos.append(entry(u"unticked"_qs, u"L"_qs));
        photos.append(entry(u"square"_qs, u"S"_qs));
        photos.append(nonPhoto(u"text"_qs));
        photos.setTick(2, 0);
        panels.vwApplyOn.pubPhotoOrientation.selectIndex(1);
    }

    [[nodiscard]] QStringList taken(const char* id)
    {
        return workspace::photosOfRun(row(id).run, photos, panels);
    }

    [[nodiscard]] QString functionOf(const char* id) const
    {
        const workspace::Function* function
            = workspace::functionOfRun(functions, QString::fromLatin1(id), panels);
        return function ? QString(function->id) : u"none"_qs;
    }
};

class PhotosOfEachRun : public PhotosOfRun, public testing::WithParamInterface<Row>
{
};

} // namespace

TEST_P(PhotosOfEachRun, AreThoseThatTheFunctionTakes)
{
    EXPECT_EQ(taken(GetParam().name), GetParam().taken);
}

INSTANTIATE_TEST_SUITE_P(
    Functions,
    PhotosOfEachRun,
    testing::Values(
        Row{"textWM", {u"wide"_qs}},
        Row{"imageWM", {u"wide"_qs}},
        Row{"addTint", {u"wide"_qs}},
        Row{"resizePhotos", {u"wide"_qs}},
        Row{"batchUploadPhotos", {u"wide"_qs}},
        Row{"batchExifUC", {u"wide"_qs}},
        Row{"htmlExport", {u"wide"_qs}},
        Row{"fileRenaming", {u"wide"_qs, u"tall"_qs, u"square"_qs, u"text"_qs}},
        Row{"batchFileConvert", {u"wide"_qs, u"tall"_qs, u"square"_qs, u"text"_qs}},
        Row{"manSort", {}},
        Row{"batchSort", {}},
        Row{"batchQR", {}}
    ),
    test::CaseName{}
);

TEST_F(PhotosOfRun, FollowTheFilter)
{
    const QList<QStringList> expected{
        {u"wide"_qs, u"tall"_qs, u"square"_qs}, {u"wide"_qs}, {u"tall"_qs}, {u"square"_qs}};
    for (int index = 0; index < expected.size(); ++index) {
        panels.vwApplyOn.pubPhotoOrientation.selectIndex(index);
        EXPECT_EQ(taken("resizePhotos"), expected.at(index));
    }
}

TEST_F(PhotosOfRun, AreWorkedOnByThePopUpAmongTheFunctionsThatEdit)
{
    panels.window.pubEditPhoto.selectIndex(8);
    EXPECT_EQ(functionOf("cropPhotos"), u"resizePhotos"_qs);

    panels.window.pubEditPhoto.selectIndex(0);
    EXPECT_EQ(functionOf("cropPhotos"), u"textWM"_qs);
    panels.vwWatermark.tbvWatermarkType.selectIndex(1);
    EXPECT_EQ(functionOf("cropPhotos"), u"imageWM"_qs);
    EXPECT_EQ(functionOf("unknown"), u"imageWM"_qs);

    panels.window.pubEditPhoto.selectIndex(-1);
    EXPECT_EQ(functionOf("cropPhotos"), u"none"_qs);
}

TEST_F(PhotosOfRun, AreWorkedOnByTheSelectedFunctionElsewhere)
{
    panels.window.pubEditPhoto.selectIndex(8);
    for (const char* id :
         {"manSort",
          "batchSort",
          "batchUploadPhotos",
          "batchExifUC",
          "fileRenaming",
          "batchFileConvert",
          "batchQR",
          "htmlExport"})
        EXPECT_EQ(functionOf(id), QLatin1String(id));
    EXPECT_EQ(functionOf("uploadPhotos"), u"none"_qs);
}
