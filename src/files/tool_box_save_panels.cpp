// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_copy.h"
#include "tool_box.h"

#include <platform/foundation/file_name.h>
#include <platform/foundation/folders.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/storage/atomic_file.h>
#include <platform/storage/file_tags.h>

namespace brenvaldo::files {

namespace {

void logFailure(const QString& path) { platform::log(u"Can't write \"%1\""_s.arg(path)); }

controls::SavePanel panelForType(const QString& type, const QString& suggestedName)
{
    return {.suggestedName = suggestedName, .allowedTypes = {type}, .allowsOtherTypes = false};
}

} // namespace

QString cToolBox::savedTo(const controls::SavePanel& panel, const QByteArray& contents) const
{
    const auto chosen = m_surroundings.chooser.save(panel);
    if (!chosen)
        return {};
    const QString path = controls::withAllowedType(*chosen, panel);
    if (!platform::storage::writeFileAtomically(path, contents))
        logFailure(path);
    return path;
}

void cToolBox::hSaveWriteDialogFile(const NewText& file) const
{
    static_cast<void>(
        savedTo(panelForType(file.fileExtension, file.suggestedName), file.text.toUtf8())
    );
}

QString cToolBox::hSaveWriteDialogFile2(const NewActionFile& file) const
{
    controls::SavePanel panel = panelForType(u"c-action"_s, file.suggestedName);
    panel.startFolder = m_surroundings.defaults.text(u"CActionsDestination"_s);
    return savedTo(panel, file.text.toUtf8());
}

void cToolBox::hSaveNSDataWriteDialogFile(const QByteArray& contents, const QString& suggestedName)
    const
{
    static_cast<void>(savedTo(panelForType(u"c-action"_s, suggestedName), contents));
}

void cToolBox::hChooseFileType()
{
    m_fileType = pubFileType.titleOfSelectedItem();
    m_panel.allowedTypes = {m_fileType};
    pubJPEGcompression.setEnabled(m_fileType == u"jpeg"_s);
}

void cToolBox::hChooseCompType() { m_compressionType = pubJPEGcompression.titleOfSelectedItem(); }

bool cToolBox::asksForTags() const { return m_surroundings.defaults.text(u"MOS"_s) == u"109+"_s; }

QList<controls::Accessory> cToolBox::formatAccessories()
{
    QList<controls::Accessory> accessories
        = {{.label = u"File type"_s, .control = &pubFileType},
           {.label = u"JPEG quality"_s, .control = &pubJPEGcompression}};
    if (asksForTags())
        accessories += {.label = u"Tags"_s, .control = &m_tagNames};
    return accessories;
}

void cToolBox::hSaveDialogFile(const QString& source)
{
    m_panel
        = {.suggestedName = platform::nameWithoutExtension(source),
           .allowsOtherTypes = false,
           .startFolder = platform::desktopFolder(),
           .accessories = formatAccessories()};
    hChooseFileType();
    hChooseCompType();
    const auto chosen = m_surroundings.chooser.save(m_panel);
    if (!chosen)
        return;
    const QString target = controls::withAllowedType(*chosen, m_panel);
    const bool written = writePhotoCopy(
        {.source = source, .target = target, .type = m_fileType, .compression = m_compressionType}
    );
    if (!written)
        logFailure(target);
    else if (asksForTags())
        platform::storage::setFileTags(
            target, m_tagNames.stringValue().split(u',', Qt::SkipEmptyParts)
        );
}

} // namespace brenvaldo::files
