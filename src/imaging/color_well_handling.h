// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <controls/color_well.h>
#include <controls/text_controls.h>
#include <panels/panels.h>

#include <QString>

#include <optional>

namespace brenvaldo::imaging {

/// Name of the colour well that a hex field with this tag feeds; "" when there is none.
[[nodiscard]] QString colorWellOfHexField(int tag);

/// Name of the hex field that a colour well with this tag feeds; "" when there is none.
///
/// Not the inverse of `colorWellOfHexField`: wells and fields are numbered apart.
[[nodiscard]] QString hexFieldOfColorWell(int tag);

/// Keeps colour wells and their hex fields in step. The panels outlive the object and its actions.
class cColorWellHandling
{
public:
    explicit cColorWellHandling(const panels::Panels& panels);

    /// The colour as six hexadecimal digits.
    [[nodiscard]] static QString getHEXValue(const platform::graphics::Color& color);

    /// Sets `well` to the colour of `text`: exactly six hexadecimal digits after one optional "#",
    /// then anything else. Any other text changes nothing and gives nothing.
    static std::optional<platform::graphics::Color>
    setHEXValue(const QString& text, controls::ColorWell& well);

    /// Registers the two operations below as the actions that fields and wells send.
    void registerActions(controls::ActionRegistry& actions) const;

    /// A hex field was edited: the well of its tag follows.
    void controlTextDidEndEditing(const controls::TextControl& field) const;

    /// A colour well was changed: the hex field of its tag follows.
    void hCallHEXfromColorwell(const controls::ColorWell& well) const;

private:
    const panels::Panels& m_panels;
};

} // namespace brenvaldo::imaging
