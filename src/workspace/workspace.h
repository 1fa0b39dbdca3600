// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <workspace/list/photo_list.h>

#include <controls/action_registry.h>
#include <controls/file_chooser.h>
#include <panels/panels.h>
#include <platform/foundation/notification_center.h>
#include <platform/foundation/user_defaults.h>
#include <platform/services/picture_printer.h>
#include <platform/services/sharing_picker.h>
#include <platform/storage/desktop.h>
#include <workspace/run/run_journal.h>
#include <workspace/run/run_offer.h>

#include <memory>

namespace brenvaldo::workspace {

class AppDelegate;
class Functions;
class cCollectionViewController;

/// What a program gives to the workspace: a window asks and shows, a script answers and prints.
struct Surroundings
{
    controls::FileChooser& chooser;
    platform::storage::Desktop& desktop;
    platform::UserDefaults& defaults;
    platform::services::PicturePrinter* printer = nullptr; ///< null: nothing is printed
    platform::services::SharingPicker* sharing = nullptr; ///< null: nothing is shared
};

/// The whole program below its window: panels, actions, photo list, journal, and the controllers
/// that work on them, wired together.
class Workspace
{
public:
    explicit Workspace(const Surroundings& surroundings);
    /// With functions of its own.
    Workspace(const Surroundings& surroundings, const Functions& functions);
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;
    Workspace(Workspace&&) = delete;
    Workspace& operator=(Workspace&&) = delete;
    ~Workspace();

    [[nodiscard]] panels::Panels& panels();
    [[nodiscard]] controls::ActionRegistry& actions();
    [[nodiscard]] PhotoList& photos();
    [[nodiscard]] RunJournal& journal();
    [[nodiscard]] platform::NotificationCenter& notifications();

    [[nodiscard]] cCollectionViewController& collectionView();
    [[nodiscard]] AppDelegate& delegate();

    /// Brings the program to its first state; once, before the window shows.
    void start();

    /// Adds the files at `paths` to the photo list; those that come before `start` wait for its
    /// end.
    void openFiles(const QStringList& paths);

    /// Ends a run after the photo in hand and empties the folder of temporary files; the program
    /// ends after it.
    void lastWindowClosed();

    /// The preview area at full pixel size, the overlay drawn over the photo; nothing while both
    /// views are empty.
    [[nodiscard]] std::optional<platform::graphics::Image> composedPreview() const;

    /// What a press of the process button would do now.
    [[nodiscard]] RunOffer runOffer() const;

    /// Paths of the photos that a press would take.
    [[nodiscard]] QStringList photosOfRun() const;

    /// Another function may be selected.
    [[nodiscard]] platform::Signal<>& functionSelected();

    /// The rows behind a table of that name; null when there is no such table.
    [[nodiscard]] controls::ArrayController* rowsOf(const QString& tableName);

    /// A message to the user: title and text, sent after the sheet shows them.
    platform::Signal<const QString&, const QString&> alertShown;

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace brenvaldo::workspace
