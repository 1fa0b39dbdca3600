// SPDX-License-Identifier: GPL-3.0-or-later
#include "collection_view_controller.h"
#include "list_entry.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/storage/hidden_file.h>

namespace brenvaldo::workspace {

namespace {

/// The folder of the file, ending in "/".
QString folderOf(const QString& path)
{
    const QString folder = platform::deletingLastPathComponent(path);
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

} // namespace

void cCollectionViewController::hRotateRight() { rotateSelected(u"hRotateRight"_s, -90); }

void cCollectionViewController::hRotateLeft() { rotateSelected(u"hRotateLeft"_s, 90); }

void cCollectionViewController::hFlipHorizontal()
{
    editSelected(u"hFlipHorizontal"_s, m_neighbours.quickEdits.hFlipHorizontalPicture);
}

void cCollectionViewController::hFlipVertical()
{
    editSelected(u"hFlipVertical"_s, m_neighbours.quickEdits.hFlipVerticalPicture);
}

void cCollectionViewController::rotateSelected(const QString& action, float angle)
{
    const auto& rotate = m_neighbours.quickEdits.hRotatePicture;
    if (!rotate)
        return;
    editSelected(action, [&](const QString& path, const QString& folder) {
        return rotate(path, folder, angle);
    });
}

void cCollectionViewController::editSelected(const QString& action, const QuickEdits::Edit& edit)
{
    const auto index = m_photos.selectedIndex();
    if (!edit || !index || selectsNonPhoto())
        return;
    const QString path = m_photos.selectedEntry()->myPhotoDescription;
    platform::storage::removeAbandonedFiles(folderOf(path));
    const imaging::ResultWord word = edit(path, folderOf(path));
    m_journal.add({.function = action, .source = path, .target = path, .word = word});
    m_photos.replaceAt(*index, editedEntry(path));
    showFile(path);
    layWatermarkOver();
}

} // namespace brenvaldo::workspace
