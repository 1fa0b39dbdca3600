// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/signal.h>

#include <QString>
#include <QStringList>

namespace brenvaldo::controls {

/// A named control of the interface: a plain value with observers; no widget is needed to use it.
///
/// Setting a value in code tells the observers and sends no action. A change by the user goes
/// through `UserInput`, which sets the value and then sends the control's actions.
class Control
{
public:
    explicit Control(QString name);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    Control(Control&&) = delete;
    Control& operator=(Control&&) = delete;
    virtual ~Control() = default;

    [[nodiscard]] const QString& name() const { return m_name; }

    /// Other names of the same control, used by other records and operations.
    [[nodiscard]] const QStringList& aliases() const { return m_aliases; }
    void addAlias(const QString& alias) { m_aliases.append(alias); }

    /// Number that tells an action which control sent it; 0 unless the layout gives one.
    [[nodiscard]] int tag() const { return m_tag; }
    void setTag(int tag) { m_tag = tag; }

    [[nodiscard]] bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);

    [[nodiscard]] bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden);

    [[nodiscard]] const QString& toolTip() const { return m_toolTip; }
    void setToolTip(const QString& toolTip);

    /// Actions sent, in this order, when the user has changed the value: "class.action".
    [[nodiscard]] const QStringList& actions() const { return m_actions; }
    void addAction(const QString& action) { m_actions.append(action); }

    /// Sent after each change of value, contents, enabled, hidden or tool tip.
    platform::Signal<> changed;

private:
    QString m_name;
    QStringList m_aliases;
    QStringList m_actions;
    QString m_toolTip;
    int m_tag = 0;
    bool m_enabled = true;
    bool m_hidden = false;
};

} // namespace brenvaldo::controls
