// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_sorter.h"

#include "sort_criteria.h"

#include <files/tool_box.h>
#include <panels/panels.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <workspace/functions/function_id.h>

#include <QScopeGuard>

namespace brenvaldo::workspace {

namespace {

using files::cNSFileHandling;
using files::FileResult;

void enable(std::initializer_list<controls::Control*> values, const controls::CheckBox& choice)
{
    for (controls::Control* value : values)
        value->setEnabled(choice.isOn());
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

void DVFileSorterRoutine::hSortFiles()
{
    if (const QString missing = missingValues(); !missing.isEmpty()) {
        m_links.alert(missingValuesMessage(missing));
        return;
    }
    const QStringList paths
        = m_links.subsystems.toolBox.hOpenDialogFilesOC(u"rename"_s).value_or(QStringList());
    if (paths.isEmpty())
        return;
    if (liesInDestination(paths)) {
        m_links.alert(sameFolderMessage());
        return;
    }
    sort(paths);
}

/// One line a value that lacks.
QString DVFileSorterRoutine::missingValues() const
{
    const SortCriteria criteria = readSettings(m_panel);
    QString text;
    if (handling() != Handling::Trash && destination().isEmpty())
        text = u"Folder path not defined or doesn't exist anymore."_s;
    if (criteria.picture.isChosen && criteria.picture.value.isEmpty())
        text += u"\rNo variable image parameter defined"_s;
    if (criteria.name.isChosen && criteria.name.value.isEmpty())
        text += u"\rNo variable filename or file extension parameter defined"_s;
    return text;
}

/// Looks at the first of several files only.
bool DVFileSorterRoutine::liesInDestination(const QStringList& paths) const
{
    const QString source
        = paths.size() > 1 ? platform::deletingLastPathComponent(paths.first()) : QString();
    return source + u'/' == destination();
}

void DVFileSorterRoutine::sort(const QStringList& paths)
{
    const SortCriteria criteria = readSettings(m_panel);
    controls::ProgressIndicator& bar = m_panel.showSortProgress;
    bar.setMaximum(static_cast<double>(paths.size()));
    bar.setDoubleValue(0);
    const auto end = qScopeGuard([&bar] { bar.setDoubleValue(0); });
    for (const QString& path : paths) {
        bar.incrementBy(1);
        if (meets(criteria, path))
            handle(path);
    }
}

void DVFileSorterRoutine::handle(const QString& path)
{
    const QString target = destination() + platform::lastPathComponent(path);
    const FileResult result = handled(path, target);
    m_links.journal.add(
        {.time = QDateTime::currentDateTime(),
         .function = functionId::batchSort,
         .source = path,
         .target = handling() == Handling::Trash ? QString() : target,
         .word = result == FileResult::Ok ? imaging::ResultWord::Ok : imaging::ResultWord::Failed}
    );
}

FileResult DVFileSorterRoutine::handled(const QString& path, const QString& target) const
{
    switch (handling()) {
    case Handling::Copy:
        return cNSFileHandling::hCopyFileTo({.source = path, .target = target});
    case Handling::Move:
        return cNSFileHandling::hMoveFileTo({.source = path, .target = target});
    case Handling::Alias:
        return cNSFileHandling::hAliasFileTo({.source = path, .target = target});
    case Handling::Trash:
        break;
    }
    return cNSFileHandling::hTrashFile(path);
}

DVFileSorterRoutine::Handling DVFileSorterRoutine::handling() const
{
    return static_cast<Handling>(m_panel.pubFileHandlingSelector.indexOfSelectedItem());
}

QString DVFileSorterRoutine::destination() const
{
    return m_panel.tfBatchSortDestFolder.stringValue();
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
    if (!destination().isEmpty())
        cNSFileHandling::hShowInFinder(m_links.desktop, destination());
}

void DVFileSorterRoutine::closeCustomSheetAlertbSort()
{
    m_links.subsystems.panels.window.wwAlertWindow.close();
}

} // namespace brenvaldo::workspace
