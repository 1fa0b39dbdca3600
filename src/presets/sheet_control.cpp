// SPDX-License-Identifier: GPL-3.0-or-later
#include "sheet_control.h"

#include "bookmarks.h"
#include "default_patterns.h"

#include <files/file_handling.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>

#include <algorithm>
#include <limits>

namespace brenvaldo::presets {

namespace {

QString supportFilesKey() { return u"SupportFilesDestination"_s; }

QString photosAtATimeKey() { return u"PhotosAtATime"_s; }

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
        actions.add(u"cSheetControl"_s, name, [this, action](const controls::Sender&) {
            (this->*action)();
        });
    };
    add(u"hCallPreferencesWw"_s, &cSheetControl::hCallPreferencesWw);
    add(u"closePreferencesSheetObjC"_s, &cSheetControl::closePreferencesSheetObjC);
    add(u"hCallAlertSheet"_s, &cSheetControl::hCallAlertSheet);
    add(u"closeAlertSheet"_s, &cSheetControl::closeAlertSheet);
    add(u"chooseLibraryDestination"_s, &cSheetControl::chooseLibraryDestination);
    add(u"hSetPhotosAtATime"_s, &cSheetControl::hSetPhotosAtATime);
}

void cSheetControl::hCallPreferencesWw()
{
    auto& preferences = m_panels.wwPreferencesWindow;
    if (const auto bookmark = m_defaults.value(supportFilesKey())) {
        const auto url = DVbookmarks().urlForBookmark(bookmark->toByteArray());
        preferences.tfLibraryFilePath.setStringValue(
            url ? url->toLocalFile()
                : u"Oh! Your previous defined folder has gone!?\rSelect a new location please."_s
        );
    }
    const int photos = m_defaults.text(photosAtATimeKey()).toInt();
    preferences.tfPhotosAtATime.setStringValue(QString::number(photos));
    preferences.sheet.open();
}

void cSheetControl::closePreferencesSheetObjC() { m_panels.wwPreferencesWindow.sheet.close(); }

void cSheetControl::hCallAlertSheet()
{
    m_hAlertWindow(u"Dju!"_s, u"'t is gelukt! Hoera!"_s);
    platform::log(u"hCallAlertSheet"_s);
}

void cSheetControl::closeAlertSheet() { m_panels.window.wwAlertWindow.close(); }

void cSheetControl::chooseLibraryDestination()
{
    const auto answer = m_chooser.open(folderPanel(QString()));
    if (answer && !answer->isEmpty())
        setUp(answer->last(), Patterns::Empty);
}

void cSheetControl::hSetPhotosAtATime()
{
    controls::TextField& field = m_panels.wwPreferencesWindow.tfPhotosAtATime;
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    const auto photos = static_cast<int>(std::clamp<std::int64_t>(field.integerValue(), 0, most));
    field.setStringValue(QString::number(photos));
    remember(photosAtATimeKey(), photos);
}

void cSheetControl::setLibraryDestination()
{
    const auto answer
        = m_chooser.open(folderPanel(u"*** FIRST: Choose a root support folder please: ***"_s));
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
        = platform::appendingPathComponent(url.toLocalFile(), u"Dravoth_SupportFiles"_s);
    files::cNSFileHandling::hCreateDirectory(root);

    const QString patternFolder = root + u"/Patterns"_s;
    remember(u"PatternsDestination"_s, patternFolder);
    if (patterns == Patterns::Default)
        makeDefaultPatterns(patternFolder);
    else
        files::cNSFileHandling::hCreateDirectory(patternFolder);

    const QString watermarks = root + u"/Watermarks"_s;
    files::cNSFileHandling::hCreateDirectory(watermarks);
    remember(u"WatermarksDestination"_s, watermarks);

    const QString actions = root + u"/C-Actions"_s;
    files::cNSFileHandling::hCreateDirectory(actions);
    remember(u"CActionsDestination"_s, actions);
}

void cSheetControl::remember(const QString& key, const QVariant& value)
{
    m_defaults.set(key, value);
    m_defaults.synchronize();
}

} // namespace brenvaldo::presets
