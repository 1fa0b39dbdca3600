// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace.h"

#include "gui_controls.h"
#include <workspace/functions/selected_function.h>
#include <workspace/preview/photo_preview.h>
#include <workspace/start/app_delegate.h>

#include <files/tool_box.h>
#include <files/web_addresses.h>
#include <gallery/gallery_icons.h>
#include <gallery/responsive_design.h>
#include <imaging/color_well_handling.h>
#include <imaging/dv_image_handling.h>
#include <metadata/mmeta.h>
#include <platform/services/folder_library.h>
#include <presets/gallery_templates.h>
#include <presets/preset_manager.h>
#include <presets/sheet_control.h>
#include <services/app_updater.h>
#include <services/code_actions.h>
#include <services/help_sheets.h>
#include <services/photo_services.h>
#include <services/photos_link.h>
#include <services/web_links.h>
#include <watermark/dv_watermark.h>
#include <watermark/panel_actions.h>
#include <workspace/functions/image_libraries.h>
#include <workspace/functions/preset_records.h>
#include <workspace/run/photos_of_run.h>
#include <workspace/sorting/file_sorter.h>
#include <workspace/sorting/manual_sort.h>

namespace brenvaldo::workspace {

namespace {

/// A photo that can't be opened is not written.
imaging::ResultWord wordOf(const std::optional<imaging::ResultWord>& result)
{
    return result.value_or(imaging::ResultWord::Failed);
}

QuickEdits quickEditsOf(imaging::DVImageHandling& imageHandling)
{
    return {
        .hRotatePicture = [&](const QString& path, const QString& folder, float angle
                          ) { return wordOf(imageHandling.hRotatePicture(path, folder, angle)); },
        .hFlipHorizontalPicture
        = [&](const QString& path, const QString& folder
          ) { return wordOf(imageHandling.hFlipHorizontalPicture(path, folder)); },
        .hFlipVerticalPicture
        = [&](const QString& path, const QString& folder
          ) { return wordOf(imageHandling.hFlipVerticalPicture(path, folder)); }};
}

/// Empty without a printer.
std::function<void(const QString&)> printServiceOf(platform::services::PicturePrinter* printer)
{
    if (!printer)
        return {};
    return [printer](const QString& path) { services::cPrint(*printer).printService(path); };
}

/// The user's own address where one is set.
QUrl versionFileAddress(const platform::UserDefaults& defaults)
{
    const QString own = defaults.text(u"VersionFile"_s);
    return QUrl(own.isEmpty() ? u"https://"_s + files::webAddress(u"versionFile"_s) : own);
}

Neighbours neighboursOf(
    imaging::DVImageHandling& imageHandling,
    metadata::mMeta& meta,
    panels::Panels& panels,
    const Surroundings& surroundings
)
{
    Neighbours neighbours;
    neighbours.quickEdits = quickEditsOf(imageHandling);
    neighbours.hiDoNothing = [&](const QString& path) { meta.hiDoNothing(path); };
    neighbours.forgetPhoto = [&meta] { meta.forgetPhoto(); };
    neighbours.hRenameTWMFile = cGUIcontrols::hRenameTWMFile;
    neighbours.hLoadTemplatePreset
        = [&panels](int index) { presets::applyGalleryTemplate(index, panels.vwHtmlExport); };
    neighbours.imageNamed = gallery::templatePicture;
    neighbours.printService = printServiceOf(surroundings.printer);
    const platform::UserDefaults& defaults = surroundings.defaults;
    neighbours.photosAtATime = [&defaults] { return defaults.text(u"PhotosAtATime"_s).toInt(); };
    return neighbours;
}

} // namespace

struct Workspace::Parts
{
    Parts(
        const Surroundings& surroundings,
        const Functions& rows,
        platform::Signal<const QString&, const QString&>& alert
    )
        : functions(rows)
        , toolBox(
              {.chooser = surroundings.chooser,
               .desktop = surroundings.desktop,
               .defaults = surroundings.defaults}
          )
        , updater(
              {.panels = panels,
               .web = web,
               .versionFile
               = [&defaults = surroundings.defaults] { return versionFileAddress(defaults); }}
          )
        , desktop(surroundings.desktop)
        , sharing(surroundings.sharing)
        , neighbours(neighboursOf(imageHandling, meta, panels, surroundings))
        , collectionView(
              {.panels = panels,
               .photos = photos,
               .journal = journal,
               .chooser = surroundings.chooser,
               .previewPhotos = previewPhotos,
               .functions = functions,
               .subsystems = subsystems,
               .neighbours = neighbours,
               .hAlertWindow = alertWindow()}
          )
        , guiControls(
              {.panels = panels,
               .photos = photos,
               .journal = journal,
               .chooser = surroundings.chooser,
               .desktop = surroundings.desktop,
               .defaults = surroundings.defaults,
               .notifications = notifications,
               .functions = functions,
               .subsystems = subsystems,
               .neighbours = neighbours,
               .collectionView = collectionView,
               .alertShown = alert}
          )
        , delegate(
              {.panels = panels,
               .notifications = notifications,
               .exceptionRaised = actions.exceptionRaised,
               .guiControls = guiControls,
               .collectionView = collectionView,
               .waitForUploads = [this] { photosLink.waitForAll(); }}
          )
        , sheetControl(panels, surroundings.chooser, surroundings.defaults, alertWindow())
        , responsiveDesign(
              {.panel = panels.vwHtmlExport,
               .bar = panels.window.myProgressBar,
               .imageHandling = imageHandling,
               .meta = meta,
               .desktop = surroundings.desktop,
               .tickedPhotos = [this] { return tickedPhotos(); },
               .hAlertWindow = alertWindow(),
               .closeAlert = [this] { guiControls.closeApplicationAlertSheetObjC(); },
               .showPicture
               = [this](const QString& name) { collectionView.callForHTMLTemplatePreview(name); }}
          )
        , presetManager(
              panels,
              selectedFunction,
              [this] { return presetRecords.recordOf(selectedFunction()); }
          )
        , colorWells(panels)
        , imageLibraries(
              {.panels = panels,
               .chooser = surroundings.chooser,
               .defaults = surroundings.defaults,
               .notifications = notifications,
               .setLibraryDestination = [this] { sheetControl.setLibraryDestination(); }}
          )
        , manualSort(
              {.subsystems = subsystems,
               .desktop = surroundings.desktop,
               .collectionView = collectionView,
               .journal = journal,
               .outputName
               = [this](const QString& path) { return guiControls.driver().outputName(path); }}
          )
        , fileSorter(
              {.subsystems = subsystems,
               .desktop = surroundings.desktop,
               .journal = journal,
               .alert = [this](const Message& message
                        ) { guiControls.hAlertWindow(message.title, message.text); }}
          )
        , presetApplied(presetManager.presetApplied.connect([this] { showLoadedPreset(); }))
        , presetNotSaved(presetManager.presetNotSaved.connect([this](const QString& name) {
            recordLostPreset(name);
        }))
        , commentApplied(meta.commentApplied.connect(
              [this](const QString& path, metadata::mMeta::Written written) {
                  recordComment(path, written);
              }
          ))
    {
    }

    void registerActions();
    void showLoadedPreset();
    /// Shows a message in the alert window.
    [[nodiscard]] std::function<void(const QString& title, const QString& text)> alertWindow()
    {
        return [this](const QString& title, const QString& text) {
            guiControls.hAlertWindow(title, text);
        };
    }
    void recordLostPreset(const QString& name);
    void shareMyPhoto();
    [[nodiscard]] QStringList tickedPhotos() const;
    void recordComment(const QString& path, metadata::mMeta::Written written);
    [[nodiscard]] static QString selectedFunction();
    [[nodiscard]] const Function* functionOfRun() const;

    Functions functions;
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
         .outputName
         = [this](const QString& path) { return guiControls.driver().outputName(path); },
         .previewPhoto = [this](const QString& path) { return previewPhotos.photo(path); }}};
    files::cToolBox toolBox;
    platform::services::FolderLibrary photoLibrary{platform::services::folderOfLibrary()};
    services::cPhotosLink photosLink{panels, photoLibrary};
    services::HelpSheets helpSheets{panels};
    platform::services::NetworkFetcher web;
    services::cAppUpdater updater;
    platform::storage::Desktop& desktop;
    platform::services::SharingPicker* sharing;
    Subsystems subsystems{
        .panels = panels,
        .imageHandling = imageHandling,
        .watermark = watermark,
        .gallery = responsiveDesign,
        .previewPhotos = previewPhotos,
        .toolBox = toolBox,
        .meta = meta,
        .photosLink = photosLink};
    Neighbours neighbours;
    PresetRecords presetRecords{functions, subsystems};
    cCollectionViewController collectionView;
    cGUIcontrols guiControls;
    AppDelegate delegate;
    presets::cSheetControl sheetControl;
    gallery::cResponsiveDesign responsiveDesign;
    presets::cPresetManager presetManager;
    imaging::cColorWellHandling colorWells;
    services::CodeActions codeActions{panels.vwQRBarCode, alertWindow()};
    ImageLibraries imageLibraries;
    ManualSort manualSort;
    DVFileSorterRoutine fileSorter;
    platform::Subscription presetApplied;
    platform::Subscription presetNotSaved;
    platform::Subscription commentApplied;
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
    codeActions.registerActions(actions);
    photosLink.registerActions(actions);
    helpSheets.registerActions(actions);
    updater.registerActions(actions);
    services::registerWebLinks(actions, desktop);
    actions.add(u"cGUIcontrols"_s, u"hShareMyPhoto"_s, [this](const auto&) { shareMyPhoto(); });
    responsiveDesign.registerActions(actions);
    imageLibraries.registerActions(actions);
    manualSort.registerActions(actions);
    fileSorter.registerActions(actions);
    actions.add(u"mMeta"_s, u"btApplyExifUserComment"_s, [this](const controls::Sender&) {
        meta.btApplyExifUserComment(collectionView.hGetActiveFileFilePath().value_or(QString()));
    });
}

void Workspace::Parts::showLoadedPreset()
{
    collectionView.callForPreview();
    const Function* function = functions.withId(selectedFunction());
    if (function && function->whenPresetLoaded)
        function->whenPresetLoaded(subsystems);
}

QStringList Workspace::Parts::tickedPhotos() const
{
    QStringList paths;
    for (const cCollectionViewItem& entry : photos.entries()) {
        if (entry.myPhotoSelect == 1)
            paths.append(entry.myPhotoDescription);
    }
    return paths;
}

void Workspace::Parts::shareMyPhoto()
{
    const auto path = collectionView.hGetActiveFileFilePath();
    if (path && sharing)
        services::cSharing(*sharing).chooseFromSharingServicePicker(*path);
}

void Workspace::Parts::recordLostPreset(const QString& name)
{
    journal.add(
        {.function = selectedFunction(),
         .source = {},
         .target = name,
         .word = imaging::ResultWord::Failed}
    );
}

void Workspace::Parts::recordComment(const QString& path, metadata::mMeta::Written written)
{
    const bool isDone = written == metadata::mMeta::Written::Done;
    journal.add(
        {.function = u"btApplyExifUserComment"_s,
         .source = path,
         .target = path,
         .word = isDone ? imaging::ResultWord::Ok : imaging::ResultWord::Failed}
    );
}

QString Workspace::Parts::selectedFunction()
{
    return cSelectedFunction::sharedModel().myString.value_or(QString());
}

const Function* Workspace::Parts::functionOfRun() const
{
    return workspace::functionOfRun(functions, selectedFunction(), panels);
}

Workspace::Workspace(const Surroundings& surroundings)
    : Workspace(surroundings, Functions(functions()))
{
}

Workspace::Workspace(const Surroundings& surroundings, const Functions& functions)
    : m_parts(std::make_unique<Parts>(surroundings, functions, alertShown))
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

std::optional<platform::graphics::Image> Workspace::composedPreview() const
{
    const panels::WindowControls& window = m_parts->panels.window;
    return composed(window.myTemplatePreview.image(), window.myTemplateOverlayPreview.image());
}

RunOffer Workspace::runOffer() const
{
    return workspace::runOffer(m_parts->functionOfRun(), m_parts->actions);
}

QStringList Workspace::photosOfRun() const
{
    const Function* function = m_parts->functionOfRun();
    if (!function)
        return {};
    return workspace::photosOfRun(function->run, m_parts->photos, m_parts->panels);
}

platform::Signal<>& Workspace::functionSelected()
{
    return cSelectedFunction::sharedModel().changed;
}

controls::ArrayController* Workspace::rowsOf(const QString& tableName)
{
    controls::Control* named = m_parts->panels.control(tableName);
    if (const auto* table = dynamic_cast<controls::TableView*>(named))
        named = m_parts->panels.control(table->content().name());
    return dynamic_cast<controls::ArrayController*>(named);
}

} // namespace brenvaldo::workspace
