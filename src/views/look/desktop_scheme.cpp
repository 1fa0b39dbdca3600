// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop_scheme.h"

#include <platform/foundation/literals.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace brenvaldo::views {

namespace {

constexpr uint preferDark = 1;

const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString portalSettings = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString colorScheme = u"color-scheme"_s;

QDBusMessage readScheme()
{
    QDBusMessage message
        = QDBusMessage::createMethodCall(portalService, portalPath, portalSettings, u"Read"_s);
    message << appearance << colorScheme;
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

void DesktopScheme::follow()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(
        portalService,
        portalPath,
        portalSettings,
        u"SettingChanged"_s,
        this,
        SLOT(settingChanged(QString, QString, QDBusVariant))
    );
    auto* call = new QDBusPendingCallWatcher(bus.asyncCall(readScheme()), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        const QDBusPendingReply<QDBusVariant> reply = *call;
        if (!reply.isError())
            take(wishedScheme(reply.value().variant()));
        call->deleteLater();
    });
}

void DesktopScheme::take(Scheme wish)
{
    const bool isDark = wish == Scheme::Dark;
    if (std::exchange(m_isDark, isDark) != isDark)
        QApplication::setPalette(isDark ? paletteOf(Scheme::Dark) : QPalette());
}

void DesktopScheme::settingChanged(
    const QString& group, const QString& key, const QDBusVariant& value
)
{
    if (group == appearance && key == colorScheme)
        take(wishedScheme(value.variant()));
}

} // namespace brenvaldo::views
