// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control.h"

#include <cstdint>

namespace brenvaldo::controls {

/// A control whose value is a text, read by the platform's number rules.
class TextControl : public Control
{
public:
    explicit TextControl(const QString& name, QString text = {});

    [[nodiscard]] const QString& stringValue() const { return m_text; }
    void setStringValue(const QString& text);

    /// Actions sent, in this order, at each change while the user types: "class.action".
    [[nodiscard]] const QStringList& typingActions() const { return m_typingActions; }
    void addTypingAction(const QString& action) { m_typingActions.append(action); }

    [[nodiscard]] std::int32_t intValue() const;
    [[nodiscard]] std::int64_t integerValue() const;
    [[nodiscard]] float floatValue() const;
    [[nodiscard]] double doubleValue() const;

private:
    QString m_text;
    QStringList m_typingActions;
};

/// A text of one line.
class TextField : public TextControl
{
public:
    using TextControl::TextControl;
};

/// A text of more lines; its value is the plain string of its text storage.
class TextView : public TextControl
{
public:
    using TextControl::TextControl;

    enum class Alignment { Left, Right, Center };

    /// How the view shows its text; no part of the value.
    [[nodiscard]] Alignment alignment() const { return m_alignment; }
    void setAlignment(Alignment alignment);

private:
    Alignment m_alignment = Alignment::Left;
};

} // namespace brenvaldo::controls
