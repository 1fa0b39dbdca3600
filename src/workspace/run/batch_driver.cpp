// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch_driver.h"

#include "batch_rules.h"
#include "photos_of_run.h"
#include "run_bar.h"

#include <files/keep_number.h>
#include <files/usable_name.h>
#include <imaging/writer_rules.h>
#include <panels/panels.h>
#include <platform/containers/type_identifier.h>
#include <platform/foundation/files_in_the_making.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/storage/hidden_file.h>
#include <workspace/functions/function_id.h>
#include <workspace/functions/selected_function.h>
#include <workspace/preview/preview_switch.h>

#include <tuple>

namespace brenvaldo::workspace {

namespace {

imaging::ResultWord failsAsNotBuilt(const QLatin1String& function)
{
    logNotBuilt(function);
    return imaging::ResultWord::Failed;
}

PhotoRun::Operation
operationOf(const PhotoRun& run, const QLatin1String& function, const RunContext& context)
{
    if (run.start)
        return run.start(context);
    return [function](const PhotoOutput&) { return failsAsNotBuilt(function); };
}

QString targetOf(const PhotoRun& run, const PhotoOutput& output)
{
    const QString& base = output.photo.destinationBase;
    const QString& type = output.tail.myFileType;
    return run.target ? run.target(base, type)
                      : imaging::writtenPath(imaging::Writer::Batch, base, type);
}

void removeAbandonedFilesBeside(const QStringList& photos)
{
    QStringList folders;
    for (const QString& path : photos)
        folders.append(platform::deletingLastPathComponent(path));
    folders.removeDuplicates();
    for (const QString& folder : folders)
        platform::storage::removeAbandonedFiles(folder);
}

const RenamingRun& renamingOf(const Functions& functions)
{
    return std::get<RenamingRun>(functions.withId(functionId::fileRenaming)->run);
}

} // namespace

BatchDriver::BatchDriver(Links links)
    : m_links(std::move(links))
    , m_panels(m_links.subsystems.panels)
{
}

void BatchDriver::hLoadImages()
{
    const PreviewSwitchedOff preview(m_panels.vwShowPreview.cbShowPreview);
    const QString selected = cSelectedFunction::sharedModel().myString.value_or(QString());
    const Function* function = functionOfRun(m_links.functions, selected, m_panels);
    // Inside of another run, its files stand before this one begins.
    platform::awaitAllFiles();
    files::cKeepNumber::sharedNumber().myNumberString = u"0"_s;
    const Press press{
        .function = function ? function->id : QLatin1String(),
        .destination = m_panels.vwMainDestination.tfImageDestinationFolder.stringValue(),
        .previewState = preview.keptState()};
    platform::storage::removeAbandonedFiles(press.destination);
    if (function)
        std::visit([&](const auto& kind) { run(press, kind); }, function->run);
    else
        std::ignore = takenForDestination(press, Takes::PhotosOfTheFilter);
}

void BatchDriver::run(const Press&, const OwnButton& button)
{
    if (button.message)
        m_links.alert(button.message());
}

void BatchDriver::run(const Press& press, const PhotoRun& photoRun)
{
    const QStringList photos = takenForDestination(press, photoRun.takes);
    if (photos.isEmpty())
        return;
    const RunContext context{
        .subsystems = m_links.subsystems, .alert = [this](const Message& message) {
            platform::awaitAllFiles();
            m_links.alert(message);
        }};
    const PhotoRun::Operation operation = operationOf(photoRun, press.function, context);
    const OutputChoice choice = outputChoice();
    PictureSaver saver(savingOf(press.function), photos.size());
    RunBar bar(m_panels.window.myProgressBar, photos.size());
    for (const QString& path : photos) {
        bar.advance();
        if (bar.isAskedToEnd())
            return;
        const PhotoOutput output = outputOf(path, press.destination, choice);
        if (const auto outcome = operation(output)) {
            const bool writes = !std::holds_alternative<imaging::WordOfPictureBefore>(*outcome);
            const QString target = writes ? targetOf(photoRun, output) : QString();
            saver.take({.source = path, .target = target, .outcome = *outcome});
        }
    }
}

void BatchDriver::run(const Press& press, const InPlaceRun& inPlace)
{
    const QStringList photos = takenPhotos(Takes::PhotosOfTheFilter, m_links.photos, m_panels);
    if (photos.isEmpty())
        return;
    if (inPlace.changesTheFile)
        removeAbandonedFilesBeside(photos);
    PictureSaver saver(savingOf(press.function), photos.size());
    RunBar bar(m_panels.window.myProgressBar, photos.size());
    for (const QString& path : photos) {
        const InPlaceRun::Operation operation = inPlace.read
            ? inPlace.read(m_links.subsystems, path)
            : [&press] { return failsAsNotBuilt(press.function); };
        bar.advance();
        if (bar.isAskedToEnd())
            return;
        saver.take(
            {.source = path,
             .target = inPlace.changesTheFile ? path : QString(),
             .outcome = operation()}
        );
    }
}

void BatchDriver::run(const Press& press, const ListRun& listRun)
{
    const QStringList photos = takenForDestination(press, Takes::PhotosOfTheFilter);
    if (photos.isEmpty())
        return;
    PictureSaver saver(savingOf(press.function), photos.size());
    if (listRun.work) {
        listRun.work(
            {.subsystems = m_links.subsystems,
             .paths = photos,
             .destination = press.destination,
             .choice = outputChoice(),
             .sink = saver}
        );
        return;
    }
    const imaging::ResultWord word = failsAsNotBuilt(press.function);
    for (const QString& path : photos)
        saver.take({.source = path, .target = {}, .outcome = word});
}

void BatchDriver::run(const Press& press, const RenamingRun&)
{
    struct Taken
    {
        QString path;
        int index; ///< in the photo list
    };
    if (press.previewState == 0 && press.destination.isEmpty()) {
        m_links.alert(missingDestinationMessage());
        return;
    }
    QList<Taken> taken;
    for (int index = 0; index < m_links.photos.count(); ++index) {
        if (press.previewState == 1)
            m_links.hUpdateCollectionViewItem(QString(), index);
        const cCollectionViewItem& entry = m_links.photos.entries().at(index);
        if (entry.myPhotoSelect > 0)
            taken.append({.path = entry.myPhotoDescription, .index = index});
    }
    if (taken.isEmpty())
        return;
    RunBar bar(m_panels.window.myProgressBar, taken.size());
    for (const Taken& file : taken) {
        bar.advance();
        if (bar.isAskedToEnd())
            return;
        hCalledRenameFilesFunc(file.path, press.previewState, file.index);
    }
}

void BatchDriver::hCalledRenameFilesFunc(const QString& path, int previewState, int index)
{
    const auto& rename = renamingOf(m_links.functions).rename;
    const RenameRequest request{
        .path = path,
        .function = u"RenamingFunction"_s,
        .previewState = previewState,
        .index = index};
    const RenameOutcome renamed = rename
        ? rename(m_links.subsystems, request)
        : RenameOutcome{.word = failsAsNotBuilt(functionId::fileRenaming)};
    if (previewState == 1)
        m_links.hUpdateCollectionViewItem(renamed.newName, index);
    PictureSaver saver(savingOf(functionId::fileRenaming), 1);
    saver.take({.source = path, .target = renamed.target, .outcome = renamed.word});
}

void BatchDriver::hCalledCActionFunc()
{
    if (const auto& rename = renamingOf(m_links.functions).rename)
        rename(m_links.subsystems, {.path = {}, .function = u"CActionFunction"_s});
}

QStringList BatchDriver::takenForDestination(const Press& press, Takes takes)
{
    if (press.destination.isEmpty()) {
        m_links.alert(missingDestinationMessage());
        return {};
    }
    if (m_links.photos.isEmpty()) {
        m_links.alert(noPhotosMessage());
        return {};
    }
    const QStringList photos = takenPhotos(takes, m_links.photos, m_panels);
    if (takes == Takes::PhotosOfTheFilter && !photos.isEmpty())
        m_selectedImages = photos;
    return photos;
}

QString BatchDriver::outputName(const QString& path) const
{
    platform::awaitFile(path);
    const QString name = platform::lastPathComponent(path);
    const auto& chain = m_panels.vwWatermark.cActionsTWMArrayController.arrangedObjects();
    const auto& rename = m_links.neighbours.hRenameTWMFile;
    if (chain.isEmpty() || !rename)
        return name;
    const QString made = files::usableName(rename(path, name, chain));
    return made.isEmpty() ? name : made;
}

PictureSaver::Links BatchDriver::savingOf(const QLatin1String& function) const
{
    const auto& photosAtATime = m_links.neighbours.photosAtATime;
    return {
        .function = function,
        .imageHandling = m_links.subsystems.imageHandling,
        .journal = m_links.journal,
        .bar = m_panels.window.myProgressBar,
        .photosAtATime = photosAtATime ? photosAtATime() : 0,
        .cores = m_links.neighbours.cores};
}

OutputChoice BatchDriver::outputChoice() const
{
    const panels::FileTypePanel& panel = m_panels.vwFileType;
    return {
        .type = imaging::outputTypeForTitle(panel.pubFileType.titleOfSelectedItem()),
        .compressionLevel = panel.pubJPEGCompressionLevel.titleOfSelectedItem()};
}

PhotoOutput BatchDriver::outputOf(
    const QString& path, const QString& destination, const OutputChoice& choice
) const
{
    const QString extension = platform::pathExtension(path);
    const QString fileUTI = platform::containers::preferredTypeIdentifier(extension);
    return {
        .photo
        = {.source = path, .destinationBase = destinationBase(destination, outputName(path))},
        .tail
        = {.outputType = choice.type,
           .compressionLevel = choice.compressionLevel,
           .fileExtension = extension,
           .fileExtensionNSStr = {},
           .fileUTI = fileUTI,
           .myFileType = imaging::keepsOriginalType(choice.type) ? fileUTI : choice.type}};
}

} // namespace brenvaldo::workspace
