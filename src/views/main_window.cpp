// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window.h"

#include "about_box.h"
#include "alert_sheet.h"
#include "hairline.h"
#include "info_pane.h"
#include "inspector.h"
#include "journal_window.h"
#include "panel_sheet.h"
#include "photo_grid.h"
#include "photo_tool_bar.h"
#include "theme.h"

#include <workspace/app_delegate.h>
#include <workspace/collection_view_controller.h>

#include <QDropEvent>
#include <QHBoxLayout>
#include <QMimeData>
#include <QSplitter>
#include <QTextStream>

#include <algorithm>

namespace brenvaldo::views {

namespace {

/// What the window tells of drags on standard output.
void tell(const QString& text)
{
    QTextStream out(stdout);
    out << text << Qt::endl;
}

} // namespace

mainAppWindow::mainAppWindow(workspace::Workspace& workspace, QtFileChooser& chooser)
    : m_workspace(workspace)
    , m_chooser(chooser)
    , m_input(workspace.actions())
    , m_binder(m_input)
    , m_builder(workspace.panels(), m_binder)
    , m_commands(workspace.actions(), workspace.photos())
    , m_orders(makeWindowOrders(*this))
{
    setObjectName(u"wwMainWindow"_qs);
    setWindowTitle(tr("Brenvaldo"));
    setAcceptDrops(true);
    tell(u"Awake"_qs);
    hideButtonsWithoutAction();
    fillMenuBar(*this, m_commands, m_orders);

    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(photoArea(), 1);
    row->addWidget(new Inspector(workspace.panels(), workspace.photos(), m_builder, m_binder, body)
    );
    setCentralWidget(body);
    connectGrid();
    connectOrders();
    makeSheets();
    followFocusWishes();
    m_chooser.attachTo(this, [this](controls::Control& control, QWidget* parent) {
        return m_builder.buildField({.control = &control}, parent);
    });
    setMinimumSize(1060, 620);
    resize(1440, 900);
}

mainAppWindow::~mainAppWindow()
{
    m_chooser.attachTo(nullptr, {});
    // The widgets hold on to the members of this object, which go first otherwise.
    for (QDialog* dialog : findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly))
        std::unique_ptr<QDialog> gone(dialog);
    std::unique_ptr<QWidget> body(takeCentralWidget());
}

QWidget* mainAppWindow::photoArea()
{
    auto& panels = m_workspace.panels();
    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(previewArea());

    auto* list = new QWidget(splitter);
    auto* column = new QVBoxLayout(list);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_grid = new PhotoGrid(m_workspace.photos(), list);
    column->addWidget(
        new PhotoToolBar(m_commands, *m_orders.photoInfo, panels.window, m_binder, list)
    );
    column->addWidget(new Hairline(Qt::Horizontal, list));
    column->addWidget(m_grid, 1);
    splitter->addWidget(list);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    splitter->setSizes({520, 358});
    return splitter;
}

QWidget* mainAppWindow::previewArea()
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
         .photos = m_workspace.photos()},
        area
    );
    row->addWidget(m_preview, 1);
    return area;
}

void mainAppWindow::connectGrid()
{
    connect(m_grid, &PhotoGrid::tickWanted, this, &mainAppWindow::tick);
    connect(m_grid, &PhotoGrid::filesDropped, this, &mainAppWindow::openFiles);
    connect(m_grid, &PhotoGrid::moveWanted, this, [this](const QList<int>& rows, int gap) {
        m_workspace.collectionView().acceptDrop(rows, gap);
    });
    connect(
        m_grid, &PhotoGrid::addWanted, m_commands.command(u"hChoosePhotos"_qs), &QAction::trigger
    );
}

void mainAppWindow::connectOrders()
{
    connect(m_orders.runJournal, &QAction::triggered, this, &mainAppWindow::showJournal);
    connect(m_orders.about, &QAction::triggered, this, &mainAppWindow::showAbout);
    connect(m_orders.quit, &QAction::triggered, this, &QWidget::close);
    connect(m_orders.fit, &QAction::triggered, this, [this] {
        m_preview->setZoom(PreviewView::Zoom::Fit);
        showZoom(PreviewView::Zoom::Fit);
    });
    connect(m_orders.pixels, &QAction::triggered, this, [this] {
        m_preview->setZoom(PreviewView::Zoom::Pixels);
        showZoom(PreviewView::Zoom::Pixels);
    });
    connect(m_preview, &PreviewView::zoomChanged, this, &mainAppWindow::showZoom);
    connect(m_orders.fullScreen, &QAction::triggered, this, [this](bool full) {
        setWindowState(windowState().setFlag(Qt::WindowFullScreen, full));
    });
}

void mainAppWindow::makeSheets()
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

void mainAppWindow::hideButtonsWithoutAction()
{
    const auto& actions = m_workspace.actions();
    for (controls::Control* control : m_workspace.panels().controls()) {
        if (!dynamic_cast<controls::Button*>(control))
            continue;
        const QStringList& names = control->actions();
        const auto isKnown = [&actions](const QString& name) { return actions.knows(name); };
        if (std::none_of(names.begin(), names.end(), isKnown))
            control->setHidden(true);
    }
}

void mainAppWindow::followFocusWishes()
{
    const auto focus = [this](const controls::Control& control) {
        if (auto* field = findChild<QWidget*>(control.name()))
            field->setFocus(Qt::TabFocusReason);
    };
    m_focusWishes = m_workspace.delegate().focusRequested.connect(focus);
}

void mainAppWindow::tick(int row)
{
    const bool isTicked = m_workspace.photos().entries().at(row).myPhotoSelect > 0;
    m_workspace.photos().setTick(row, isTicked ? 0 : 1);
    m_workspace.actions().send(u"cCollectionViewController.cbPhotoToProcessClicked"_qs);
}

void mainAppWindow::showJournal()
{
    if (!m_journal)
        m_journal = new JournalWindow(m_workspace.journal(), m_chooser, this);
    m_journal->show();
    m_journal->raise();
    m_journal->activateWindow();
}

void mainAppWindow::showAbout()
{
    auto* box = new AboutBox(this);
    box->open();
}

void mainAppWindow::showZoom(PreviewView::Zoom zoom)
{
    m_orders.fit->setChecked(zoom == PreviewView::Zoom::Fit);
    m_orders.pixels->setChecked(zoom == PreviewView::Zoom::Pixels);
}

void mainAppWindow::openFiles(const QStringList& paths)
{
    if (!paths.isEmpty())
        m_workspace.openFiles(paths);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void mainAppWindow::closeEvent(QCloseEvent* event)
{
    QMainWindow::closeEvent(event);
    m_workspace.lastWindowClosed();
}

void mainAppWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!event->mimeData()->hasUrls())
        return;
    tell(u"Enter"_qs);
    event->acceptProposedAction();
}

void mainAppWindow::dropEvent(QDropEvent* event)
{
    tell(u"Prepare"_qs);
    tell(u"Perform"_qs);
    tell(QString::number(event->mimeData()->urls().size()));
    event->acceptProposedAction();
}

bool mainAppWindow::focusNextPrevChild(bool next)
{
    const QWidget* before = focusWidget();
    const auto& text = m_workspace.panels().vwWatermark.tvWaterMarkText;
    if (!next || !before || before->objectName() != text.name())
        return QMainWindow::focusNextPrevChild(next);
    m_workspace.delegate().textViewdoCommandBySelector(u"insertTab:"_qs);
    return focusWidget() != before || QMainWindow::focusNextPrevChild(next);
}

void mainAppWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        m_orders.fullScreen->setChecked(isFullScreen());
}

} // namespace brenvaldo::views
