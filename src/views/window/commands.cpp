// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands.h"

#include <platform/foundation/literals.h>
#include <views/look/icons.h>

#include <array>

namespace brenvaldo::views {

namespace {

enum class Needs { Nothing, Photos, Selection };

struct CommandRow
{
    const char* action; ///< class and name
    const char* text;
    const char* drawing;
    const char* shortcut;
    Needs needs;
};

constexpr std::array rows{
    CommandRow{
        "cCollectionViewController.hChoosePhotos",
        QT_TRANSLATE_NOOP("Commands", "&Add photos\u2026"),
        "add",
        "Ctrl+O",
        Needs::Nothing},
    CommandRow{
        "cCollectionViewController.hInsertPhotos",
        QT_TRANSLATE_NOOP("Commands", "&Insert\u2026"),
        "insert",
        "Ctrl+Shift+O",
        Needs::Nothing},
    CommandRow{
        "cCollectionViewController.hRemoveSelectedObject",
        QT_TRANSLATE_NOOP("Commands", "&Remove"),
        "remove",
        "Del",
        Needs::Selection},
    CommandRow{
        "cCollectionViewController.hRemoveAllPhoto",
        QT_TRANSLATE_NOOP("Commands", "Re&move all"),
        "remove-all",
        "Ctrl+Shift+Del",
        Needs::Photos},
    CommandRow{
        "cCollectionViewController.setSortingModeAz",
        QT_TRANSLATE_NOOP("Commands", "Sort by name, &A to Z"),
        "sort-ascending",
        "",
        Needs::Selection},
    CommandRow{
        "cCollectionViewController.setSortingModezA",
        QT_TRANSLATE_NOOP("Commands", "Sort by name, &Z to A"),
        "sort-descending",
        "",
        Needs::Selection},
    CommandRow{
        "cCollectionViewController.hRotateLeft",
        QT_TRANSLATE_NOOP("Commands", "Rotate &left"),
        "rotate-left",
        "Ctrl+Shift+R",
        Needs::Selection},
    CommandRow{
        "cCollectionViewController.hRotateRight",
        QT_TRANSLATE_NOOP("Commands", "R&otate right"),
        "rotate-right",
        "Ctrl+R",
        Needs::Selection},
    CommandRow{
        "cCollectionViewController.hFlipHorizontal",
        QT_TRANSLATE_NOOP("Commands", "Flip &horizontally"),
        "flip-horizontal",
        "",
        Needs::Selection},
    CommandRow{
        "cCollectionViewController.hFlipVertical",
        QT_TRANSLATE_NOOP("Commands", "Flip &vertically"),
        "flip-vertical",
        "",
        Needs::Selection},
    CommandRow{
        "cGUIcontrols.hShareMyPhoto",
        QT_TRANSLATE_NOOP("Commands", "&Share\u2026"),
        "share",
        "",
        Needs::Selection},
    CommandRow{
        "cGUIcontrols.hPrintOrigPicture",
        QT_TRANSLATE_NOOP("Commands", "&Print\u2026"),
        "print",
        "Ctrl+P",
        Needs::Selection},
    CommandRow{
        "cGUIcontrols.hChooseScalingDestinationFolder",
        QT_TRANSLATE_NOOP("Commands", "Choose &destination\u2026"),
        "",
        "Ctrl+D",
        Needs::Nothing},
    CommandRow{
        "cGUIcontrols.hShowDestinationFolderInFinder",
        QT_TRANSLATE_NOOP("Commands", "Sho&w destination"),
        "reveal",
        "Ctrl+Shift+D",
        Needs::Nothing},
    CommandRow{
        "cGUIcontrols.hLoadImages",
        QT_TRANSLATE_NOOP("Commands", "P&rocess"),
        "",
        "Ctrl+Return",
        Needs::Nothing},
    CommandRow{
        "cGUIcontrols.hEditPhotoClicked",
        QT_TRANSLATE_NOOP("Commands", "&Edit photos"),
        "edit-photos",
        "Ctrl+1",
        Needs::Nothing},
    CommandRow{
        "cGUIcontrols.hFileManagementClicked",
        QT_TRANSLATE_NOOP("Commands", "&Manage files"),
        "manage-files",
        "Ctrl+2",
        Needs::Nothing},
    CommandRow{
        "cGUIcontrols.hExportHTMLClicked",
        QT_TRANSLATE_NOOP("Commands", "&Web gallery"),
        "web-gallery",
        "Ctrl+3",
        Needs::Nothing},
    CommandRow{
        "cPresetManager.hLoadPreset",
        QT_TRANSLATE_NOOP("Commands", "&Presets\u2026"),
        "",
        "Ctrl+Shift+P",
        Needs::Nothing},
    CommandRow{
        "cSheetControl.hCallPreferencesWw",
        QT_TRANSLATE_NOOP("Commands", "Pre&ferences\u2026"),
        "",
        "Ctrl+,",
        Needs::Nothing},
    CommandRow{
        "cSheetControl.hCallPreviewHelp",
        QT_TRANSLATE_NOOP("Commands", "About the &preview"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cSheetControl.hCallCActionsHelp",
        QT_TRANSLATE_NOOP("Commands", "About &file-name actions"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cSheetControl.hCallExportHTMLHelp",
        QT_TRANSLATE_NOOP("Commands", "About web &galleries"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cSheetControl.myExifInfo",
        QT_TRANSLATE_NOOP("Commands", "About &metadata"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cSheetControl.myNumberingInfo",
        QT_TRANSLATE_NOOP("Commands", "About &numbering"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cSheetControl.myXportToOstrovelInfo",
        QT_TRANSLATE_NOOP("Commands", "About e&xported chains"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cSheetControl.hCallAppLibraryHelp",
        QT_TRANSLATE_NOOP("Commands", "About the &support folder"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cGUIcontrols.hGoToSupportPageURL",
        QT_TRANSLATE_NOOP("Commands", "&Documentation"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cGUIcontrols.hGoToFeedbackPageURL",
        QT_TRANSLATE_NOOP("Commands", "Send feed&back"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cGUIcontrols.hGoToWebPageURL",
        QT_TRANSLATE_NOOP("Commands", "H&ome page"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cGUIcontrols.goToProductPage",
        QT_TRANSLATE_NOOP("Commands", "Other p&roducts"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cGUIcontrols.hAskForReviewURL",
        QT_TRANSLATE_NOOP("Commands", "&Write a review"),
        "",
        "",
        Needs::Nothing},
    CommandRow{
        "cAppUpdater.getAppVersion",
        QT_TRANSLATE_NOOP("Commands", "&Look for a newer version"),
        "",
        "",
        Needs::Nothing},
};

QString bareName(const QString& action) { return action.section(QLatin1Char('.'), -1); }

QString toolTipOf(const QAction& command)
{
    const QString text = command.text().remove(QLatin1Char('&'));
    const QString keys = command.shortcut().toString(QKeySequence::NativeText);
    return keys.isEmpty() ? text : u"%1 (%2)"_s.arg(text, keys);
}

} // namespace

Commands::Commands(
    const controls::ActionRegistry& actions, const workspace::PhotoList& photos, QObject* parent
)
    : QObject(parent)
    , m_photos(photos)
    , m_entries(photos.entriesChanged.connect([this] { enableByPhotos(); }))
    , m_selection(photos.selectionChanged.connect([this] { enableByPhotos(); }))
{
    for (const CommandRow& row : rows) {
        const QString name = QString::fromLatin1(row.action);
        auto* command = new QAction(tr(row.text), this);
        command->setObjectName(bareName(name));
        command->setData(static_cast<int>(row.needs));
        command->setShortcut(QKeySequence(QString::fromLatin1(row.shortcut)));
        command->setToolTip(toolTipOf(*command));
        if (*row.drawing)
            command->setIcon(icon(QString::fromLatin1(row.drawing)));
        command->setVisible(actions.knows(name));
        connect(command, &QAction::triggered, this, [&actions, name] { actions.send(name); });
        m_commands.insert(bareName(name), command);
    }
    enableByPhotos();
}

QAction* Commands::command(const QString& name) const
{
    QAction* command = m_commands.value(name);
    Q_ASSERT(command);
    return command;
}

void Commands::enableByPhotos()
{
    for (QAction* command : std::as_const(m_commands)) {
        switch (static_cast<Needs>(command->data().toInt())) {
        case Needs::Nothing:
            break;
        case Needs::Photos:
            command->setEnabled(!m_photos.isEmpty());
            break;
        case Needs::Selection:
            command->setEnabled(m_photos.selectedIndex().has_value());
            break;
        }
    }
}

} // namespace brenvaldo::views
