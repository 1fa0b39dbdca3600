// SPDX-License-Identifier: GPL-3.0-or-later
#include "user_defaults.h"

#include "folders.h"
#include "literals.h"
#include "paths.h"

#include <QSettings>

namespace brenvaldo::platform {

UserDefaults::UserDefaults()
    : UserDefaults(appendingPathComponent(configurationFolder(), u"Brenvaldo.conf"_s))
{
}

UserDefaults::UserDefaults(const QString& path)
    : m_settings(std::make_unique<QSettings>(path, QSettings::IniFormat))
{
}

UserDefaults::~UserDefaults() = default;

std::optional<QVariant> UserDefaults::value(const QString& key) const
{
    if (!m_settings->contains(key))
        return std::nullopt;
    return m_settings->value(key);
}

QString UserDefaults::text(const QString& key) const { return m_settings->value(key).toString(); }

void UserDefaults::set(const QString& key, const QVariant& value)
{
    m_settings->setValue(key, value);
}

void UserDefaults::remove(const QString& key) { m_settings->remove(key); }

void UserDefaults::synchronize() { m_settings->sync(); }

} // namespace brenvaldo::platform
