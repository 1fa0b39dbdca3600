// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>
#include <workspace/run/photos_of_run.h>

#include <support/case_name.h>

using namespace brenvaldo;

namespace {

struct TakenPhotos
{
    const char* name; ///< function id
    QStringList taken;
};

void PrintTo(const TakenPhotos& row, std::ostream* out) { *out << row.name; }

/// A wide, a tall, an unticked and a square photo, and a file that is no photo; the hidden filter
/// takes wide ones.
class PhotosOfRun : public test::ControllerTest
{
protected:
    PhotosOfRun()
    {
        photos.append(entry(u"wide"_s, u"L"_s));
        photos.append(entry(u"tall"_s, u"P"_s));
        photos.append(entry(u"unticked"_s, u"L"_s));
        photos.append(entry(u"square"_s, u"S"_s));
        photos.append(nonPhoto(u"text"_s));
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
        return function ? QString(function->id) : u"none"_s;
    }
};

class PhotosOfEachRun : public PhotosOfRun, public testing::WithParamInterface<TakenPhotos>
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
        TakenPhotos{"textWM", {u"wide"_s}},
        TakenPhotos{"imageWM", {u"wide"_s}},
        TakenPhotos{"addTint", {u"wide"_s}},
        TakenPhotos{"resizePhotos", {u"wide"_s}},
        TakenPhotos{"batchUploadPhotos", {u"wide"_s}},
        TakenPhotos{"batchExifUC", {u"wide"_s}},
        TakenPhotos{"htmlExport", {u"wide"_s, u"tall"_s, u"square"_s, u"text"_s}},
        TakenPhotos{"fileRenaming", {u"wide"_s, u"tall"_s, u"square"_s, u"text"_s}},
        TakenPhotos{"batchFileConvert", {u"wide"_s, u"tall"_s, u"square"_s, u"text"_s}},
        TakenPhotos{"manSort", {}},
        TakenPhotos{"batchSort", {}},
        TakenPhotos{"batchQR", {}}
    ),
    test::CaseName{}
);

TEST_F(PhotosOfRun, FollowTheFilter)
{
    const QList<QStringList> expected{
        {u"wide"_s, u"tall"_s, u"square"_s}, {u"wide"_s}, {u"tall"_s}, {u"square"_s}};
    for (int index = 0; index < expected.size(); ++index) {
        panels.vwApplyOn.pubPhotoOrientation.selectIndex(index);
        EXPECT_EQ(taken("resizePhotos"), expected.at(index));
    }
}

TEST_F(PhotosOfRun, AreWorkedOnByThePopUpAmongTheFunctionsThatEdit)
{
    panels.window.pubEditPhoto.selectIndex(8);
    EXPECT_EQ(functionOf("cropPhotos"), u"resizePhotos"_s);

    panels.window.pubEditPhoto.selectIndex(0);
    EXPECT_EQ(functionOf("cropPhotos"), u"textWM"_s);
    panels.vwWatermark.tbvWatermarkType.selectIndex(1);
    EXPECT_EQ(functionOf("cropPhotos"), u"imageWM"_s);
    EXPECT_EQ(functionOf("unknown"), u"imageWM"_s);

    panels.window.pubEditPhoto.selectIndex(-1);
    EXPECT_EQ(functionOf("cropPhotos"), u"none"_s);
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
    EXPECT_EQ(functionOf("uploadPhotos"), u"none"_s);
}
