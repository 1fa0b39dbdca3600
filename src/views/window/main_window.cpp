// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window.h"

#include "about_box.h"
#include "alert_sheet.h"
#include "full_screen.h"
#include "info_pane.h"
#include "inspector.h"
#include "journal_window.h"
#include "panel_sheet.h"
#include "photo_tool_bar.h"
#include "sort_keys.h"

#include <imaging/filter_sample.h>
#include <platform/foundation/literals.h>
#include <views/form/subscriptions.h>
#include <views/look/hairline.h>
#include <views/look/theme.h>
#include <views/photos/photo_grid.h>
#include <views/preview/preview_hint.h>
#include <workspace/list/collection_view_controller.h>
#include <workspace/start/app_delegate.h>

#include <QDropEvent>
#include <QHBoxLayout>
#include <QMimeData>
#include <QScreen>
#include <QSplitter>
#include <QTextStream>
#include <QUrl>

#include <algorithm>

namespace brenvaldo::views {

namespace {

constexpr QSize smallestWindow(1024, 560);
constexpr QSize usualWindow(1440, 900);

/// Writes what the window tells of drags to standard output, each text on a line of its own.
void tell(const QString& text)
{
    QTextStream out(stdout);
    out << text;
    if (!text.endsWith(u'\n'))
        out << Qt::endl;
}

QStringList pathsOf(const QMimeData& files)
{
    QStringList paths;
    for (const QUrl& url : files.urls())
        paths.append(url.toLocalFile());
    return paths;
}

} // namespace

MainWindow::MainWindow(workspace::Workspace& workspace, QtFileChooser& chooser)
    : m_workspace(workspace)
    , m_drags(tell)
    , m_chooser(chooser)
    , m_input(workspace.actions())
    , m_binder(m_input)
    , m_filterSamples(workspace.photos(), imaging::filterSample)
    , m_builder(workspace.panels(), m_binder)
    , m_commands(workspace.actions(), workspace.photos())
    , m_orders(makeWindowOrders(*this))
{
    setObjectName(u"wwMainWindow"_s);
    setWindowTitle(tr("Brenvaldo"));
    setAcceptDrops(true);
    m_drags.awakeFromNib();
    m_builder.showSamples(workspace.panels().vwFilterPhotos.pubFilterSelection, m_filterSamples);
    hideButtonsWithoutAction();
    fillMenuBar(*this, m_commands, m_orders);
    // In the window itself the keys of the menus work without the menu bar too.
    addActions(m_commands.all());
    addActions(m_orders.all());

    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(photoArea(), 1);
    row->addWidget(inspector(body));
    setCentralWidget(body);
    connectGrid();
    connectOrders();
    makeSheets();
    followFocusWishes();
    m_chooser.attachTo(this, [this](controls::Control& control, QWidget* parent) {
        return m_builder.buildField({.control = &control}, parent);
    });
    setMinimumSize(smallestWindow);
    resize(usualWindow);
}

MainWindow::~MainWindow()
{
    m_chooser.attachTo(nullptr, {});
    // The widgets hold on to the members of this object, which go first otherwise.
    for (QDialog* dialog : findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly))
        std::unique_ptr<QDialog> gone(dialog);
    std::unique_ptr<QWidget> body(takeCentralWidget());
}

void MainWindow::openInto(const QSize& screenRoom)
{
    const QSize fitting = usualWindow.boundedTo(screenRoom);
    resize(fitting);
    setWindowState(fitting == usualWindow ? Qt::WindowNoState : Qt::WindowMaximized);
    show();
}

QWidget* MainWindow::inspector(QWidget* parent)
{
    auto* inspector = new Inspector(m_workspace, m_builder, m_binder, parent);
    QAction* process = m_commands.command(u"hLoadImages"_s);
    connect(inspector, &Inspector::runOffered, process, &QAction::setEnabled);
    return inspector;
}

QWidget* MainWindow::photoArea()
{
    auto& panels = m_workspace.panels();
    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(previewArea());

    auto* list = new QWidget(splitter);
    auto* column = new QVBoxLayout(list);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(
        new PhotoToolBar(m_commands, *m_orders.photoInfo, panels.window, m_binder, list)
    );
    column->addWidget(new Hairline(Qt::Horizontal, list));
    m_grid = new PhotoGrid(m_workspace.photos(), list);
    column->addWidget(m_grid, 1);
    splitter->addWidget(list);
    splitter->setStretchFactor(0, 16);
    splitter->setStretchFactor(1, 9);
    splitter->setSizes({640, 360});
    return splitter;
}

QWidget* MainWindow::previewArea()
{
    auto& panels = m_workspace.panels();
    auto* area = new QWidget(this);
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    auto* pane = new InfoPane(panels.vwPhotoInfo, m_builder, area);
    pane->hide();
    connect(m_orders.photoInfo, &QAction::toggled, pane, &QWidget::setVisible);
    row->addWidget(pane);
    m_preview = new PreviewView(
        {.photo = panels.window.myTemplatePreview,
         .overlay = panels.window.myTemplateOverlayPreview,
         .photos = m_workspace.photos(),
         .emptyText = [this] { return previewHint(m_workspace.panels(), m_workspace.photos()); }},
        area
    );
    const auto& function = panels.window.dvVCUiMainPropertyView;
    keepFor(*m_preview, function.changed.connect([this] { m_preview->update(); }));
    row->addWidget(m_preview, 1);
    return area;
}

void MainWindow::connectGrid()
{
    connect(m_grid, &PhotoGrid::tickWanted, this, &MainWindow::tick);
    connect(m_grid, &PhotoGrid::filesDropped, this, &MainWindow::openFiles);
    connect(m_grid, &PhotoGrid::moveWanted, this, [this](const QList<int>& rows, int gap) {
        m_workspace.collectionView().acceptDrop(rows, gap);
    });
    connect(
        m_grid, &PhotoGrid::addWanted, m_commands.command(u"hChoosePhotos"_s), &QAction::trigger
    );
}

void MainWindow::connectOrders()
{
    connect(m_orders.runJournal, &QAction::triggered, this, &MainWindow::showJournal);
    connect(m_orders.about, &QAction::triggered, this, &MainWindow::showAbout);
    connect(m_orders.quit, &QAction::triggered, this, &QWidget::close);
    connect(m_orders.fit, &QAction::triggered, this, [this] {
        m_preview->setZoom(PreviewView::Zoom::Fit);
        showZoom(PreviewView::Zoom::Fit);
    });
    connect(m_orders.pixels, &QAction::triggered, this, [this] {
        m_preview->setZoom(PreviewView::Zoom::Pixels);
        showZoom(PreviewView::Zoom::Pixels);
    });
    connect(m_preview, &PreviewView::zoomChanged, this, &MainWindow::showZoom);
    new FullScreen(*this, *m_orders.fullScreen);
    new SortKeys(m_workspace, *this);
}

void MainWindow::makeSheets()
{
    auto& panels = m_workspace.panels();
    new AlertSheet(panels.window, m_workspace.actions(), this);
    for (controls::Control* control : panels.controls()) {
        auto* sheet = dynamic_cast<controls::Sheet*>(control);
        const auto* view = sheet ? panels.view(sheet->name()) : nullptr;
        if (view)
            new PanelSheet(*sheet, *view, m_builder, m_workspace.actions(), this);
    }
}

void MainWindow::hideButtonsWithoutAction()
{
    const auto& actions = m_workspace.actions();
    for (controls::Control* control : m_workspace.panels().controls()) {
        if (!dynamic_cast<controls::Button*>(control))
            continue;
        const QStringList& names = control->actions();
        const auto isKnown = [&actions](const QString& name) { return actions.knows(name); };
        if (std::any_of(names.begin(), names.end(), isKnown))
            continue;
        // Selecting a function shows the buttons of its presets again.
        keepFor(*this, control->changed.connect([control] { control->setHidden(true); }));
        control->setHidden(true);
    }
}

void MainWindow::followFocusWishes()
{
    const auto focus = [this](const controls::Control& control) {
        if (auto* field = findChild<QWidget*>(control.name()))
            field->setFocus(Qt::TabFocusReason);
    };
    m_focusWishes = m_workspace.delegate().focusRequested.connect(focus);
}

void MainWindow::tick(int row)
{
    const bool isTicked = m_workspace.photos().entries().at(row).myPhotoSelect > 0;
    m_workspace.photos().setTick(row, isTicked ? 0 : 1);
    m_workspace.actions().send(u"cCollectionViewController.cbPhotoToProcessClicked"_s);
}

void MainWindow::showJournal()
{
    if (!m_journal)
        m_journal = new JournalWindow(m_workspace.journal(), m_chooser, this);
    m_journal->show();
    m_journal->raise();
    m_journal->activateWindow();
}

void MainWindow::showAbout()
{
    auto* box = new AboutBox(this);
    box->open();
}

void MainWindow::showZoom(PreviewView::Zoom zoom)
{
    m_orders.fit->setChecked(zoom == PreviewView::Zoom::Fit);
    m_orders.pixels->setChecked(zoom == PreviewView::Zoom::Pixels);
}

void MainWindow::openFiles(const QStringList& paths)
{
    if (!paths.isEmpty())
        m_workspace.openFiles(paths);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    QMainWindow::closeEvent(event);
    m_workspace.lastWindowClosed();
    Q_EMIT closed();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!event->mimeData()->hasUrls())
        return;
    if (m_drags.draggingEntered() == workspace::mainAppWindow::allOperations)
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    if (m_drags.prepareForDragOperation()
        && m_drags.performDragOperation(pathsOf(*event->mimeData())))
        event->acceptProposedAction();
}

bool MainWindow::focusNextPrevChild(bool next)
{
    const QWidget* before = focusWidget();
    const auto& text = m_workspace.panels().vwWatermark.tvWaterMarkText;
    if (!next || !before || before->objectName() != text.name())
        return QMainWindow::focusNextPrevChild(next);
    m_workspace.delegate().textViewdoCommandBySelector(u"insertTab:"_s);
    return focusWidget() != before || QMainWindow::focusNextPrevChild(next);
}

} // namespace brenvaldo::views
