// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_hint.h"

#include <workspace/functions/function_id.h>
#include <workspace/functions/shown_function.h>

#include <QCoreApplication>

namespace brenvaldo::views {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("PreviewHint", text); }

} // namespace

QString previewHint(const panels::Panels& panels, const workspace::PhotoList& photos)
{
    const QString function = workspace::shownFunction(panels);
    if (function == workspace::functionId::htmlExport)
        return tr("Choose a template to see how its gallery looks");
    if (photos.isEmpty())
        return tr("Your photo shows here");
    const auto* entry = photos.selectedEntry();
    if (!entry)
        return tr("Select a photo to see it here");
    if (entry->myRenameSelect > 0)
        return tr("This file is not a photo");
    if (function == workspace::functionId::batchFileConvert)
        return tr("Conversion changes the file type only; there is nothing to preview");
    return tr("This photo can't be read");
}

} // namespace brenvaldo::views
