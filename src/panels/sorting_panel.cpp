// SPDX-License-Identifier: GPL-3.0-or-later
#include "sorting_panel.h"

#include "common_rows.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

namespace {

QString numbered(const QString& name, int folder) { return name + QString::number(folder); }

} // namespace

SortingPanel::FolderButtons::FolderButtons(int folder)
    : choose(
        numbered(u"btnSetSortDestination0"_s, folder),
        u"Set\u2026"_s,
        u"cGUIcontrols.hSetSortDestinationFolder"_s
    )
    , show(
          numbered(u"btnShowSortDestination0"_s, folder),
          u"Show"_s,
          numbered(u"cGUIcontrols.hShowSortDestination0"_s, folder) + u"InFinder"_s
      )
    , copy(
          numbered(u"btnCopyFileToFolder0"_s, folder),
          u"Copy"_s,
          u"cGUIcontrols.hCopyFileToFolder"_s
      )
    , move(
          numbered(u"btnMoveFileToFolder0"_s, folder),
          u"Move"_s,
          u"cGUIcontrols.hMoveFileToFolder"_s
      )
    , alias(
          numbered(u"btnAliasFileToFolder0"_s, folder),
          u"Alias"_s,
          u"cGUIcontrols.hAliasFileToFolder"_s
      )
{
    for (controls::Button* button : {&choose, &show, &copy, &move, &alias})
        button->setTag(folder);
}

SortingPanel::SortingPanel()
    : PanelView(u"vwFileManagementSorting"_s)
{
    mySortTabView.addAction(u"cGUIcontrols.tabViewdidSelectTabViewItem"_s);
    setLayout(
        {{Pages{.tabs = &mySortTabView, .pages = {manualPage(), batchSortPage(), uploadPage()}}}}
    );
}

controls::TextField* SortingPanel::sortDestination(int folder)
{
    const std::array fields{
        &tfSortDestination01,
        &tfSortDestination02,
        &tfSortDestination03,
        &tfSortDestination04,
        &tfSortDestination05,
        &tfSortDestination06};
    const bool exists = folder >= 1 && folder <= static_cast<int>(fields.size());
    return exists ? fields.at(static_cast<std::size_t>(folder) - 1) : nullptr;
}

Layout SortingPanel::folderRows(int folder)
{
    const auto named = [folder](controls::Button& button, const QString& action) {
        return Field{
            .control = &button,
            .accessibleName = numbered(action, folder),
            .width = Field::Width::Narrow};
    };
    FolderButtons& buttons = sortFolderButtons.at(static_cast<std::size_t>(folder) - 1);
    return {
        {Row{
            .label = numbered(u"Folder "_s, folder),
            .fields
            = {{.control = sortDestination(folder)},
               named(buttons.choose, u"Choose folder "_s),
               named(buttons.show, u"Show folder "_s)}}},
        {Row{
            .fields
            = {named(buttons.copy, u"Copy the photo to folder "_s),
               named(buttons.move, u"Move the photo to folder "_s),
               named(buttons.alias, u"Make an alias of the photo in folder "_s)}}},
    };
}

Layout SortingPanel::manualPage()
{
    return joined(
        {{{Note{u"The keys 1 to 6 copy the selected photo into a folder, with Shift they move it. "
                u"Shift+Del moves it to the trash."_s}}},
         folderRows(1),
         folderRows(2),
         folderRows(3),
         folderRows(4),
         folderRows(5),
         folderRows(6),
         {{Row{.fields = {{.control = &btnTrashPhoto}}}}}}
    );
}

Layout SortingPanel::uploadPage()
{
    return {
        {Table{
            .table = &myPhotosTableView,
            .columns = {{.key = u"photosAlbumName"_s, .title = u"Album"_s}},
            .accessibleName = u"Albums of the photo library"_s,
            .emptyText = u"No albums are shown yet"_s}},
        {Row{.fields = {{.control = &btnGetAllAlbums}, {.control = &btnMakeNewAlbum}}}},
        {textRow(u"Title"_s, tfAddTitle)},
        {textRow(u"Keywords"_s, tfAddKeyword)},
        {textRow(u"Description"_s, tfAddDescription)},
        {Row{.fields = {{.control = &cbAddToFavorite}}}},
        {Row{.fields = {{.control = &cbWarnDuplicates}}}},
    };
}

} // namespace brenvaldo::panels
