// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "event_printer.h"

#include <platform/services/picture_printer.h>
#include <platform/services/sharing_picker.h>

namespace brenvaldo::script {

/// Tells which photo a window would print: its name, width and height.
class ScriptedPrinter : public platform::services::PicturePrinter
{
public:
    explicit ScriptedPrinter(const EventPrinter& printer);

    void print(const QImage& picture, const QString& name) override;

private:
    const EventPrinter& m_printer;
};

/// Tells which photo a window would offer to share.
class ScriptedSharing : public platform::services::SharingPicker
{
public:
    explicit ScriptedSharing(const EventPrinter& printer);

    void show(const QString& path) override;

private:
    const EventPrinter& m_printer;
};

} // namespace brenvaldo::script
