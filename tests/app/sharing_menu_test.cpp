// SPDX-License-Identifier: GPL-3.0-or-later
#include <app/sharing_menu.h>

#include <platform/foundation/literals.h>

#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gmock/gmock.h>

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QThread>

using namespace brenvaldo;
using testing::ElementsAre;

namespace {

class NotingDesktop : public platform::storage::Desktop
{
public:
    void openUrl(const QUrl& url) override { done.append(u"open "_s + url.fileName()); }
    void reveal(const QString& path) override { done.append(u"reveal "_s + path); }

    QStringList done;
};

class SharingMenu : public testing::Test
{
protected:
    SharingMenu() { sharing.fill(menu, path); }

    void trigger(const QString& title)
    {
        for (QAction* action : menu.actions()) {
            if (action->text().remove(u'&') == title)
                action->trigger();
        }
    }

    const test::TemporaryFolder folder;
    QString path
        = test::PhotoBuilder().size(40, 30).orientation(6).write(folder.path(u"a b.jpg"_s));
    NotingDesktop desktop;
    app::SharingMenu sharing{desktop};
    QMenu menu;
};

} // namespace

TEST_F(SharingMenu, HandsThePhotoToTheDesktop)
{
    trigger(u"Open with the usual program"_s);
    trigger(u"Show in the file manager"_s);
    EXPECT_THAT(desktop.done, ElementsAre(u"open a b.jpg"_s, u"reveal "_s + path));
}

TEST_F(SharingMenu, CopiesThePictureUprightOrTheFile)
{
    trigger(u"Copy picture"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(30, 40));
    trigger(u"Copy file"_s);
    EXPECT_EQ(
        QGuiApplication::clipboard()->mimeData()->urls(), QList<QUrl>{QUrl::fromLocalFile(path)}
    );
}

TEST_F(SharingMenu, AttachesThePhotoToAnEmail)
{
    const QString noted = folder.path(u"noted"_s);
    QFile command(folder.path(u"xdg-email"_s));
    ASSERT_TRUE(command.open(QIODevice::WriteOnly));
    command.write(
        "#!/bin/sh\nprintf '%s|%s' \"$1\" \"$2\" > '" + noted.toUtf8() + ".part'\nmv '"
        + noted.toUtf8() + ".part' '" + noted.toUtf8() + "'\n"
    );
    command.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    command.close();
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8() + ':' + before);
    trigger(u"Send by e-mail"_s);
    qputenv("PATH", before);
    for (int waits = 0; waits < 500 && !QFile::exists(noted); ++waits)
        QThread::msleep(20);
    QFile file(noted);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()), u"--attach|"_s + path);
}
