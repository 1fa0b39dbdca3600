// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme.h"

#include <QObject>
#include <QVariant>

class QDBusVariant;

namespace brenvaldo::views {

/// Gives the program the scheme that the desktop's settings service wishes, at the start and
/// whenever the wish changes. Never waits for the service; without one the desktop's palette
/// decides.
class DesktopScheme : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE(<QDBusVariant>)

public:
    using QObject::QObject;

    /// Asks for the wish, and hears of changes from now on.
    void follow();

    /// Takes the wish on. Light colours are those of the desktop's own palette.
    void take(Scheme wish);

public Q_SLOTS:
    /// A setting of the service has changed; all but the colour scheme are passed over.
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    bool m_isDark = false;
};

/// The scheme that an answer of the desktop's settings service wishes: 1, wrapped in variants, is
/// dark; everything else is light.
[[nodiscard]] Scheme wishedScheme(const QVariant& answer);

} // namespace brenvaldo::views
