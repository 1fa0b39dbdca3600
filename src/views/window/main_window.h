// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands.h"
#include "main_menu.h"
#include "qt_file_chooser.h"

#include <views/form/binder.h>
#include <views/form/form_builder.h>
#include <views/photos/photo_samples.h>
#include <views/preview/preview_view.h>
#include <workspace/start/main_app_window.h>
#include <workspace/workspace.h>

#include <QMainWindow>

class QSplitter;

namespace brenvaldo::views {

class JournalWindow;
class PhotoGrid;

/// The main window: preview, photo list and inspector over one workspace.
///
/// A drop on its body is accepted but adds nothing; files get into the list through the grid.
/// Closing it ends the program's work.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow(workspace::Workspace& workspace, QtFileChooser& chooser);
    ~MainWindow() override;
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    MainWindow(MainWindow&&) = delete;
    MainWindow& operator=(MainWindow&&) = delete;

    /// Shows itself in its usual size, or on all of a screen with less room.
    void openInto(const QSize& screenRoom);

    /// Comes to the front and adds files that another start of the program was given.
    void openFiles(const QStringList& paths);

Q_SIGNALS:
    /// The program ends, after the photo in hand when a run is on.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    [[nodiscard]] QWidget* inspector(QWidget* parent);
    [[nodiscard]] QWidget* photoArea();
    [[nodiscard]] QWidget* previewArea();
    void connectGrid();
    void connectOrders();
    void makeSheets();
    void hideButtonsWithoutAction();
    void followFocusWishes();
    void tick(int row);
    void showJournal();
    void showAbout();
    void showZoom(PreviewView::Zoom zoom);

    workspace::Workspace& m_workspace;
    workspace::mainAppWindow m_drags; ///< what the body answers to drags
    QtFileChooser& m_chooser;
    controls::UserInput m_input;
    Binder m_binder;
    PhotoSamples m_filterSamples;
    FormBuilder m_builder;
    Commands m_commands;
    WindowOrders m_orders;
    PreviewView* m_preview = nullptr;
    PhotoGrid* m_grid = nullptr;
    JournalWindow* m_journal = nullptr;
    platform::Subscription m_focusWishes;
};

} // namespace brenvaldo::views
