// SPDX-License-Identifier: GPL-3.0-or-later
#include "system_desktop.h"

#include <platform/foundation/literals.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>

namespace brenvaldo::platform::storage {

namespace {

QDBusMessage showItemsRequest(const QUrl& item)
{
    QDBusMessage request = QDBusMessage::createMethodCall(
        u"org.freedesktop.FileManager1"_s,
        u"/org/freedesktop/FileManager1"_s,
        u"org.freedesktop.FileManager1"_s,
        u"ShowItems"_s
    );
    request << QStringList{item.toString(QUrl::FullyEncoded)} << QString();
    return request;
}

/// Without an address the library would start a bus, and wait for it.
bool hasSessionBus()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")
        || (!runtime.isEmpty() && QFileInfo::exists(runtime + u"/bus"_s));
}

QUrl folderOf(const QFileInfo& item)
{
    return QUrl::fromLocalFile(item.isDir() ? item.absoluteFilePath() : item.absolutePath());
}

} // namespace

SystemDesktop::SystemDesktop()
    : SystemDesktop([](const QUrl& url) { QDesktopServices::openUrl(url); })
{
}

SystemDesktop::SystemDesktop(Opener opener)
    : m_opener(std::move(opener))
{
}

void SystemDesktop::openUrl(const QUrl& url) { m_opener(url); }

void SystemDesktop::reveal(const QString& path)
{
    if (path.isEmpty())
        return;
    const QFileInfo item(path);
    const QUrl folder = folderOf(item);
    if (!hasSessionBus() || !QDBusConnection::sessionBus().isConnected()) {
        m_opener(folder);
        return;
    }
    const QUrl url = QUrl::fromLocalFile(item.absoluteFilePath());
    auto* const watcher = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(showItemsRequest(url)), &m_context
    );
    QObject::connect(
        watcher,
        &QDBusPendingCallWatcher::finished,
        &m_context,
        [this, folder](QDBusPendingCallWatcher* answered) {
            answered->deleteLater();
            if (answered->isError())
                m_opener(folder);
        }
    );
}

} // namespace brenvaldo::platform::storage
