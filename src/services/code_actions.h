// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <panels/code_panel.h>

#include <QString>

#include <functional>

namespace brenvaldo::services {

/// Makes the file of the code panel: a QR code or a bar code of its text, as PNG.
///
/// The file's name is folder, name and ".png", simply joined; an existing file is replaced. A text
/// that no code can hold makes no file and no message.
class CodeActions
{
public:
    using Alert = std::function<void(const QString& title, const QString& text)>;

    /// `panel` must outlive this object.
    CodeActions(const panels::CodePanel& panel, Alert hAlertWindow);

    /// A QR code for the first kind of the panel, a bar code for any other.
    void hGenerateCode() const;
    void hGenerateQRImage() const;
    void hGenerateBarCodeImage() const;

    /// Makes the action of the panel's button known by its name.
    void registerActions(controls::ActionRegistry& actions) const;

private:
    [[nodiscard]] bool isComplete() const;

    const panels::CodePanel& m_panel;
    Alert m_hAlertWindow;
};

} // namespace brenvaldo::services
