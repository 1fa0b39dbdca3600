// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing_menu.h"

#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>

#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QMimeData>
#include <QProcess>

namespace brenvaldo::app {

namespace {

/// By the desktop's own command: an address of a new e-mail loses the photo in most programs.
void sendByMail(const QString& path)
{
    QProcess::startDetached(u"xdg-email"_s, {u"--attach"_s, path});
}

void copyPicture(const QString& path)
{
    const auto source = platform::codecs::ImageSource::open(path);
    const auto picture = source ? source->uprightImage() : std::nullopt;
    if (picture)
        QGuiApplication::clipboard()->setImage(picture->toQImage());
}

void copyFile(const QString& path)
{
    auto* data = new QMimeData;
    data->setUrls({QUrl::fromLocalFile(path)});
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace

SharingMenu::SharingMenu(platform::storage::Desktop& desktop)
    : m_desktop(desktop)
{
}

void SharingMenu::show(const QString& path)
{
    QMenu menu;
    fill(menu, path);
    menu.exec(QCursor::pos());
}

void SharingMenu::fill(QMenu& menu, const QString& path)
{
    menu.addAction(tr("Send by &e-mail"), [path] { sendByMail(path); });
    menu.addAction(tr("&Open with the usual program"), [this, path] {
        m_desktop.openUrl(QUrl::fromLocalFile(path));
    });
    menu.addSeparator();
    menu.addAction(tr("Copy &picture"), [path] { copyPicture(path); });
    menu.addAction(tr("Copy &file"), [path] { copyFile(path); });
    menu.addSeparator();
    menu.addAction(tr("Show in the file &manager"), [this, path] { m_desktop.reveal(path); });
}

} // namespace brenvaldo::app
