// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos_of_run.h"

#include "batch_rules.h"

#include <panels/panels.h>
#include <workspace/functions/function_id.h>

namespace brenvaldo::workspace {

namespace {

bool passes(const QString& filter, const cCollectionViewItem& entry)
{
    return entry.myRenameSelect <= 0 && (filter == u"ALL" || filter == entry.myPhotoOrientation);
}

Takes takenBy(const KindOfRun& run)
{
    if (std::holds_alternative<RenamingRun>(run))
        return Takes::AllTicked;
    if (const auto* loop = std::get_if<PhotoRun>(&run))
        return loop->takes;
    const auto* list = std::get_if<ListRun>(&run);
    return list ? list->takes : Takes::PhotosOfTheFilter;
}

} // namespace

const Function*
functionOfRun(const Functions& functions, const QString& id, const panels::Panels& panels)
{
    if (id == functionId::uploadPhotos)
        return nullptr;
    const Function* selected = functions.withId(id);
    if (selected && selected->choice.section != Section::EditPhoto)
        return selected;
    return functions.shownAt(
        Section::EditPhoto, panels.window.pubEditPhoto.indexOfSelectedItem(), panels
    );
}

QStringList takenPhotos(Takes takes, const PhotoList& photos, const panels::Panels& panels)
{
    const QString filter
        = applyOnFilter(panels.vwApplyOn.pubPhotoOrientation.indexOfSelectedItem());
    QStringList taken;
    for (const cCollectionViewItem& entry : photos.entries()) {
        if (entry.myPhotoSelect > 0 && (takes == Takes::AllTicked || passes(filter, entry)))
            taken.append(entry.myPhotoDescription);
    }
    return taken;
}

QStringList photosOfRun(const KindOfRun& run, const PhotoList& photos, const panels::Panels& panels)
{
    if (std::holds_alternative<OwnButton>(run))
        return {};
    return takenPhotos(takenBy(run), photos, panels);
}

} // namespace brenvaldo::workspace
