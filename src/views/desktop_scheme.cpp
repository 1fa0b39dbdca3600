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

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colourScheme = QStringLiteral("color-scheme");

QDBusMessage readScheme()
{
    QDBusMessage message
        = QDBusMessage::createMethodCall(service, path, settings, QStringLiteral("Read"));
    message << appearance << colourScheme;
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
        service,
        path,
        settings,
        QStringLiteral("SettingChanged"),
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
    if (group == appearance && key == colourScheme)
        take(wishedScheme(value.variant()));
}

} // namespace brenvaldo::views
