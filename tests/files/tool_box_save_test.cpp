// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool_box_fixture.h"

#include <platform/foundation/folders.h>
#include <platform/foundation/log.h>
#include <support/geometry_printing.h>
#include <support/pixel_probe.h>
#include <support/text_printing.h>

#include <QFileInfo>
#include <QImage>

#include <sys/xattr.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::files;
using namespace brenvaldo::test;
namespace platform = brenvaldo::platform;

TEST_F(ToolBox, SavesATextWithTheOneAllowedType)
{
    chooser.saveAnswer = folder.path(u"page.html"_s);

    box.hSaveWriteDialogFile(
        {.fileExtension = u"html"_s, .text = u"é"_s, .suggestedName = u"page"_s}
    );

    EXPECT_EQ(TemporaryFolder::read(folder.path(u"page.html"_s)), "\xC3\xA9");
    ASSERT_EQ(chooser.saved.size(), 1U);
    EXPECT_EQ(chooser.saved[0].suggestedName, u"page"_s);
    EXPECT_EQ(chooser.saved[0].allowedTypes, QStringList{u"html"_s});
    EXPECT_FALSE(chooser.saved[0].allowsOtherTypes);
}

TEST_F(ToolBox, AddsTheAllowedTypeToANameWithoutIt)
{
    chooser.saveAnswer = folder.path(u"my.actions"_s);

    EXPECT_EQ(
        box.hSaveWriteDialogFile2({.text = u"x"_s, .suggestedName = u"a"_s}),
        folder.path(u"my.actions.c-action"_s)
    );

    EXPECT_TRUE(QFileInfo::exists(folder.path(u"my.actions.c-action"_s)));
}

TEST_F(ToolBox, ExportsActionsFromTheActionsFolder)
{
    defaults.set(u"CActionsDestination"_s, u"/support/C-Actions"_s);
    chooser.saveAnswer = folder.path(u"a.c-action"_s);

    EXPECT_EQ(
        box.hSaveWriteDialogFile2({.text = u"Strip\t1"_s, .suggestedName = u"Strip"_s}),
        folder.path(u"a.c-action"_s)
    );

    EXPECT_EQ(TemporaryFolder::read(folder.path(u"a.c-action"_s)), "Strip\t1");
    ASSERT_EQ(chooser.saved.size(), 1U);
    EXPECT_EQ(chooser.saved[0].startFolder, u"/support/C-Actions"_s);
    EXPECT_EQ(chooser.saved[0].suggestedName, u"Strip"_s);
    EXPECT_EQ(chooser.saved[0].allowedTypes, QStringList{u"c-action"_s});
    EXPECT_FALSE(chooser.saved[0].allowsOtherTypes);
}

TEST_F(ToolBox, ExportsNothingWhenCancelled)
{
    EXPECT_EQ(box.hSaveWriteDialogFile2({.text = u"x"_s, .suggestedName = u"a"_s}), u""_s);

    ASSERT_EQ(chooser.saved.size(), 1U);
    EXPECT_EQ(chooser.saved[0].startFolder, u""_s);
}

TEST_F(ToolBox, SavesDataAsAnActionFile)
{
    chooser.saveAnswer = folder.path(u"a"_s);

    box.hSaveNSDataWriteDialogFile("\x01\x02", u"a"_s);

    EXPECT_EQ(chooser.saved[0].suggestedName, u"a"_s);
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"a.c-action"_s)), "\x01\x02");
}

TEST_F(ToolBox, LogsWhatItCantWrite)
{
    QStringList logged;
    platform::setLogSink([&](const QString& line) { logged += line; });
    chooser.saveAnswer = folder.path(u"missing/a.c-action"_s);

    static_cast<void>(box.hSaveWriteDialogFile2({.text = u"x"_s, .suggestedName = u"a"_s}));
    platform::setLogSink({});

    EXPECT_EQ(logged.size(), 1);
}

namespace {

/// A tool box with a small photo to copy.
class PhotoCopyPanel : public ToolBox
{
protected:
    PhotoCopyPanel()
    {
        QImage image(7, 5, QImage::Format_RGB32);
        image.fill(QColor(200, 100, 50));
        if (!image.save(source))
            qFatal("the photo can't be written");
    }

    /// What the user picks in the panel before answering with `name`.
    void answer(const QString& name, const QString& type)
    {
        chooser.saveAnswer = folder.path(name);
        chooser.beforeAnswer = [this, type] {
            box.pubFileType.selectItemAtIndex(static_cast<int>(box.pubFileType.titles().indexOf(type
            )));
        };
    }

    QString source = folder.path(u"Photo 1.png"_s);
};

} // namespace

TEST_F(PhotoCopyPanel, SuggestsTheNameOnTheDesktop)
{
    box.hSaveDialogFile(source);

    ASSERT_EQ(chooser.saved.size(), 1U);
    EXPECT_EQ(chooser.saved[0].suggestedName, u"Photo 1"_s);
    EXPECT_EQ(chooser.saved[0].allowedTypes, QStringList{u"jpeg"_s});
    EXPECT_FALSE(chooser.saved[0].allowsOtherTypes);
    EXPECT_EQ(chooser.saved[0].startFolder, platform::desktopFolder());
    EXPECT_EQ(chooser.saved[0].accessories.size(), 2);
}

TEST_F(PhotoCopyPanel, EnablesTheQualityForJpegOnly)
{
    answer(u"a"_s, u"tiff"_s);
    box.hSaveDialogFile(source);
    EXPECT_FALSE(box.pubJPEGcompression.isEnabled());

    answer(u"b"_s, u"jpeg"_s);
    box.hSaveDialogFile(source);
    EXPECT_TRUE(box.pubJPEGcompression.isEnabled());
}

TEST_F(PhotoCopyPanel, AllowsTheTypeThatIsPickedWhileItIsOpen)
{
    answer(u"copy"_s, u"png"_s);

    box.hSaveDialogFile(source);

    EXPECT_EQ(chooser.saved[0].allowedTypes, QStringList{u"jpeg"_s});
    EXPECT_EQ(chooser.typesAtAnswer, QStringList{u"png"_s});
    EXPECT_TRUE(QFileInfo::exists(folder.path(u"copy.png"_s)));
}

TEST_F(PhotoCopyPanel, TakesTheQualityThatWasPickedBefore)
{
    box.pubJPEGcompression.selectItemAtIndex(0);
    answer(u"small"_s, u"jpeg"_s);
    box.hSaveDialogFile(source);
    box.pubJPEGcompression.selectItemAtIndex(7);
    answer(u"fine"_s, u"jpeg"_s);
    box.hSaveDialogFile(source);

    const QByteArray small = TemporaryFolder::read(folder.path(u"small.jpeg"_s));
    EXPECT_FALSE(small.isEmpty());
    EXPECT_NE(small, TemporaryFolder::read(folder.path(u"fine.jpeg"_s)));
}

TEST_F(PhotoCopyPanel, WritesEveryImageType)
{
    const QList<std::pair<QString, QString>> types
        = {{u"png"_s, u"public.png"_s},
           {u"tiff"_s, u"public.tiff"_s},
           {u"bmp"_s, u"com.microsoft.bmp"_s},
           {u"gif"_s, u"com.compuserve.gif"_s},
           {u"jpeg"_s, u"public.jpeg"_s}};
    for (const auto& [type, identifier] : types) {
        answer(u"copy"_s, type);

        box.hSaveDialogFile(source);

        const auto header = openedPhoto(folder.path(u"copy."_s + type)).header();
        EXPECT_EQ(header.storedSize, (platform::graphics::PixelSize{7, 5}));
        EXPECT_EQ(header.typeIdentifier, identifier);
    }
}

TEST_F(PhotoCopyPanel, WritesPdfAndJpeg2000)
{
    answer(u"copy"_s, u"pdf"_s);
    box.hSaveDialogFile(source);
    answer(u"copy"_s, u"jp2"_s);
    box.hSaveDialogFile(source);

    EXPECT_TRUE(TemporaryFolder::read(folder.path(u"copy.pdf"_s)).startsWith("%PDF-"));
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"copy.jp2"_s)).mid(4, 4), "jP  ");
}

TEST_F(PhotoCopyPanel, WritesNothingForAFileThatIsNoPhoto)
{
    QStringList logged;
    platform::setLogSink([&](const QString& line) { logged += line; });
    answer(u"copy"_s, u"png"_s);

    box.hSaveDialogFile(folder.write(u"text.txt"_s, "no photo"));
    platform::setLogSink({});

    EXPECT_FALSE(QFileInfo::exists(folder.path(u"copy.png"_s)));
    EXPECT_EQ(logged.size(), 1);
}

TEST_F(PhotoCopyPanel, ShowsTheTagFieldOnNewerSystemsOnly)
{
    defaults.set(u"MOS"_s, u"109+"_s);
    chooser.saveAnswer = folder.path(u"copy"_s);
    chooser.beforeAnswer = [this] {
        const auto accessories = chooser.saved.back().accessories;
        ASSERT_EQ(accessories.size(), 3);
        auto* const tags = dynamic_cast<brenvaldo::controls::TextField*>(accessories.at(2).control);
        ASSERT_TRUE(tags);
        tags->setStringValue(u"sea,sun"_s);
    };

    box.hSaveDialogFile(source);

    QByteArray value(64, '\0');
    const QByteArray copy = folder.path(u"copy.jpeg"_s).toUtf8();
    const auto size = ::getxattr(copy.constData(), "user.xdg.tags", value.data(), 64);
    EXPECT_EQ(value.left(size), "sea,sun");
}
