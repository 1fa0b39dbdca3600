// SPDX-License-Identifier: GPL-3.0-or-later
#include <services/photo_services.h>

#include <support/geometry_printing.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo;

namespace {

class NotingPrinter : public platform::services::PicturePrinter
{
public:
    void print(const QImage& picture, const QString& name) override
    {
        sizes.append(picture.size());
        names.append(name);
    }

    QList<QSize> sizes;
    QStringList names;
};

class NotingPicker : public platform::services::SharingPicker
{
public:
    void show(const QString& path) override { paths.append(path); }

    QStringList paths;
};

} // namespace

TEST(Print, GivesTheUprightPhotoToThePrinter)
{
    const test::TemporaryFolder folder;
    NotingPrinter printer;
    services::cPrint print(printer);
    print.printService(test::PhotoBuilder().size(40, 30).orientation(6).write(folder.path(u"a.jpg"_s
    )));
    print.printService(folder.path(u"missing.jpg"_s));
    EXPECT_EQ(printer.sizes, QList<QSize>{QSize(30, 40)});
    EXPECT_EQ(printer.names, QStringList{u"a.jpg"_s});
}

TEST(Sharing, OffersAPhotoThatCanBeRead)
{
    const test::TemporaryFolder folder;
    NotingPicker picker;
    services::cSharing sharing(picker);
    const QString path = test::PhotoBuilder().size(40, 30).write(folder.path(u"a.jpg"_s));
    sharing.chooseFromSharingServicePicker(path);
    sharing.chooseFromSharingServicePicker(folder.path(u"missing.jpg"_s));
    sharing.chooseFromSharingServicePicker({});
    EXPECT_EQ(picker.paths, QStringList{path});
}
