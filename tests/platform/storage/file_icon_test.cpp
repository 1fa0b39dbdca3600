// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/storage/file_icon.h>

#include <support/environment.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>
#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::platform::storage::setFileIcon;
using namespace brenvaldo::test;

namespace {

QImage redSquare()
{
    QImage image(3, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

/// A program `gio` that writes its arguments to the file "arguments" beside it.
void installRecorder(const TemporaryFolder& folder)
{
    const QString path = folder.write(
        u"gio"_s, "#!/bin/sh\necho \"$*\" > \"$0.part\"\nmv \"$0.part\" \"${0%gio}arguments\"\n"
    );
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray recordedArguments(const TemporaryFolder& folder)
{
    QElapsedTimer clock;
    clock.start();
    while (!QFile::exists(folder.path(u"arguments"_s)) && clock.elapsed() < 5000)
        QThread::msleep(2);
    return TemporaryFolder::read(folder.path(u"arguments"_s));
}

QStringList keptIcons(const TemporaryFolder& data)
{
    return QDir(data.path(u"Brenvaldo/Icons"_s)).entryList(QDir::Files);
}

} // namespace

TEST(FileIcon, IsSetAsAnAttributeOfTheDesktop)
{
    const TemporaryFolder programs;
    const TemporaryFolder data;
    const Environment dataHome("XDG_DATA_HOME", data.path().toUtf8());
    const Environment path("PATH", programs.path().toUtf8() + ":/usr/bin:/bin");
    installRecorder(programs);
    const QString target = data.write(u"a b.c-action"_s, "");

    setFileIcon(target, redSquare());

    const QByteArray arguments = recordedArguments(programs);
    ASSERT_EQ(keptIcons(data).size(), 1);
    const QByteArray icon
        = data.path(u"Brenvaldo/Icons/"_s).toUtf8() + keptIcons(data).first().toUtf8();
    EXPECT_EQ(arguments, "set " + target.toUtf8() + " metadata::custom-icon file://" + icon + "\n");
}

TEST(FileIcon, DoesNothingForAMissingFileOrPicture)
{
    const TemporaryFolder programs;
    const TemporaryFolder data;
    const Environment dataHome("XDG_DATA_HOME", data.path().toUtf8());
    const Environment path("PATH", programs.path().toUtf8());
    installRecorder(programs);

    setFileIcon(u""_s, redSquare());
    setFileIcon(data.path(u"missing"_s), redSquare());
    setFileIcon(data.write(u"a"_s, ""), QImage());

    EXPECT_EQ(keptIcons(data), QStringList());
}

TEST(FileIcon, DoesNothingWithoutADesktop)
{
    const TemporaryFolder data;
    const Environment dataHome("XDG_DATA_HOME", data.path().toUtf8());
    const Environment path("PATH", data.path().toUtf8());

    setFileIcon(data.write(u"a"_s, ""), redSquare());

    EXPECT_EQ(keptIcons(data), QStringList());
}
