// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_sorter.h"

#include <files/tool_box.h>
#include <panels/panels.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/storage/hidden_file.h>
#include <workspace/functions/function_id.h>

#include <QScopeGuard>

#include <array>

namespace brenvaldo::workspace {

namespace {

using files::cNSFileHandling;
using files::FileResult;

void enable(std::initializer_list<controls::Control*> values, const controls::CheckBox& choice)
{
    for (controls::Control* value : values)
        value->setEnabled(choice.isOn());
}

using Handling = FileResult (*)(const cNSFileHandling::SourceAndTarget& paths);

constexpr int trash = 3;

/// In the order of the pop-up; null for an index that it does not have.
Handling handlingAt(int index)
{
    constexpr std::array<Handling, 4> handlings{
        &cNSFileHandling::hCopyFileTo,
        &cNSFileHandling::hMoveFileTo,
        &cNSFileHandling::hAliasFileTo,
        [](const auto& paths) { return cNSFileHandling::hTrashFile(paths.source); }};
    const bool exists = index >= 0 && index < static_cast<int>(handlings.size());
    return exists ? handlings.at(static_cast<std::size_t>(index)) : nullptr;
}

/// Looks at the first of several files only.
bool lieIn(const QString& destination, const QStringList& paths)
{
    const QString source
        = paths.size() > 1 ? platform::deletingLastPathComponent(paths.first()) : QString();
    return source + u'/' == destination;
}

Message missingValuesMessage(const QString& values) { return {u"Missing values."_s, values}; }

Message sameFolderMessage()
{
    return {u"Folder Error."_s, u"Source and destination folder are the same."_s};
}

} // namespace

DVFileSorterRoutine::DVFileSorterRoutine(Links links)
    : m_links(std::move(links))
    , m_panel(m_links.subsystems.panels.vwFileManagementSorting)
{
}

void DVFileSorterRoutine::registerActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (DVFileSorterRoutine::*action)()) {
        actions.add(u"DVFileSorterRoutine"_s, name, [this, action](const auto&) {
            (this->*action)();
        });
    };
    add(u"hSortFiles"_s, &DVFileSorterRoutine::hSortFiles);
    add(u"hFilePropEnabled"_s, &DVFileSorterRoutine::hFilePropEnabled);
    add(u"hFileNameEnabled"_s, &DVFileSorterRoutine::hFileNameEnabled);
    add(u"hFileTagEnabled"_s, &DVFileSorterRoutine::hFileTagEnabled);
    add(u"btnChooseDestFolder"_s, &DVFileSorterRoutine::btnChooseDestFolder);
    add(u"hShowBatchDestinationFolder"_s, &DVFileSorterRoutine::hShowBatchDestinationFolder);
    add(u"closeCustomSheetAlertbSort"_s, &DVFileSorterRoutine::closeCustomSheetAlertbSort);
}

bool DVFileSorterRoutine::Settings::trashes() const { return handling == trash; }

DVFileSorterRoutine::Settings DVFileSorterRoutine::settings() const
{
    return {
        .criteria = readSettings(m_panel),
        .handling = m_panel.pubFileHandlingSelector.indexOfSelectedItem(),
        .destination = m_panel.tfBatchSortDestFolder.stringValue()};
}

void DVFileSorterRoutine::hSortFiles()
{
    const Settings read = settings();
    if (const QString missing = missingValues(read); !missing.isEmpty()) {
        m_links.alert(missingValuesMessage(missing));
        return;
    }
    const QStringList paths
        = m_links.subsystems.toolBox.hOpenDialogFilesOC(u"rename"_s).value_or(QStringList());
    if (paths.isEmpty())
        return;
    if (lieIn(read.destination, paths)) {
        m_links.alert(sameFolderMessage());
        return;
    }
    sort(paths, read);
}

void DVFileSorterRoutine::hBatchSortPhotos(const QString& path)
{
    const Settings read = settings();
    if (read.criteria.picture.isChosen && meets(read.criteria, path))
        handle(path, read);
}

/// One line a value that lacks.
QString DVFileSorterRoutine::missingValues(const Settings& settings)
{
    const SortCriteria& criteria = settings.criteria;
    QString text;
    if (!settings.trashes() && settings.destination.isEmpty())
        text = u"Folder path not defined or doesn't exist anymore."_s;
    if (criteria.picture.isChosen && criteria.picture.value.isEmpty())
        text += u"\rNo variable image parameter defined"_s;
    if (criteria.name.isChosen && criteria.name.value.isEmpty())
        text += u"\rNo variable filename or file extension parameter defined"_s;
    return text;
}

void DVFileSorterRoutine::sort(const QStringList& paths, const Settings& settings)
{
    platform::storage::removeAbandonedFiles(settings.destination);
    controls::ProgressIndicator& bar = m_panel.showSortProgress;
    bar.setMaximum(static_cast<double>(paths.size()));
    bar.setDoubleValue(0);
    const auto end = qScopeGuard([&bar] { bar.setDoubleValue(0); });
    for (const QString& path : paths) {
        bar.incrementBy(1);
        if (meets(settings.criteria, path))
            handle(path, settings);
    }
}

void DVFileSorterRoutine::handle(const QString& path, const Settings& settings)
{
    const Handling handling = handlingAt(settings.handling);
    if (!handling)
        return;
    const QString target = settings.destination + platform::lastPathComponent(path);
    const FileResult result = handling({.source = path, .target = target});
    m_links.journal.add(
        {.function = functionId::batchSort,
         .source = path,
         .target = settings.trashes() ? QString() : target,
         .word = result == FileResult::Ok ? imaging::ResultWord::Ok : imaging::ResultWord::Failed}
    );
}

void DVFileSorterRoutine::hFilePropEnabled()
{
    enable(
        {&m_panel.pubImageProp, &m_panel.pubImagePropSelector, &m_panel.tfImagePropVar},
        m_panel.cbImagePropChoice
    );
}

void DVFileSorterRoutine::hFileNameEnabled()
{
    enable(
        {&m_panel.pubFileName, &m_panel.pubFileNameSelector, &m_panel.tfFileNameVar},
        m_panel.cbFileNameChoice
    );
}

void DVFileSorterRoutine::hFileTagEnabled()
{
    enable({&m_panel.pubFileTag, &m_panel.pubFileTagIsNot}, m_panel.cbFileTagChoice);
}

void DVFileSorterRoutine::btnChooseDestFolder()
{
    const auto chosen = m_links.subsystems.toolBox.hChooseDirectory();
    if (!chosen || chosen->isEmpty())
        return;
    m_panel.tfBatchSortDestFolder.setStringValue(chosen->endsWith(u'/') ? *chosen : *chosen + u'/');
}

void DVFileSorterRoutine::hShowBatchDestinationFolder()
{
    if (const QString folder = settings().destination; !folder.isEmpty())
        cNSFileHandling::hShowInFinder(m_links.desktop, folder);
}

void DVFileSorterRoutine::closeCustomSheetAlertbSort()
{
    m_links.subsystems.panels.window.wwAlertWindow.close();
}

} // namespace brenvaldo::workspace
