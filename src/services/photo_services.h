// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/services/picture_printer.h>
#include <platform/services/sharing_picker.h>

#include <QString>

namespace brenvaldo::services {

/// Prints single photos.
class cPrint
{
public:
    explicit cPrint(platform::services::PicturePrinter& printer);

    /// Prints the photo at `path` upright on a page; one that can't be read is not printed.
    void printService(const QString& path);

private:
    platform::services::PicturePrinter& m_printer;
};

/// Shares single photos.
class cSharing
{
public:
    explicit cSharing(platform::services::SharingPicker& picker);

    /// Shows the choice for the photo at `path`, when there is one that can be read.
    void chooseFromSharingServicePicker(const QString& path);

private:
    platform::services::SharingPicker& m_picker;
};

} // namespace brenvaldo::services
