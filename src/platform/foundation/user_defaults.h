// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

#include <memory>
#include <optional>

class QSettings;

namespace brenvaldo::platform {

/// The user's stored preferences: keys are case-sensitive and live in
/// `$XDG_CONFIG_HOME/Brenvaldo.conf`.
class UserDefaults
{
public:
    UserDefaults();
    /// Keeps the preferences in the INI file at `path`.
    explicit UserDefaults(const QString& path);
    ~UserDefaults();

    /// Nothing when the key was never set.
    [[nodiscard]] std::optional<QVariant> value(const QString& key) const;
    [[nodiscard]] QString text(const QString& key) const;
    void set(const QString& key, const QVariant& value);
    void remove(const QString& key);
    void synchronize();

private:
    std::unique_ptr<QSettings> m_settings;
};

} // namespace brenvaldo::platform
