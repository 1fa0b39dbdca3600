// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool_box.h"

#include <platform/foundation/file_name.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/storage/text_file.h>

namespace brenvaldo::files {

std::optional<QStringList> cToolBox::hOpenDialogFilesOC(const QString& mode) const
{
    return filesOf(panelMode(mode, PanelForm::OC));
}

std::optional<QStringList> cToolBox::hOpenDialogFiles(const QString& mode) const
{
    return filesOf(panelMode(mode, PanelForm::Plain));
}

std::optional<QStringList> cToolBox::filesOf(const std::optional<PanelMode>& mode) const
{
    if (!mode)
        return std::nullopt;
    const bool choosesFolder = mode->chooses == PanelMode::Chooses::Folder;
    const QStringList chosen = m_surroundings.chooser
                                   .open(
                                       {.message = mode->message,
                                        .choosesFiles = !choosesFolder,
                                        .choosesDirectories = choosesFolder,
                                        .allowsMultipleSelection = !choosesFolder,
                                        .allowedTypes = mode->allowedTypes}
                                   )
                                   .value_or(QStringList());
    if (!choosesFolder || chosen.isEmpty())
        return chosen;
    return scannedFiles(chosen.last(), mode->scannedExtensions);
}

std::optional<QString> cToolBox::hChooseDirectory() const
{
    const auto chosen = m_surroundings.chooser.open(
        {.message = u"Choose folder"_s,
         .prompt = u"OK"_s,
         .choosesFiles = false,
         .choosesDirectories = true,
         .canCreateDirectories = true}
    );
    if (!chosen || chosen->isEmpty())
        return std::nullopt;
    return platform::appendingPathComponent(chosen->last(), {});
}

QString cToolBox::hReadNSDataInFile(const QString& folder) const
{
    const auto chosen = m_surroundings.chooser.open(
        {.message = u"Choose a c-action file"_s,
         .allowedTypes = {u"c-action"_s},
         .startFolder = folder}
    );
    if (!chosen || chosen->isEmpty())
        return {};
    const QString path = chosen->last();
    const QString contents = platform::storage::readTextFile(path).value_or(QString());
    const QString name = platform::nameWithoutExtension(path);
    constexpr int blanks = 65;
    return name + u'\t' + QString(blanks, u' ') + u'\t' + contents;
}

QStringList cToolBox::hSaveProjectDialog()
{
    avProjectFileName.setStringValue(u"Enter project name here"_s);
    const auto chosen = m_surroundings.chooser.open(
        {.message = u"••• Choose folder and enter project name •••"_s,
         .prompt = u"OK"_s,
         .choosesFiles = false,
         .choosesDirectories = true,
         .canCreateDirectories = true,
         .accessories = {{.label = u"Project name"_s, .control = &avProjectFileName}}}
    );
    if (!chosen || chosen->isEmpty())
        return {};
    return {chosen->last(), avProjectFileName.stringValue()};
}

} // namespace brenvaldo::files
