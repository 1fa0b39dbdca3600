// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_menu.h"

#include "icons.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>

namespace brenvaldo::views {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("MainMenu", text); }

QAction* order(QObject& owner, const char* name, const QString& text, const char* keys)
{
    auto* action = new QAction(text, &owner);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(QKeySequence(QString::fromLatin1(keys)));
    return action;
}

/// Adds an entry that edits the text field which has the focus.
template <class EditLine, class EditText>
void addTextEdit(
    QMenu& menu,
    const QString& text,
    QKeySequence::StandardKey keys,
    EditLine editLine,
    EditText editText
)
{
    QAction* action = menu.addAction(text);
    // The fields know these keys themselves; here they only stand beside the text.
    action->setText(
        text + QLatin1Char('\t') + QKeySequence(keys).toString(QKeySequence::NativeText)
    );
    QObject::connect(action, &QAction::triggered, action, [editLine, editText] {
        QWidget* focused = QApplication::focusWidget();
        if (auto* line = qobject_cast<QLineEdit*>(focused))
            (line->*editLine)();
        else if (auto* plain = qobject_cast<QPlainTextEdit*>(focused))
            (plain->*editText)();
    });
}

void fillEditMenu(QMenu& menu, const Commands& commands)
{
    addTextEdit(menu, tr("&Undo"), QKeySequence::Undo, &QLineEdit::undo, &QPlainTextEdit::undo);
    addTextEdit(menu, tr("&Redo"), QKeySequence::Redo, &QLineEdit::redo, &QPlainTextEdit::redo);
    menu.addSeparator();
    addTextEdit(menu, tr("Cu&t"), QKeySequence::Cut, &QLineEdit::cut, &QPlainTextEdit::cut);
    addTextEdit(menu, tr("&Copy"), QKeySequence::Copy, &QLineEdit::copy, &QPlainTextEdit::copy);
    addTextEdit(menu, tr("&Paste"), QKeySequence::Paste, &QLineEdit::paste, &QPlainTextEdit::paste);
    addTextEdit(
        menu,
        tr("Select &all"),
        QKeySequence::SelectAll,
        &QLineEdit::selectAll,
        &QPlainTextEdit::selectAll
    );
    menu.addSeparator();
    menu.addAction(commands.command(u"hCallPreferencesWw"_qs));
}

void addCommands(QMenu& menu, const Commands& commands, const QStringList& names)
{
    for (const QString& name : names) {
        if (name.isEmpty())
            menu.addSeparator();
        else
            menu.addAction(commands.command(name));
    }
}

} // namespace

WindowOrders makeWindowOrders(QObject& owner)
{
    WindowOrders orders{
        .photoInfo = order(owner, "photoInfo", tr("Photo &info"), "Ctrl+I"),
        .runJournal = order(owner, "runJournalOrder", tr("Run &Journal"), "Ctrl+J"),
        .fit = order(owner, "zoomFit", tr("&Fit"), "Ctrl+0"),
        .pixels = order(owner, "zoomPixels", tr("1:&1"), "Ctrl+Shift+0"),
        .fullScreen = order(owner, "fullScreen", tr("Full &screen"), "F11"),
        .about = order(owner, "about", tr("&About Brenvaldo"), ""),
        .quit = order(owner, "quit", tr("&Quit"), "Ctrl+Q")};
    orders.photoInfo->setIcon(icon(u"info"_qs));
    orders.photoInfo->setToolTip(tr("Photo info (Ctrl+I)"));
    for (QAction* toggle : {orders.photoInfo, orders.fit, orders.pixels, orders.fullScreen})
        toggle->setCheckable(true);
    orders.fit->setChecked(true);
    return orders;
}

void fillMenuBar(QMainWindow& window, const Commands& commands, const WindowOrders& orders)
{
    QMenuBar& bar = *window.menuBar();
    QMenu& file = *bar.addMenu(tr("&File"));
    addCommands(
        file,
        commands,
        {u"hChoosePhotos"_qs,
         u"hInsertPhotos"_qs,
         {},
         u"hChooseScalingDestinationFolder"_qs,
         u"hShowDestinationFolderInFinder"_qs,
         {},
         u"hLoadImages"_qs,
         {},
         u"hShareMyPhoto"_qs,
         u"hPrintOrigPicture"_qs,
         {}}
    );
    file.addAction(orders.quit);
    fillEditMenu(*bar.addMenu(tr("&Edit")), commands);
    addCommands(
        *bar.addMenu(tr("&Photos")),
        commands,
        {u"hRemoveSelectedObject"_qs,
         u"hRemoveAllPhoto"_qs,
         {},
         u"setSortingModeAz"_qs,
         u"setSortingModezA"_qs,
         {},
         u"hRotateLeft"_qs,
         u"hRotateRight"_qs,
         u"hFlipHorizontal"_qs,
         u"hFlipVertical"_qs}
    );
    addCommands(*bar.addMenu(tr("P&resets")), commands, {u"hLoadPreset"_qs});
    QMenu& view = *bar.addMenu(tr("&View"));
    addCommands(
        view,
        commands,
        {u"hEditPhotoClicked"_qs, u"hFileManagementClicked"_qs, u"hExportHTMLClicked"_qs, {}}
    );
    view.addActions({orders.photoInfo, orders.runJournal});
    view.addSeparator();
    view.addActions({orders.fit, orders.pixels});
    view.addSeparator();
    view.addAction(orders.fullScreen);
    QMenu& help = *bar.addMenu(tr("&Help"));
    addCommands(
        help,
        commands,
        {u"hCallPreviewHelp"_qs, u"hCallCActionsHelp"_qs, u"hCallExportHTMLHelp"_qs, {}}
    );
    help.addAction(orders.about);
}

} // namespace brenvaldo::views
