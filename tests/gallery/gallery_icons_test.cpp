// SPDX-License-Identifier: GPL-3.0-or-later
#include <gallery/gallery_icons.h>

#include <platform/foundation/literals.h>

#include <QFile>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::gallery;

TEST(GalleryIcons, AreThere)
{
    for (const QString& name :
         {u"Brenvaldo_folderIcon"_s,
          u"Brenvaldo_folderIcon2"_s,
          u"Holmvane_folderIcon2"_s,
          u"Brenvaldo_HTMLicon"_s})
        EXPECT_EQ(icon(name).size(), QSize(128, 128)) << name.toStdString();
    EXPECT_TRUE(icon(u"none"_s).isNull());
}

TEST(TemplatePicture, IsThereForEachTemplateAndItsPresets)
{
    for (int number = 1; number <= 4; ++number) {
        EXPECT_TRUE(templatePicture(u"Ex0%1XL.png"_s.arg(number)));
        EXPECT_TRUE(templatePicture(u"Ex0%1XLpst.png"_s.arg(number)));
    }
    EXPECT_FALSE(templatePicture(u"Ex05XL.png"_s));
    EXPECT_FALSE(templatePicture(u"BasisEmpty.png"_s));
}

TEST(LightboxScripts, DifferInTheirCaptionsOnly)
{
    const auto script = [](const QString& name) {
        QFile file(u":/gallery/lightbox/"_s + name);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    };
    const QString plain = script(u"jquery.lightbox.js"_s);
    EXPECT_TRUE(plain.contains(u"captions: false"_s));
    EXPECT_EQ(
        QString(plain).replace(u"captions: false"_s, u"captions: true"_s),
        script(u"jquery02.lightbox.js"_s)
    );
}
