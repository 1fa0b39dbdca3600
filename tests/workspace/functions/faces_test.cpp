// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/drawn_face.h>

#include <QDir>

using namespace brenvaldo;
using testing::ElementsAre;

namespace {

/// A run of the real function.
class CutOutFaces : public test::ControllerTest
{
protected:
    CutOutFaces()
    {
        restoreRun("faces");
        select("faces");
        panels.window.pubEditPhoto.selectIndex(5);
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
    }

    void add(const QString& name, const QList<test::DrawnFace>& faces)
    {
        photos.append(entry(test::photoOfFaces({800, 400}, faces).write(folder.path(name)), u"L"_s)
        );
    }

    QStringList written()
    {
        actions.send(u"hLoadImages"_s);
        return QDir(folder.path(u"out"_s)).entryList(QDir::Files, QDir::Name);
    }
};

} // namespace

TEST_F(CutOutFaces, WritesAFileForEachFaceAndNumbersThemAnewInEachPhoto)
{
    add(u"trip.jpg"_s, {{.middle = {200, 200}, .size = 120}, {.middle = {600, 200}, .size = 120}});
    add(u"walk.jpg"_s, {{.middle = {400, 200}, .size = 120}});
    EXPECT_THAT(written(), ElementsAre(u"f1_trip.jpg"_s, u"f1_walk.jpg"_s, u"f2_trip.jpg"_s));
    EXPECT_EQ(journal.records().at(0).target, folder.path(u"out/f1_trip.jpg"_s));
    EXPECT_EQ(journal.records().at(1).word, imaging::ResultWord::Ok);
}

TEST_F(CutOutFaces, WritesNothingOfAPhotoWithoutOne)
{
    add(u"empty.jpg"_s, {});
    EXPECT_TRUE(written().isEmpty());
    EXPECT_EQ(journal.records().at(0).target, QString());
}
