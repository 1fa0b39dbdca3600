// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_services.h"

#include <platform/codecs/image_source.h>
#include <platform/foundation/paths.h>

namespace brenvaldo::services {

cPrint::cPrint(platform::services::PicturePrinter& printer)
    : m_printer(printer)
{
}

void cPrint::printService(const QString& path)
{
    const auto source = platform::codecs::ImageSource::open(path);
    const auto picture = source ? source->uprightImage() : std::nullopt;
    const QImage pixels = picture ? picture->toQImage() : QImage();
    if (!pixels.isNull())
        m_printer.print(pixels, platform::lastPathComponent(path));
}

cSharing::cSharing(platform::services::SharingPicker& picker)
    : m_picker(picker)
{
}

void cSharing::chooseFromSharingServicePicker(const QString& path)
{
    if (platform::codecs::ImageSource::open(path))
        m_picker.show(path);
}

} // namespace brenvaldo::services
