// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace brenvaldo::gallery {

/// The text of a stylesheet in the making: rules one after the other, a blank line after each.
class CssText
{
public:
    /// A rule with one declaration a line; empty lines are left out.
    CssText& rule(const QString& selector, const QStringList& lines);

    /// Text as it stands.
    CssText& raw(const QString& text);

    [[nodiscard]] const QString& text() const { return m_text; }

private:
    QString m_text;
};

} // namespace brenvaldo::gallery
