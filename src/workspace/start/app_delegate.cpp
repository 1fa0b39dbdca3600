// SPDX-License-Identifier: GPL-3.0-or-later
#include "app_delegate.h"

#include "metadata_keys.h"
#include <platform/foundation/literals.h>
#include <workspace/preview/preview_notifications.h>

#include <files/tool_box.h>
#include <platform/foundation/folders.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>
#include <presets/db_view_controller.h>

namespace brenvaldo::workspace {

namespace {

/// Makes the folder of temporary files; one that stood there already is emptied.
void prepareTemp()
{
    const QString temp = platform::appendingPathComponent(platform::homeFolder(), u"Temp"_s);
    if (files::cNSFileHandling::hCreateDirectory(temp) != files::FileResult::Exists)
        return;
    files::cNSFileHandling::hDeleteFiles(files::cToolBox::hGetFilesInDir(temp));
}

} // namespace

AppDelegate::AppDelegate(const Links& links)
    : m_panels(links.panels)
    , m_notifications(links.notifications)
    , m_exceptionRaised(links.exceptionRaised)
    , m_guiControls(links.guiControls)
    , m_collectionView(links.collectionView)
    , m_waitForUploads(links.waitForUploads)
{
}

void AppDelegate::applicationWillFinishLaunching()
{
    m_guiControls.hSetInitialView();
    fillMetadataKeys();
    linkToPresets();
    makeFolders();
    fillFonts();
    m_panels.window.myTemplatePreview.clear();
    m_panels.vwResizePhotos.pubResizeType.selectItemAtIndex(0);
    m_panels.vwResizePhotos.pubScaleType.setHidden(false);
    m_panels.vwResizePhotos.pubScaleType.selectItemAtIndex(0);
    observePreviewNotifications();
}

void AppDelegate::fillMetadataKeys()
{
    panels::RenamePanel& panel = m_panels.vwFileManagementRename;
    for (controls::ComboBox* box : {&panel.cbxPrefixMetaData, &panel.cbxPostfixMetaData}) {
        box->setTitles(metadataKeys());
        box->selectItemAtIndex(0);
    }
}

/// Presets that can't be reached leave the rest of the program usable.
void AppDelegate::linkToPresets()
{
    try {
        presets::dbViewController().linkToPresetsDB();
    } catch (const platform::Exception& exception) {
        platform::log(u"linkToPresetsDB: "_s + exception.reason());
        m_exceptionRaised(exception);
    }
}

void AppDelegate::makeFolders()
{
    files::cNSFileHandling::hCreateDirectory(
        platform::appendingPathComponent(platform::applicationSupportFolder(), u"DravothCom"_s)
    );
    prepareTemp();
}

void AppDelegate::fillFonts()
{
    controls::ComboBox& fonts = m_panels.vwWatermark.cbFontList;
    fonts.setTitles(files::cToolBox::hGetAllInstalledFonts());
    fonts.selectItemAtIndex(1);
}

void AppDelegate::observePreviewNotifications()
{
    for (const QString& name : previewNotifications()) {
        m_previewNotifications.push_back(m_notifications.addObserver(name, [this](const QString&) {
            callForWMPreview();
        }));
    }
}

void AppDelegate::applicationopenFiles(const QStringList& paths)
{
    m_collectionView.hDroppedPhotos(paths);
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed()
{
    controls::ProgressIndicator& bar = m_panels.window.myProgressBar;
    bar.askToEnd();
    if (!bar.isAnimating())
        emptyTempAtTheEnd();
    else
        m_endOfRun = bar.changed.connect([this, &bar] {
            if (bar.isAnimating())
                return;
            emptyTempAtTheEnd();
            m_endOfRun = {};
        });
    return true;
}

void AppDelegate::emptyTempAtTheEnd() const
{
    m_waitForUploads();
    prepareTemp();
}

void AppDelegate::callForWMPreview() { m_collectionView.callForPreview(); }

bool AppDelegate::textViewdoCommandBySelector(const QString& selector)
{
    if (selector != u"insertTab:")
        return false;
    focusRequested(m_panels.vwWatermark.tfFontSize);
    if (!m_panels.vwShowPreview.cbShowPreview.isOn())
        return false;
    if (m_panels.vwWatermark.tbvWatermarkType.selectedLabel() == u"Text")
        m_collectionView.callForPreview();
    return true;
}

} // namespace brenvaldo::workspace
