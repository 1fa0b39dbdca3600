// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/services/picture_printer.h>

namespace brenvaldo::app {

/// Shows the page before it is printed; printer, paper and direction can be changed there.
class DialogPrinter : public platform::services::PicturePrinter
{
public:
    void print(const QImage& picture, const QString& name) override;
};

} // namespace brenvaldo::app
