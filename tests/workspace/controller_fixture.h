// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <workspace/gui_controls.h>
#include <workspace/selected_function.h>

#include <controls/user_input.h>

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
    std::optional<QString> save(const controls::SavePanel&) override { return std::nullopt; }

    QList<std::optional<QStringList>> answers;
    QList<controls::OpenPanel> panels;
};

class RecordingDesktop : public platform::Desktop
{
public:
    void openUrl(const QUrl& url) override { opened.append(url.toString()); }
    void reveal(const QString& path) override { revealed.append(path); }

    QStringList opened;
    QStringList revealed;
};

/// The controllers of the workspace on their own, with operations and twins that a test provides.
class ControllerTest : public testing::Test
{
protected:
    ControllerTest()
    {
        cSelectedFunction().myString = u"textWM"_qs;
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
    static QString function() { return cSelectedFunction().myString.value_or(u"none"_qs); }
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
        workspace::cCollectionViewItem item = entry(path, u"S"_qs);
        item.myRenameSelect = 1;
        return item;
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

    /// A twin that answers a picture and counts its calls.
    workspace::PreviewTwin countingTwin(int& calls)
    {
        return [&calls](const QString&) {
            ++calls;
            return platform::Image::fromQImage(QImage(2, 2, QImage::Format_ARGB32));
        };
    }

    TemporaryFolder folder;
    panels::Panels panels;
    controls::ActionRegistry actions;
    controls::UserInput user{actions};
    workspace::PhotoList photos;
    workspace::RunJournal journal;
    workspace::PreviewPhotos previewPhotos;
    workspace::SubsystemLinks subsystems;
    QueuedChooser chooser;
    RecordingDesktop desktop;
    platform::NotificationCenter notifications;
    platform::Signal<const QString&, const QString&> alertShown;
    QList<QStringList> alerts; ///< title and text of each

    workspace::cCollectionViewController collectionView{
        {.panels = panels,
         .photos = photos,
         .journal = journal,
         .chooser = chooser,
         .previewPhotos = previewPhotos,
         .subsystems = subsystems,
         .hAlertWindow = [this](const QString& title, const QString& text) {
             guiControls.hAlertWindow(title, text);
         }}};
    workspace::cGUIcontrols guiControls{
        {.panels = panels,
         .photos = photos,
         .journal = journal,
         .chooser = chooser,
         .desktop = desktop,
         .notifications = notifications,
         .subsystems = subsystems,
         .collectionView = collectionView,
         .alertShown = alertShown}};

private:
    platform::Subscription m_alerts;
};

} // namespace brenvaldo::test
