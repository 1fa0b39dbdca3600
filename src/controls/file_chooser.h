// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace brenvaldo::controls {

class Control;

/// A text field or pop-up that a panel shows below its files; the user's choice is its value when
/// the panel has been answered.
struct Accessory
{
    QString label;
    Control* control = nullptr;
};

/// What an open panel asks for.
struct OpenPanel
{
    QString message = {};
    QString prompt = {};
    bool choosesFiles = true;
    bool choosesDirectories = false;
    bool allowsMultipleSelection = false;
    bool canCreateDirectories = false;
    QStringList allowedTypes = {}; ///< extensions; empty allows every file
    QString startFolder = {}; ///< empty: where the panel stood last
    QList<Accessory> accessories = {};
};

/// What a save panel asks for.
struct SavePanel
{
    QString message = {};
    QString suggestedName = {};
    QStringList allowedTypes = {}; ///< extensions; they may change when an accessory does
    bool allowsOtherTypes = true; ///< a name that has an extension keeps it
    QString startFolder = {};
    QList<Accessory> accessories = {};
};

/// `path` as the panel hands it over: with the first allowed type, unless it has a type that the
/// panel takes.
[[nodiscard]] QString withAllowedType(const QString& path, const SavePanel& panel);

/// Asks the user for files; a window shows panels, a script answers from its queue.
class FileChooser
{
public:
    FileChooser() = default;
    FileChooser(const FileChooser&) = delete;
    FileChooser& operator=(const FileChooser&) = delete;
    FileChooser(FileChooser&&) = delete;
    FileChooser& operator=(FileChooser&&) = delete;
    virtual ~FileChooser() = default;

    /// The chosen paths; nothing when the panel was not answered with OK.
    [[nodiscard]] virtual std::optional<QStringList> open(const OpenPanel& panel) = 0;
    /// `panel` stays the caller's: what an accessory changes in it holds at once.
    [[nodiscard]] virtual std::optional<QString> save(const SavePanel& panel) = 0;
};

} // namespace brenvaldo::controls
