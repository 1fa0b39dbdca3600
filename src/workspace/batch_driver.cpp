// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch_rules.h"
#include "function_id.h"
#include "gui_controls.h"
#include "preview_switch.h"
#include "selected_function.h"

#include <files/keep_number.h>
#include <platform/storage/hidden_file.h>

namespace brenvaldo::workspace {

void cGUIcontrols::hLoadImages()
{
    const PreviewSwitchedOff preview(m_panels.vwShowPreview.cbShowPreview);
    const QString function = cSelectedFunction::sharedModel().myString.value_or(QString());
    files::cKeepNumber::sharedNumber().myNumberString = u"0"_qs;
    const QString destination = m_panels.vwMainDestination.tfImageDestinationFolder.stringValue();
    platform::removeAbandonedFiles(destination);
    if (function == functionId::manSort)
        return;
    if (function == functionId::batchSort)
        show(batchSortMessage());
    else if (function == functionId::batchQR)
        show(codeRunMessage());
    else if (function == functionId::batchUploadPhotos)
        runUpload();
    else if (function == functionId::batchExifUC)
        runExif();
    else if (function == functionId::fileRenaming)
        runRenaming(preview.keptState(), destination);
    else
        runOnPhotos(function, destination);
}

void cGUIcontrols::runOnPhotos(const QString& function, const QString& destination)
{
    if (destination.isEmpty()) {
        show(missingDestinationMessage());
        return;
    }
    if (m_photos.isEmpty()) {
        show(noPhotosMessage());
        return;
    }
    if (function == functionId::batchFileConvert) {
        runConversion(destination);
        return;
    }
    const QStringList photos = takenByFullRule();
    if (photos.isEmpty())
        return;
    m_selectedImages = photos;
    if (function == functionId::htmlExport)
        runGallery(photos, destination);
    else if (function != functionId::uploadPhotos)
        runEditFunction(photos, destination);
}

void cGUIcontrols::runUpload()
{
    const QStringList photos = takenByFullRule();
    if (photos.isEmpty())
        return;
    const panels::SortingPanel& panel = m_panels.vwFileManagementSorting;
    const double step = progressStep(photos.size());
    controls::RunningProgress bar = shownBar();
    for (const QString& path : photos) {
        const PhotoUpload upload{
            .path = path,
            .album = panel.theApplePhotosData.value(
                panel.myPhotosTableView.selectedRow(), u"photosAlbumName"_qs
            ),
            .keyword = panel.tfAddKeyword.stringValue(),
            .title = panel.tfAddTitle.stringValue(),
            .description = panel.tfAddDescription.stringValue(),
            .favourite = QString::number(panel.cbAddToFavorite.state())};
        bar.advance(step);
        if (bar.isAskedToEnd())
            return;
        const QString word
            = wordOf(m_subsystems.operations.uploadToPhotos, functionId::batchUploadPhotos, upload);
        record(functionId::batchUploadPhotos, {.source = path, .target = {}, .word = word});
    }
}

void cGUIcontrols::runExif()
{
    const QStringList photos = takenByFullRule();
    if (photos.isEmpty())
        return;
    const panels::ExifPanel& panel = m_panels.vwFileManagementEXIF;
    const double step = progressStep(photos.size());
    controls::RunningProgress bar = shownBar();
    for (const QString& path : photos) {
        const QString comment = panel.tfExifUserComment.stringValue();
        const int clearState = panel.cbClearBeforeAdd.state();
        bar.advance(step);
        if (bar.isAskedToEnd())
            return;
        const QString word = wordOf(
            m_subsystems.operations.hSetExifData, functionId::batchExifUC, path, comment, clearState
        );
        record(functionId::batchExifUC, {.source = path, .target = path, .word = word});
    }
}

void cGUIcontrols::runRenaming(int previewState, const QString& destination)
{
    if (previewState == 0 && destination.isEmpty()) {
        show(missingDestinationMessage());
        return;
    }
    QList<TakenPhoto> taken;
    for (int index = 0; index < m_photos.count(); ++index) {
        if (previewState == 1)
            m_collectionView.hUpdateCollectionViewItem(QString(), index);
        const cCollectionViewItem& entry = m_photos.entries().at(index);
        if (entry.myPhotoSelect > 0)
            taken.append({.path = entry.myPhotoDescription, .index = index});
    }
    if (taken.isEmpty())
        return;
    const double step = progressStep(taken.size());
    controls::RunningProgress bar = shownBar();
    for (const TakenPhoto& photo : taken) {
        bar.advance(step);
        if (bar.isAskedToEnd())
            return;
        hCalledRenameFilesFunc(photo.path, previewState, photo.index);
    }
}

void cGUIcontrols::hCalledRenameFilesFunc(const QString& path, int previewState, int index)
{
    const RenameRequest request{
        .path = path,
        .function = u"RenamingFunction"_qs,
        .previewState = previewState,
        .index = index};
    const QString word = wordOf(
        m_subsystems.operations.hGetRenamePropertyValues, functionId::fileRenaming, request
    );
    record(functionId::fileRenaming, {.source = path, .target = {}, .word = word});
}

void cGUIcontrols::hCalledCActionFunc()
{
    const RenameRequest request{.path = {}, .function = u"CActionFunction"_qs};
    if (m_subsystems.operations.hGetRenamePropertyValues)
        m_subsystems.operations.hGetRenamePropertyValues(request);
}

void cGUIcontrols::runGallery(const QStringList& photos, const QString& destination)
{
    if (m_subsystems.operations.hCreateResponsiveHTML) {
        m_subsystems.operations.hCreateResponsiveHTML(photos, destination);
        return;
    }
    logNotBuilt(functionId::htmlExport);
    for (const QString& path : photos)
        record(functionId::htmlExport, {.source = path, .target = {}, .word = failedWord()});
}

void cGUIcontrols::runConversion(const QString& destination)
{
    const QStringList photos = takenByTick();
    if (photos.isEmpty())
        return;
    const OutputChoice choice = outputChoice();
    const double step = progressStep(photos.size());
    controls::RunningProgress bar = shownBar();
    for (const QString& path : photos) {
        bar.advance(step);
        if (bar.isAskedToEnd())
            return;
        const PhotoOutput output = outputOf(path, destination, choice);
        const Conversion conversion{
            .source = path,
            .typeIdentifier = output.tail.myFileType,
            .compressionLevel = output.tail.compressionLevel,
            .target
            = imaging::conversionTarget(output.photo.destinationBase, output.tail.myFileType)};
        const QString word = wordOf(
            m_subsystems.operations.hConvertFileType, functionId::batchFileConvert, conversion
        );
        record(
            functionId::batchFileConvert,
            {.source = path, .target = conversion.target, .word = word}
        );
    }
}

controls::RunningProgress cGUIcontrols::shownBar()
{
    return {m_window.myProgressBar, controls::guiControlsBar};
}

void cGUIcontrols::record(const QLatin1String& function, const PhotoOutcome& outcome)
{
    m_journal.add(
        {.time = QDateTime::currentDateTime(),
         .function = function,
         .source = outcome.source,
         .target = outcome.target,
         .word = outcome.word}
    );
}

} // namespace brenvaldo::workspace
