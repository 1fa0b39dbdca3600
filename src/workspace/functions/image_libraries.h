// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <controls/choice_controls.h>
#include <controls/file_chooser.h>
#include <controls/image_view.h>
#include <controls/text_controls.h>
#include <panels/panels.h>
#include <platform/foundation/notification_center.h>
#include <platform/foundation/user_defaults.h>

#include <functional>

namespace brenvaldo::workspace {

/// The libraries of images that the user keeps for repeated use: choosing an image from them, and
/// importing into them. Nothing here shows a message.
class ImageLibraries
{
public:
    struct Links
    {
        panels::Panels& panels;
        controls::FileChooser& chooser;
        const platform::UserDefaults& defaults;
        const platform::NotificationCenter& notifications;
        /// Asks for the folder of the libraries and sets it up.
        std::function<void()> setLibraryDestination;
    };

    explicit ImageLibraries(Links links);

    void registerActions(controls::ActionRegistry& actions);

private:
    /// The controls that show which image was chosen.
    struct ChosenImage
    {
        controls::TextField& path;
        controls::ImageView& well;
        const controls::PopUpButton& lookUp;
    };

    struct Library
    {
        QString key; ///< of the default that holds its folder
        QString message;
    };

    struct WellActions
    {
        QString className;
        QString choose;
        QString drop;
    };

    void
    addWell(controls::ActionRegistry& actions, const WellActions& names, const ChosenImage& image);
    void choose(const ChosenImage& image) const;
    void show(const ChosenImage& image, const QString& path) const;
    void import(const Library& library) const;
    [[nodiscard]] bool isReady(const Library& library) const;

    Links m_links;
};

} // namespace brenvaldo::workspace
