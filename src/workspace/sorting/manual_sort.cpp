// SPDX-License-Identifier: GPL-3.0-or-later
#include "manual_sort.h"

#include <files/tool_box.h>
#include <imaging/picture_to_save.h>
#include <imaging/writer_rules.h>
#include <panels/panels.h>
#include <platform/codecs/image_source.h>
#include <platform/containers/type_identifier.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/storage/hidden_file.h>
#include <platform/storage/trash.h>

namespace brenvaldo::workspace {

namespace {

using imaging::ResultWord;
using platform::storage::SourceAndTarget;

const QString className = u"cGUIcontrols"_s;

/// How an action that never replaces a file has ended.
ResultWord wordOf(const SourceAndTarget& paths, bool (*action)(const SourceAndTarget& paths))
{
    if (platform::storage::fileExists(paths.target))
        return ResultWord::Exists;
    return action(paths) ? ResultWord::Ok : ResultWord::Failed;
}

} // namespace

ManualSort::ManualSort(Links links)
    : m_links(std::move(links))
{
}

void ManualSort::registerActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (ManualSort::*action)(int)) {
        actions.add(className, name, [this, action](const controls::Sender& sender) {
            (this->*action)(sender.tag);
        });
    };
    add(u"hSetSortDestinationFolder"_s, &ManualSort::hSetSortDestinationFolder);
    add(u"hCopyFileToFolder"_s, &ManualSort::hCopyFileToFolder);
    add(u"hMoveFileToFolder"_s, &ManualSort::hMoveFileToFolder);
    add(u"hAliasFileToFolder"_s, &ManualSort::hAliasFileToFolder);
    actions.add(className, u"hTrashPhoto"_s, [this](const auto&) { hTrashPhoto(); });
    for (int folder = 1; folder <= 6; ++folder) {
        const QString name = u"hShowSortDestination0%1InFinder"_s.arg(folder);
        actions.add(className, name, [this, folder](const auto&) {
            hShowSortDestinationInFinder(folder);
        });
    }
}

controls::TextField* ManualSort::field(int tag) const
{
    return m_links.subsystems.panels.vwFileManagementSorting.sortDestination(tag);
}

void ManualSort::hSetSortDestinationFolder(int tag)
{
    const auto chosen = m_links.subsystems.toolBox.hChooseDirectory();
    controls::TextField* destination = field(tag);
    if (!chosen || !destination)
        return;
    const QString folder = chosen->endsWith(u'/') ? *chosen : *chosen + u'/';
    destination->setStringValue(folder);
    destination->setToolTip(folder);
}

std::optional<SourceAndTarget> ManualSort::activePhoto(int tag) const
{
    const controls::TextField* destination = field(tag);
    const auto path = m_links.collectionView.hGetActiveFileFilePath();
    if (!destination || !path || path->isEmpty())
        return std::nullopt;
    const QString name = m_links.outputName(*path);
    const QString folder = destination->stringValue();
    if (folder.isEmpty())
        return std::nullopt;
    return SourceAndTarget{.source = *path, .target = folder + name};
}

bool ManualSort::prepareFolder(int tag) const
{
    const QString folder = field(tag)->stringValue();
    platform::storage::removeAbandonedFiles(folder);
    return platform::storage::fileExists(folder);
}

bool ManualSort::keepsType() const
{
    const QString title = m_links.subsystems.panels.vwFileType.pubFileType.titleOfSelectedItem();
    return imaging::keepsOriginalType(imaging::outputTypeForTitle(title));
}

void ManualSort::hCopyFileToFolder(int tag)
{
    const auto paths = activePhoto(tag);
    if (!paths || !prepareFolder(tag))
        return;
    const ResultWord word
        = keepsType() ? wordOf(*paths, platform::storage::copyItem) : converted(*paths);
    record(u"hCopyFileToFolder"_s, *paths, word);
}

ResultWord ManualSort::converted(const SourceAndTarget& paths) const
{
    const panels::FileTypePanel& panel = m_links.subsystems.panels.vwFileType;
    const auto source = platform::codecs::ImageSource::open(paths.source);
    const QString type = imaging::outputTypeForTitle(panel.pubFileType.titleOfSelectedItem());
    const QString extension = platform::pathExtension(paths.source);
    return imaging::save(imaging::outputPicture(
        source ? source->uprightImage() : std::nullopt,
        {.source = paths.source, .destinationBase = platform::deletingPathExtension(paths.target)},
        {.outputType = type,
         .compressionLevel = panel.pubJPEGCompressionLevel.titleOfSelectedItem(),
         .fileExtension = extension,
         .fileExtensionNSStr = {},
         .fileUTI = platform::containers::preferredTypeIdentifier(extension),
         .myFileType = type}
    ));
}

void ManualSort::hMoveFileToFolder(int tag)
{
    const auto paths = activePhoto(tag);
    if (!paths || !prepareFolder(tag))
        return;
    const ResultWord word = wordOf(*paths, platform::storage::moveItem);
    record(u"hMoveFileToFolder"_s, *paths, word);
    if (word == ResultWord::Ok)
        m_links.collectionView.hReplaceSelectedPhotoObject(paths->target);
}

void ManualSort::hAliasFileToFolder(int tag)
{
    const auto paths = activePhoto(tag);
    if (!paths)
        return;
    record(u"hAliasFileToFolder"_s, *paths, wordOf(*paths, platform::storage::createSymbolicLink));
}

void ManualSort::hTrashPhoto()
{
    const auto path = m_links.collectionView.hGetActiveFileFilePath();
    if (!path)
        return;
    const bool gone = platform::storage::moveToTrash(*path);
    record(
        u"hTrashPhoto"_s,
        {.source = *path, .target = {}},
        gone ? ResultWord::Ok : ResultWord::Failed
    );
    if (gone)
        m_links.collectionView.hRemoveSelectedPhotoObject();
}

void ManualSort::hShowSortDestinationInFinder(int tag)
{
    const QString folder = field(tag)->stringValue();
    if (!folder.isEmpty())
        files::cNSFileHandling::hShowInFinder(m_links.desktop, folder);
}

void ManualSort::record(const QString& action, const SourceAndTarget& paths, ResultWord word) const
{
    m_links.journal.add(
        {.function = action, .source = paths.source, .target = paths.target, .word = word}
    );
}

} // namespace brenvaldo::workspace
