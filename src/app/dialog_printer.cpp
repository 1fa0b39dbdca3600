// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialog_printer.h"

#include <QApplication>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace brenvaldo::app {

void DialogPrinter::print(const QImage& picture, const QString& name)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(name);
    platform::services::prepareFullPage(printer, picture.size());
    QPrintPreviewDialog dialog(&printer, QApplication::activeWindow());
    dialog.setWindowTitle(name);
    QObject::connect(
        &dialog,
        &QPrintPreviewDialog::paintRequested,
        &dialog,
        [&picture](QPrinter* paper) { platform::services::drawOnPage(*paper, picture); }
    );
    dialog.exec();
}

} // namespace brenvaldo::app
