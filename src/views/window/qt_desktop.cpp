// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt_desktop.h"

#include <platform/foundation/literals.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace brenvaldo::views {

namespace {

void openFolderOf(const QString& path)
{
    const QFileInfo file(path);
    const QString folder = file.isDir() ? path : file.path();
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

QDBusMessage showItems(const QString& path)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        u"org.freedesktop.FileManager1"_s,
        u"/org/freedesktop/FileManager1"_s,
        u"org.freedesktop.FileManager1"_s,
        u"ShowItems"_s
    );
    const QString uri = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
    message << QStringList{uri} << QString();
    return message;
}

} // namespace

void QtDesktop::openUrl(const QUrl& url) { QDesktopServices::openUrl(url); }

void QtDesktop::reveal(const QString& path)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return openFolderOf(path);
    auto* reply = new QDBusPendingCallWatcher(bus.asyncCall(showItems(path)));
    QObject::connect(reply, &QDBusPendingCallWatcher::finished, reply, [reply, path] {
        if (reply->isError())
            openFolderOf(path);
        reply->deleteLater();
    });
}

} // namespace brenvaldo::views
