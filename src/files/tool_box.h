// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "file_handling.h"
#include "panel_modes.h"

#include <controls/choice_controls.h>
#include <controls/file_chooser.h>
#include <controls/text_controls.h>
#include <platform/foundation/signal.h>
#include <platform/foundation/user_defaults.h>
#include <platform/storage/desktop.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace brenvaldo::files {

/// What the tool box asks and tells.
struct ToolBoxSurroundings
{
    controls::FileChooser& chooser;
    platform::storage::Desktop& desktop;
    const platform::UserDefaults& defaults;
};

/// How the latest operations of the temporary store ended.
enum class StoreStatus { Successful, Failed };

/// "successfull" or "Failed".
[[nodiscard]] QString text(StoreStatus status);

/// The names that do not begin with a dot, which marks fonts that are not for users.
[[nodiscard]] QStringList visibleFontNames(const QStringList& names);

/// The open and save panels, the temporary folder, and small queries about the system.
///
/// A panel that is not answered with OK gives nothing, an empty list or an empty text; failures to
/// write are logged. Texts and data are written whole or not at all.
class cToolBox
{
public:
    explicit cToolBox(const ToolBoxSurroundings& surroundings);

    /// The paths that the user chooses in the panel of a mode, or the files found in a chosen
    /// folder; nothing for a mode that the operation does not know.
    [[nodiscard]] std::optional<QStringList> hOpenDialogFilesOC(const QString& mode) const;
    [[nodiscard]] std::optional<QStringList> hOpenDialogFiles(const QString& mode) const;

    /// The path of a folder, without a slash at its end.
    [[nodiscard]] std::optional<QString> hChooseDirectory() const;

    /// One level of the folder, hidden files left out.
    [[nodiscard]] static QList<QUrl> hGetFilesInDir(const QString& folder);

    /// Asks where and in which format to keep a copy of the photo at `source`, and writes it.
    void hSaveDialogFile(const QString& source);
    /// Actions of that panel's accessory.
    void hChooseFileType();
    void hChooseCompType();

    struct NewText
    {
        QString fileExtension;
        QString text;
        QString suggestedName;
    };
    void hSaveWriteDialogFile(const NewText& file) const;

    struct NewActionFile
    {
        QString text;
        QString suggestedName;
    };
    /// Exports a chain of actions; the path that was chosen, "" when none was.
    QString hSaveWriteDialogFile2(const NewActionFile& file) const;
    void hSaveNSDataWriteDialogFile(const QByteArray& contents, const QString& suggestedName) const;

    /// Imports a chain of actions: the file's name without extension, a TAB, 65 blanks, a TAB and
    /// the file's text, which is "" for a file that is no UTF-8. The panel starts in `folder`, or
    /// where it stood last when that is "".
    [[nodiscard]] QString hReadNSDataInFile(const QString& folder) const;

    /// Asks for a folder and a project name, and answers both.
    [[nodiscard]] QStringList hSaveProjectDialog();

    /// Copies the file under the new name in its own folder. A name that is taken leaves a copy
    /// with "-temp" added to it. Starts with a fresh status.
    static StoreStatus hStoreFiles(const PathAndName& file);
    /// Copies to the target; the status stays failed once it has.
    static StoreStatus hStoreFiles2(const platform::storage::SourceAndTarget& paths);
    /// Copies into `Temp` under the name; the status stays failed once it has.
    static StoreStatus hStoreTempFile(const PathAndName& file);
    [[nodiscard]] static QString hGetHomeDir();
    [[nodiscard]] static QString hGetTempDir();

    /// Opens the file at `path`, in which "?", "=", "&" and "+" stand for themselves and "%" begins
    /// an encoded character.
    void hShowURL(const QString& path) const;
    void hShowURL2(const QString& path) const;
    /// The address with the four signs encoded; nothing when it is none all the same.
    [[nodiscard]] static std::optional<QUrl> hNSStrToUrl(const QString& text);

    [[nodiscard]] static QString hGetMacOSVersion();
    [[nodiscard]] static bool isDarkMode();
    [[nodiscard]] static bool icmIsDarkMode();

    /// The visible ones of all installed faces, by the names that `platform::fontNamed` takes.
    [[nodiscard]] static QStringList hGetAllInstalledFonts();

    controls::PopUpButton pubFileType;
    controls::PopUpButton pubJPEGcompression;
    controls::TextField avProjectFileName;

private:
    [[nodiscard]] std::optional<QStringList> filesOf(const std::optional<PanelMode>& mode) const;
    [[nodiscard]] QString
    savedTo(const controls::SavePanel& panel, const QByteArray& contents) const;
    [[nodiscard]] QList<controls::Accessory> formatAccessories();
    [[nodiscard]] bool asksForTags() const;

    ToolBoxSurroundings m_surroundings;
    controls::SavePanel m_panel;
    QString m_fileType;
    QString m_compressionType;
    controls::TextField m_tagNames;
    platform::Subscription m_typeChosen;
    platform::Subscription m_compressionChosen;
};

} // namespace brenvaldo::files
