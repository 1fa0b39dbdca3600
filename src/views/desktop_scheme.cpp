// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop_scheme.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace brenvaldo::views {

namespace {

constexpr uint preferDark = 1;

QDBusMessage readScheme()
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        u"org.freedesktop.portal.Desktop"_qs,
        u"/org/freedesktop/portal/desktop"_qs,
        u"org.freedesktop.portal.Settings"_qs,
        u"Read"_qs
    );
    message << u"org.freedesktop.appearance"_qs << u"color-scheme"_qs;
    return message;
}

} // namespace

Scheme wishedScheme(const QVariant& answer)
{
    QVariant value = answer;
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt() == preferDark ? Scheme::Dark : Scheme::Light;
}

void takeDesktopScheme()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    auto* call = new QDBusPendingCallWatcher(bus.asyncCall(readScheme()), qApp);
    QObject::connect(call, &QDBusPendingCallWatcher::finished, call, [call] {
        const QDBusPendingReply<QDBusVariant> reply = *call;
        if (!reply.isError() && wishedScheme(reply.value().variant()) == Scheme::Dark)
            QApplication::setPalette(paletteOf(Scheme::Dark));
        call->deleteLater();
    });
}

} // namespace brenvaldo::views
