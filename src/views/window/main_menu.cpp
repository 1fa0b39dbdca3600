// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_menu.h"

#include <platform/foundation/literals.h>
#include <views/look/icons.h>

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
    menu.addAction(commands.command(u"hCallPreferencesWw"_s));
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
    orders.photoInfo->setIcon(icon(u"info"_s));
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
        {u"hChoosePhotos"_s,
         u"hInsertPhotos"_s,
         {},
         u"hChooseScalingDestinationFolder"_s,
         u"hShowDestinationFolderInFinder"_s,
         {},
         u"hLoadImages"_s,
         {},
         u"hShareMyPhoto"_s,
         u"hPrintOrigPicture"_s,
         {}}
    );
    file.addAction(orders.quit);
    fillEditMenu(*bar.addMenu(tr("&Edit")), commands);
    addCommands(
        *bar.addMenu(tr("&Photos")),
        commands,
        {u"hRemoveSelectedObject"_s,
         u"hRemoveAllPhoto"_s,
         {},
         u"setSortingModeAz"_s,
         u"setSortingModezA"_s,
         {},
         u"hRotateLeft"_s,
         u"hRotateRight"_s,
         u"hFlipHorizontal"_s,
         u"hFlipVertical"_s}
    );
    addCommands(*bar.addMenu(tr("P&resets")), commands, {u"hLoadPreset"_s});
    QMenu& view = *bar.addMenu(tr("&View"));
    addCommands(
        view,
        commands,
        {u"hEditPhotoClicked"_s, u"hFileManagementClicked"_s, u"hExportHTMLClicked"_s, {}}
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
        {u"hCallPreviewHelp"_s,
         u"hCallCActionsHelp"_s,
         u"hCallExportHTMLHelp"_s,
         u"myExifInfo"_s,
         u"myNumberingInfo"_s,
         u"myXportToOstrovelInfo"_s,
         u"hCallAppLibraryHelp"_s,
         {},
         u"hGoToSupportPageURL"_s,
         u"hGoToFeedbackPageURL"_s,
         u"hGoToWebPageURL"_s,
         u"goToProductPage"_s,
         u"hAskForReviewURL"_s,
         {},
         u"getAppVersion"_s,
         {}}
    );
    help.addAction(orders.about);
}

} // namespace brenvaldo::views
