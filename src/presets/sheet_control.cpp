// SPDX-License-Identifier: GPL-3.0-or-later
#include "sheet_control.h"

#include "bookmarks.h"
#include "default_patterns.h"

#include <files/file_handling.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>

namespace brenvaldo::presets {

namespace {

QString supportFilesKey() { return u"SupportFilesDestination"_qs; }

controls::OpenPanel folderPanel(const QString& message)
{
    return {
        .message = message,
        .choosesFiles = false,
        .choosesDirectories = true,
        .canCreateDirectories = true,
    };
}

} // namespace

cSheetControl::cSheetControl(
    panels::Panels& panels,
    controls::FileChooser& chooser,
    platform::UserDefaults& defaults,
    Alert hAlertWindow
)
    : m_panels(panels)
    , m_chooser(chooser)
    , m_defaults(defaults)
    , m_hAlertWindow(std::move(hAlertWindow))
{
}

void cSheetControl::registerActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (cSheetControl::*action)()) {
        actions.add(u"cSheetControl"_qs, name, [this, action](const controls::Sender&) {
            (this->*action)();
        });
    };
    add(u"hCallPreferencesWw"_qs, &cSheetControl::hCallPreferencesWw);
    add(u"closePreferencesSheetObjC"_qs, &cSheetControl::closePreferencesSheetObjC);
    add(u"hCallAlertSheet"_qs, &cSheetControl::hCallAlertSheet);
    add(u"closeAlertSheet"_qs, &cSheetControl::closeAlertSheet);
    add(u"chooseLibraryDestination"_qs, &cSheetControl::chooseLibraryDestination);
}

void cSheetControl::hCallPreferencesWw()
{
    auto& preferences = m_panels.wwPreferencesWindow;
    if (const auto bookmark = m_defaults.value(supportFilesKey())) {
        const auto url = DVbookmarks().urlForBookmark(bookmark->toByteArray());
        preferences.tfLibraryFilePath.setStringValue(
            url ? url->toLocalFile()
                : u"Oh! Your previous defined folder has gone!?\rSelect a new location please."_qs
        );
    }
    preferences.sheet.open();
}

void cSheetControl::closePreferencesSheetObjC() { m_panels.wwPreferencesWindow.sheet.close(); }

void cSheetControl::hCallAlertSheet()
{
    m_hAlertWindow(u"Dju!"_qs, u"'t is gelukt! Hoera!"_qs);
    platform::log(u"hCallAlertSheet"_qs);
}

void cSheetControl::closeAlertSheet() { m_panels.window.wwAlertWindow.close(); }

void cSheetControl::chooseLibraryDestination()
{
    const auto answer = m_chooser.open(folderPanel(QString()));
    if (answer && !answer->isEmpty())
        setUp(answer->last(), Patterns::Empty);
}

void cSheetControl::setLibraryDestination()
{
    const auto answer
        = m_chooser.open(folderPanel(u"*** FIRST: Choose a root support folder please: ***"_qs));
    if (answer && !answer->isEmpty())
        setUp(answer->last(), Patterns::Default);
}

void cSheetControl::setUp(const QString& folder, Patterns patterns)
{
    const QUrl url = QUrl::fromLocalFile(folder).adjusted(QUrl::StripTrailingSlash);
    m_panels.wwPreferencesWindow.tfLibraryFilePath.setStringValue(url.toLocalFile());
    if (const auto bookmark = DVbookmarks().bookmarkForURL(url))
        remember(supportFilesKey(), *bookmark);

    const QString root
        = platform::appendingPathComponent(url.toLocalFile(), u"Dravoth_SupportFiles"_qs);
    files::cNSFileHandling::hCreateDirectory(root);

    const QString patternFolder = root + u"/Patterns"_qs;
    remember(u"PatternsDestination"_qs, patternFolder);
    if (patterns == Patterns::Default)
        makeDefaultPatterns(patternFolder);
    else
        files::cNSFileHandling::hCreateDirectory(patternFolder);

    const QString watermarks = root + u"/Watermarks"_qs;
    files::cNSFileHandling::hCreateDirectory(watermarks);
    remember(u"WatermarksDestination"_qs, watermarks);

    const QString actions = root + u"/C-Actions"_qs;
    files::cNSFileHandling::hCreateDirectory(actions);
    remember(u"CActionsDestination"_qs, actions);
}

void cSheetControl::remember(const QString& key, const QVariant& value)
{
    m_defaults.set(key, value);
    m_defaults.synchronize();
}

} // namespace brenvaldo::presets
