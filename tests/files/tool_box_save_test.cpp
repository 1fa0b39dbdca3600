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

using namespace brenvaldo::files;
using namespace brenvaldo::test;
namespace platform = brenvaldo::platform;

TEST_F(ToolBox, SavesATextWithTheOneAllowedType)
{
    chooser.saveAnswer = folder.path(u"page.html"_qs);

    box.hSaveWriteDialogFile(
        {.fileExtension = u"html"_qs, .text = u"é"_qs, .suggestedName = u"page"_qs}
    );

    EXPECT_EQ(TemporaryFolder::read(folder.path(u"page.html"_qs)), "\xC3\xA9");
    ASSERT_EQ(chooser.saved.size(), 1U);
    EXPECT_EQ(chooser.saved[0].suggestedName, u"page"_qs);
    EXPECT_EQ(chooser.saved[0].allowedTypes, QStringList{u"html"_qs});
    EXPECT_FALSE(chooser.saved[0].allowsOtherTypes);
}

TEST_F(ToolBox, AddsTheAllowedTypeToANameWithoutIt)
{
    chooser.saveAnswer = folder.path(u"my.actions"_qs);

    EXPECT_EQ(
        box.hSaveWriteDialogFile2({.text = u"x"_qs, .suggestedName = u"a"_qs}),
        folder.path(u"my.actions.c-action"_qs)
    );

    EXPECT_TRUE(QFileInfo::exists(folder.path(u"my.actions.c-action"_qs)));
}

TEST_F(ToolBox, ExportsActionsFromTheActionsFolder)
{
    defaults.set(u"CActionsDestination"_qs, u"/support/C-Actions"_qs);
    chooser.saveAnswer = folder.path(u"a.c-action"_qs);

    EXPECT_EQ(
        box.hSaveWriteDialogFile2({.text = u"Strip\t1"_qs, .suggestedName = u"Strip"_qs}),
        folder.path(u"a.c-action"_qs)
    );

    EXPECT_EQ(TemporaryFolder::read(folder.path(u"a.c-action"_qs)), "Strip\t1");
    ASSERT_EQ(chooser.saved.size(), 1U);
    EXPECT_EQ(chooser.saved[0].startFolder, u"/support/C-Actions"_qs);
    EXPECT_EQ(chooser.saved[0].suggestedName, u"Strip"_qs);
    EXPECT_EQ(chooser.saved[0].allowedTypes, QStringList{u"c-action"_qs});
    EXPECT_FALSE(chooser.saved[0].allowsOtherTypes);
}

TEST_F(ToolBox, ExportsNothingWhenCancelled)
{
    EXPECT_EQ(box.hSaveWriteDialogFile2({.text = u"x"_qs, .suggestedName = u"a"_qs}), u""_qs);

    ASSERT_EQ(chooser.saved.size(), 1U);
    EXPECT_EQ(chooser.saved[0].startFolder, u""_qs);
}

TEST_F(ToolBox, SavesDataAsAnActionFile)
{
    chooser.saveAnswer = folder.path(u"a"_qs);

    box.hSaveNSDataWriteDialogFile("\x01\x02", u"a"_qs);

    EXPECT_EQ(chooser.saved[0].suggestedName, u"a"_qs);
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"a.c-action"_qs)), "\x01\x02");
}

TEST_F(ToolBox, LogsWhatItCantWrite)
{
    QStringList logged;
    platform::setLogSink([&](const QString& line) { logged += line; });
    chooser.saveAnswer = folder.path(u"missing/a.c-action"_qs);

    static_cast<void>(box.hSaveWriteDialogFile2({.text = u"x"_qs, .suggestedName = u"a"_qs}));
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

    QString source = folder.path(u"Photo 1.png"_qs);
};

} // namespace

TEST_F(PhotoCopyPanel, SuggestsTheNameOnTheDesktop)
{
    box.hSaveDialogFile(source);

    ASSERT_EQ(chooser.saved.size(), 1U);
    EXPECT_EQ(chooser.saved[0].suggestedName, u"Photo 1"_qs);
    EXPECT_EQ(chooser.saved[0].allowedTypes, QStringList{u"jpeg"_qs});
    EXPECT_FALSE(chooser.saved[0].allowsOtherTypes);
    EXPECT_EQ(chooser.saved[0].startFolder, platform::desktopFolder());
    EXPECT_EQ(chooser.saved[0].accessories.size(), 2);
}

TEST_F(PhotoCopyPanel, EnablesTheQualityForJpegOnly)
{
    answer(u"a"_qs, u"tiff"_qs);
    box.hSaveDialogFile(source);
    EXPECT_FALSE(box.pubJPEGcompression.isEnabled());

    answer(u"b"_qs, u"jpeg"_qs);
    box.hSaveDialogFile(source);
    EXPECT_TRUE(box.pubJPEGcompression.isEnabled());
}

TEST_F(PhotoCopyPanel, AllowsTheTypeThatIsPickedWhileItIsOpen)
{
    answer(u"copy"_qs, u"png"_qs);

    box.hSaveDialogFile(source);

    EXPECT_EQ(chooser.saved[0].allowedTypes, QStringList{u"jpeg"_qs});
    EXPECT_EQ(chooser.typesAtAnswer, QStringList{u"png"_qs});
    EXPECT_TRUE(QFileInfo::exists(folder.path(u"copy.png"_qs)));
}

TEST_F(PhotoCopyPanel, TakesTheQualityThatWasPickedBefore)
{
    box.pubJPEGcompression.selectItemAtIndex(0);
    answer(u"small"_qs, u"jpeg"_qs);
    box.hSaveDialogFile(source);
    box.pubJPEGcompression.selectItemAtIndex(7);
    answer(u"fine"_qs, u"jpeg"_qs);
    box.hSaveDialogFile(source);

    const QByteArray small = TemporaryFolder::read(folder.path(u"small.jpeg"_qs));
    EXPECT_FALSE(small.isEmpty());
    EXPECT_NE(small, TemporaryFolder::read(folder.path(u"fine.jpeg"_qs)));
}

TEST_F(PhotoCopyPanel, WritesEveryImageType)
{
    const QList<std::pair<QString, QString>> types
        = {{u"png"_qs, u"public.png"_qs},
           {u"tiff"_qs, u"public.tiff"_qs},
           {u"bmp"_qs, u"com.microsoft.bmp"_qs},
           {u"gif"_qs, u"com.compuserve.gif"_qs},
           {u"jpeg"_qs, u"public.jpeg"_qs}};
    for (const auto& [type, identifier] : types) {
        answer(u"copy"_qs, type);

        box.hSaveDialogFile(source);

        const auto header = openedPhoto(folder.path(u"copy."_qs + type)).header();
        EXPECT_EQ(header.storedSize, (platform::graphics::PixelSize{7, 5}));
        EXPECT_EQ(header.typeIdentifier, identifier);
    }
}

TEST_F(PhotoCopyPanel, WritesPdfAndJpeg2000)
{
    answer(u"copy"_qs, u"pdf"_qs);
    box.hSaveDialogFile(source);
    answer(u"copy"_qs, u"jp2"_qs);
    box.hSaveDialogFile(source);

    EXPECT_TRUE(TemporaryFolder::read(folder.path(u"copy.pdf"_qs)).startsWith("%PDF-"));
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"copy.jp2"_qs)).mid(4, 4), "jP  ");
}

TEST_F(PhotoCopyPanel, WritesNothingForAFileThatIsNoPhoto)
{
    QStringList logged;
    platform::setLogSink([&](const QString& line) { logged += line; });
    answer(u"copy"_qs, u"png"_qs);

    box.hSaveDialogFile(folder.write(u"text.txt"_qs, "no photo"));
    platform::setLogSink({});

    EXPECT_FALSE(QFileInfo::exists(folder.path(u"copy.png"_qs)));
    EXPECT_EQ(logged.size(), 1);
}

TEST_F(PhotoCopyPanel, ShowsTheTagFieldOnNewerSystemsOnly)
{
    defaults.set(u"MOS"_qs, u"109+"_qs);
    chooser.saveAnswer = folder.path(u"copy"_qs);
    chooser.beforeAnswer = [this] {
        const auto accessories = chooser.saved.back().accessories;
        ASSERT_EQ(accessories.size(), 3);
        auto* const tags = dynamic_cast<brenvaldo::controls::TextField*>(accessories.at(2).control);
        ASSERT_TRUE(tags);
        tags->setStringValue(u"sea,sun"_qs);
    };

    box.hSaveDialogFile(source);

    QByteArray value(64, '\0');
    const QByteArray copy = folder.path(u"copy.jpeg"_qs).toUtf8();
    const auto size = ::getxattr(copy.constData(), "user.xdg.tags", value.data(), 64);
    EXPECT_EQ(value.left(size), "sea,sun");
}
