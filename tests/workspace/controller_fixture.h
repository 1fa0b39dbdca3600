// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/literals.h>
#include <workspace/functions/selected_function.h>
#include <workspace/gui_controls.h>

#include <controls/user_input.h>
#include <files/tool_box.h>
#include <gallery/responsive_design.h>
#include <imaging/dv_image_handling.h>
#include <metadata/mmeta.h>
#include <platform/foundation/paths.h>
#include <platform/services/folder_library.h>
#include <services/photos_link.h>
#include <watermark/dv_watermark.h>

#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gmock/gmock.h>

namespace brenvaldo::test {

/// Answers panels from a queue and remembers what they asked for.
class QueuedChooser : public controls::FileChooser
{
public:
    std::optional<QStringList> open(const controls::OpenPanel& panel) override
    {
        panels.append(panel);
        return answers.isEmpty() ? std::nullopt : answers.takeFirst();
    }
    std::optional<QString> save(const controls::SavePanel& panel) override
    {
        savePanels.append(panel);
        return savePaths.isEmpty() ? std::nullopt : std::optional(savePaths.takeFirst());
    }

    QList<std::optional<QStringList>> answers;
    QList<controls::OpenPanel> panels;
    QStringList savePaths;
    QList<controls::SavePanel> savePanels;
};

class RecordingDesktop : public platform::storage::Desktop
{
public:
    void openUrl(const QUrl& url) override { opened.append(url.toString()); }
    void reveal(const QString& path) override { revealed.append(path); }

    QStringList opened;
    QStringList revealed;
};

/// Takes the operation of a run away, as if it came with a later version.
struct OperationTaken
{
    void operator()(workspace::OwnButton&) const { }
    void operator()(workspace::PhotoRun& run) const { run.start = {}; }
    void operator()(workspace::InPlaceRun& run) const { run.read = {}; }
    void operator()(workspace::ListRun& run) const { run.work = {}; }
    void operator()(workspace::RenamingRun& run) const { run.rename = {}; }
};

/// The controllers of the workspace on their own, with operations and previews that a test
/// provides.
class ControllerTest : public testing::Test
{
protected:
    ControllerTest()
    {
        cSelectedFunction().myString = u"textWM"_s;
        for (workspace::Function& function : functions) {
            std::visit(OperationTaken{}, function.run);
            function.preview = {};
        }
        collectionView.registerActions(actions);
        guiControls.registerActions(actions);
        m_alerts = alertShown.connect([this](const QString& title, const QString& text) {
            alerts.append({title, text});
        });
    }

    static workspace::cSelectedFunction& cSelectedFunction()
    {
        return workspace::cSelectedFunction::sharedModel();
    }
    static QString function() { return cSelectedFunction().myString.value_or(u"none"_s); }
    static void select(const char* function)
    {
        cSelectedFunction().myString = QString::fromLatin1(function);
    }

    /// Writes a JPEG of that size and answers its path.
    [[nodiscard]] QString photo(const QString& name, int width = 47, int height = 33) const
    {
        return PhotoBuilder().size(width, height).write(folder.path(name));
    }

    /// An entry that no file stands behind.
    static workspace::cCollectionViewItem entry(const QString& path, const QString& orientation)
    {
        workspace::cCollectionViewItem item;
        item.myPhotoName = path.section(u'/', -1);
        item.myPhotoDescription = path;
        item.myPhotoOrientation = orientation;
        return item;
    }
    static workspace::cCollectionViewItem nonPhoto(const QString& path)
    {
        workspace::cCollectionViewItem item = entry(path, u"S"_s);
        item.myRenameSelect = 1;
        return item;
    }

    [[nodiscard]] QStringList tickedPhotos() const
    {
        QStringList paths;
        for (const auto& item : photos.entries()) {
            if (item.myPhotoSelect == 1)
                paths.append(item.myPhotoDescription);
        }
        return paths;
    }

    [[nodiscard]] QStringList listedNames() const
    {
        QStringList names;
        for (const auto& item : photos.entries())
            names.append(item.myPhotoName);
        return names;
    }

    [[nodiscard]] bool showsPhoto() const
    {
        return panels.window.myTemplatePreview.image().has_value();
    }
    [[nodiscard]] bool showsOverlay() const
    {
        return panels.window.myTemplateOverlayPreview.image().has_value();
    }

    /// The row of a function, for a test to change.
    [[nodiscard]] workspace::Function& row(const char* id)
    {
        return *std::find_if(functions.begin(), functions.end(), [id](const auto& function) {
            return function.id == QLatin1String(id);
        });
    }

    /// Gives a function its own run again.
    void restoreRun(const char* id)
    {
        row(id).run
            = workspace::Functions(workspace::functions()).withId(QString::fromLatin1(id))->run;
    }

    /// Gives a function its own preview again.
    void restorePreview(const char* id)
    {
        row(id).preview
            = workspace::Functions(workspace::functions()).withId(QString::fromLatin1(id))->preview;
    }

    /// Gives a function that runs photo by photo an operation.
    void runs(const char* id, const workspace::PhotoRun::Operation& operation)
    {
        std::get<workspace::PhotoRun>(row(id).run).start
            = [operation](const workspace::RunContext&) { return operation; };
    }

    /// Gives a function that changes photos where they lie an operation; it answers "OK".
    void
    reads(const char* id, const std::function<std::function<void()>(const QString& path)>& read)
    {
        std::get<workspace::InPlaceRun>(row(id).run).read
            = [read](const workspace::Subsystems&, const QString& path) {
                  return [operation = read(path)] {
                      operation();
                      return imaging::ResultWord::Ok;
                  };
              };
    }

    /// Gives the renaming an operation; it answers "OK" and the name "new.jpg".
    void renames(const std::function<void(const workspace::RenameRequest&)>& rename)
    {
        std::get<workspace::RenamingRun>(row("fileRenaming").run).rename
            = [rename](const workspace::Subsystems&, const workspace::RenameRequest& request) {
                  rename(request);
                  return workspace::RenameOutcome{
                      .word = imaging::ResultWord::Ok, .newName = u"new.jpg"_s};
              };
    }

    /// Gives a function that takes the whole list its work.
    void worksOn(const char* id, const std::function<void(const workspace::ListRun::Photos&)>& work)
    {
        std::get<workspace::ListRun>(row(id).run).work = work;
    }

    /// A preview that answers a picture and counts its calls.
    workspace::Function::Preview countingPreview(int& calls)
    {
        return [&calls](const workspace::Subsystems&, const QString&) {
            ++calls;
            return platform::graphics::Image::fromQImage(QImage(2, 2, QImage::Format_ARGB32));
        };
    }

    TemporaryFolder folder;
    panels::Panels panels;
    controls::ActionRegistry actions;
    controls::UserInput user{actions};
    workspace::PhotoList photos;
    workspace::RunJournal journal;
    workspace::PreviewPhotos previewPhotos;
    imaging::DVImageHandling imageHandling;
    watermark::DVWatermark mark{
        {.panel = panels.vwWatermark,
         .bar = panels.window.myProgressBar,
         .outputName = platform::lastPathComponent,
         .previewPhoto = [this](const QString& path) { return previewPhotos.photo(path); }}};
    workspace::Functions functions{workspace::functions()};
    QueuedChooser chooser;
    RecordingDesktop desktop;
    platform::UserDefaults defaults{folder.path(u"defaults"_s)};
    files::cToolBox toolBox{{.chooser = chooser, .desktop = desktop, .defaults = defaults}};
    metadata::mMeta meta{panels};
    gallery::cResponsiveDesign responsiveDesign{
        {.panel = panels.vwHtmlExport,
         .bar = panels.window.myProgressBar,
         .imageHandling = imageHandling,
         .meta = meta,
         .desktop = desktop,
         .tickedPhotos = [this] { return tickedPhotos(); },
         .hAlertWindow = [this](
                             const QString& title, const QString& text
                         ) { guiControls.hAlertWindow(title, text); },
         .closeAlert = [this] { guiControls.closeApplicationAlertSheetObjC(); },
         .showPicture
         = [this](const QString& name) { collectionView.callForHTMLTemplatePreview(name); }}};
    platform::services::FolderLibrary photoLibrary{folder.path(u"library"_s)};
    services::cPhotosLink photosLink{panels, photoLibrary};
    workspace::Subsystems subsystems{
        .panels = panels,
        .imageHandling = imageHandling,
        .watermark = mark,
        .gallery = responsiveDesign,
        .previewPhotos = previewPhotos,
        .toolBox = toolBox,
        .meta = meta,
        .photosLink = photosLink};
    workspace::Neighbours neighbours;
    platform::NotificationCenter notifications;
    platform::Signal<const QString&, const QString&> alertShown;
    QList<QStringList> alerts; ///< title and text of each

    workspace::cCollectionViewController collectionView{
        {.panels = panels,
         .photos = photos,
         .journal = journal,
         .chooser = chooser,
         .previewPhotos = previewPhotos,
         .functions = functions,
         .subsystems = subsystems,
         .neighbours = neighbours,
         .hAlertWindow = [this](const QString& title, const QString& text) {
             guiControls.hAlertWindow(title, text);
         }}};
    workspace::cGUIcontrols guiControls{
        {.panels = panels,
         .photos = photos,
         .journal = journal,
         .chooser = chooser,
         .desktop = desktop,
         .defaults = defaults,
         .notifications = notifications,
         .functions = functions,
         .subsystems = subsystems,
         .neighbours = neighbours,
         .collectionView = collectionView,
         .alertShown = alertShown}};

private:
    platform::Subscription m_alerts;
};

} // namespace brenvaldo::test
