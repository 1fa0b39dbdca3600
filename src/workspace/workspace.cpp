// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace.h"

#include "app_delegate.h"
#include "gui_controls.h"
#include "photo_preview.h"
#include "selected_function.h"
#include "subsystem_wiring.h"

#include <imaging/color_well_handling.h>
#include <presets/preset_manager.h>
#include <presets/sheet_control.h>
#include <watermark/panel_actions.h>

namespace brenvaldo::workspace {

struct Workspace::Parts
{
    Parts(const Surroundings& surroundings, platform::Signal<const QString&, const QString&>& alert)
        : collectionView(
            {.panels = panels,
             .photos = photos,
             .journal = journal,
             .chooser = surroundings.chooser,
             .previewPhotos = previewPhotos,
             .subsystems = subsystems,
             .hAlertWindow = [this](
                                 const QString& title, const QString& text
                             ) { guiControls.hAlertWindow(title, text); }}
        )
        , guiControls(
              {.panels = panels,
               .photos = photos,
               .journal = journal,
               .chooser = surroundings.chooser,
               .desktop = surroundings.desktop,
               .notifications = notifications,
               .subsystems = subsystems,
               .collectionView = collectionView,
               .alertShown = alert}
          )
        , delegate(
              {.panels = panels,
               .notifications = notifications,
               .exceptionRaised = actions.exceptionRaised,
               .guiControls = guiControls,
               .collectionView = collectionView}
          )
        , sheetControl(
              panels,
              surroundings.chooser,
              surroundings.defaults,
              [this](const QString& title, const QString& text) {
                  guiControls.hAlertWindow(title, text);
              }
          )
        , presetManager(
              panels, [] { return cSelectedFunction::sharedModel().myString.value_or(QString()); }
          )
        , colorWells(panels)
        , presetApplied(presetManager.presetApplied.connect([this] {
            collectionView.callForPreview();
        }))
        , presetNotSaved(presetManager.presetNotSaved.connect([this](const QString& name) {
            recordLostPreset(name);
        }))
    {
    }

    void registerActions();
    void recordLostPreset(const QString& name);

    panels::Panels panels;
    controls::ActionRegistry actions;
    PhotoList photos;
    RunJournal journal;
    platform::NotificationCenter notifications;
    PreviewPhotos previewPhotos;
    imaging::DVImageHandling imageHandling;
    metadata::mMeta meta{panels};
    watermark::DVWatermark watermark{
        {.panel = panels.vwWatermark,
         .bar = panels.window.myProgressBar,
         .outputName = [this](const QString& path) { return guiControls.outputName(path); },
         .previewPhoto = [this](const QString& path) { return previewPhotos.photo(path); }}};
    SubsystemLinks subsystems
        = subsystemLinks({.imageHandling = imageHandling, .watermark = watermark, .meta = meta});
    cCollectionViewController collectionView;
    cGUIcontrols guiControls;
    AppDelegate delegate;
    presets::cSheetControl sheetControl;
    presets::cPresetManager presetManager;
    imaging::cColorWellHandling colorWells;
    platform::Subscription presetApplied;
    platform::Subscription presetNotSaved;
    bool hasStarted = false;
    QStringList waitingFiles;
};

void Workspace::Parts::registerActions()
{
    collectionView.registerActions(actions);
    guiControls.registerActions(actions);
    sheetControl.registerActions(actions);
    presetManager.registerActions(actions);
    watermark::registerPanelActions(actions, panels.vwWatermark, notifications);
    colorWells.registerActions(actions);
}

void Workspace::Parts::recordLostPreset(const QString& name)
{
    journal.add(
        {.time = QDateTime::currentDateTime(),
         .function = cSelectedFunction::sharedModel().myString.value_or(QString()),
         .source = {},
         .target = name,
         .word = imaging::text(imaging::ResultWord::Failed)}
    );
}

Workspace::Workspace(const Surroundings& surroundings)
    : m_parts(std::make_unique<Parts>(surroundings, alertShown))
{
    m_parts->registerActions();
}

Workspace::~Workspace() = default;

panels::Panels& Workspace::panels() { return m_parts->panels; }
controls::ActionRegistry& Workspace::actions() { return m_parts->actions; }
PhotoList& Workspace::photos() { return m_parts->photos; }
RunJournal& Workspace::journal() { return m_parts->journal; }
platform::NotificationCenter& Workspace::notifications() { return m_parts->notifications; }
cCollectionViewController& Workspace::collectionView() { return m_parts->collectionView; }
AppDelegate& Workspace::delegate() { return m_parts->delegate; }

void Workspace::start()
{
    m_parts->delegate.applicationWillFinishLaunching();
    m_parts->hasStarted = true;
    const QStringList waiting = std::exchange(m_parts->waitingFiles, {});
    if (!waiting.isEmpty())
        openFiles(waiting);
}

void Workspace::openFiles(const QStringList& paths)
{
    if (m_parts->hasStarted)
        m_parts->delegate.applicationopenFiles(paths);
    else
        m_parts->waitingFiles.append(paths);
}

void Workspace::lastWindowClosed()
{
    m_parts->delegate.applicationShouldTerminateAfterLastWindowClosed();
}

std::optional<platform::Image> Workspace::composedPreview() const
{
    const panels::WindowControls& window = m_parts->panels.window;
    return composed(window.myTemplatePreview.image(), window.myTemplateOverlayPreview.image());
}

RunOffer Workspace::runOffer() const
{
    return workspace::runOffer(
        shownFunction(m_parts->panels), m_parts->subsystems.operations, m_parts->actions
    );
}

controls::ArrayController* Workspace::rowsOf(const QString& tableName)
{
    controls::Control* named = m_parts->panels.control(tableName);
    if (const auto* table = dynamic_cast<controls::TableView*>(named))
        named = m_parts->panels.control(table->content().name());
    return dynamic_cast<controls::ArrayController*>(named);
}

} // namespace brenvaldo::workspace
