// SPDX-License-Identifier: GPL-3.0-or-later
#include "collection_view_controller.h"
#include "list_entry.h"
#include <platform/foundation/literals.h>
#include <workspace/functions/selected_function.h>
#include <workspace/preview/preview_switch.h>

#include <workspace/functions/function_id.h>
#include <workspace/run/driver_messages.h>

namespace brenvaldo::workspace {

void cCollectionViewController::hChoosePhotos()
{
    m_panels.vwShowPreview.cbShowPreview.setState(0);
    const auto& function = cSelectedFunction::sharedModel().myString;
    if (function == functionId::batchSort) {
        const Message message = batchSortMessage();
        m_hAlertWindow(message.title, message.text);
        return;
    }
    if (function == functionId::batchQR) {
        const Message message = codeChoiceMessage();
        m_hAlertWindow(message.title, message.text);
        return;
    }
    const bool isRenaming = function == functionId::fileRenaming;
    const auto paths = isRenaming ? chooseFiles() : choosePhotoFiles();
    if (!paths)
        return;
    {
        controls::RunningProgress bar(m_window.myProgressBar, controls::collectionViewBar);
        addAll(*paths, isRenaming ? renameEntry : chosenEntry, Counter::RunningNumber, bar);
        // Selecting twice makes sure that the selection changes, also where index 0 was selected.
        m_photos.select(1);
    }
    m_photos.select(0);
}

std::optional<QStringList> cCollectionViewController::chooseFiles()
{
    return m_chooser.open(
        {.message = u"*** Choose files to rename ***"_s, .allowsMultipleSelection = true}
    );
}

std::optional<QStringList> cCollectionViewController::choosePhotoFiles()
{
    return m_chooser.open(
        {.message = u"*** Choose your photos ***"_s,
         .allowsMultipleSelection = true,
         .allowedTypes
         = {u"jpg"_s, u"png"_s, u"gif"_s, u"bmp"_s, u"jpeg"_s, u"tif"_s, u"tiff"_s, u"heic"_s}}
    );
}

void cCollectionViewController::addAll(
    const QStringList& paths, MakeEntry makeEntry, Counter counter, controls::RunningProgress& bar
)
{
    const auto count = static_cast<int>(paths.size());
    const int step = count > 0 ? 100 / count : 0;
    int running = 0;
    for (const QString& path : paths) {
        ++running;
        if (counter == Counter::RunningNumber)
            m_window.tfImageCount.setStringValue(u"%1 of %2"_s.arg(running).arg(count));
        m_photos.append(makeEntry(path));
        if (counter == Counter::ListCount)
            showCount();
        bar.advance(step);
        if (bar.isAskedToEnd())
            return;
    }
    showCount();
}

void cCollectionViewController::hDroppedPhotos(const QStringList& paths)
{
    const PreviewSwitchedOff switchedOff(m_panels.vwShowPreview.cbShowPreview);
    {
        controls::RunningProgress bar(m_window.myProgressBar, controls::collectionViewBar);
        addAll(paths, droppedEntry, Counter::ListCount, bar);
    }
    selectFirstWhenNone();
}

void cCollectionViewController::hInsertPhotos()
{
    const PreviewSwitchedOff switchedOff(m_panels.vwShowPreview.cbShowPreview);
    const auto paths = choosePhotoFiles();
    if (!paths)
        return;
    for (const QString& path : *paths) {
        m_photos.append(insertedEntry(path));
        showCount();
    }
    selectFirstWhenNone();
}

void cCollectionViewController::selectFirstWhenNone()
{
    if (!m_photos.selectedIndex())
        m_photos.select(0);
}

void cCollectionViewController::showCount()
{
    m_window.tfImageCount.setStringValue(QString::number(m_photos.count()));
}

} // namespace brenvaldo::workspace
