// SPDX-License-Identifier: GPL-3.0-or-later
#include "collection_view_controller.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::workspace {

cCollectionViewController::cCollectionViewController(const Links& links)
    : m_panels(links.panels)
    , m_window(links.panels.window)
    , m_photos(links.photos)
    , m_journal(links.journal)
    , m_chooser(links.chooser)
    , m_previewPhotos(links.previewPhotos)
    , m_functions(links.functions)
    , m_subsystems(links.subsystems)
    , m_neighbours(links.neighbours)
    , m_hAlertWindow(links.hAlertWindow)
    , m_selection(m_photos.selectionChanged.connect([this] { selectionChanged(); }))
{
}

namespace {

const QString collectionViewControllerClass = u"cCollectionViewController"_s;

} // namespace

void cCollectionViewController::registerActions(controls::ActionRegistry& actions)
{
    registerListActions(actions);
    registerPreviewActions(actions);
}

void cCollectionViewController::registerListActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (cCollectionViewController::*action)()) {
        actions.add(collectionViewControllerClass, name, [this, action](const auto&) {
            (this->*action)();
        });
    };
    add(u"hChoosePhotos"_s, &cCollectionViewController::hChoosePhotos);
    add(u"hInsertPhotos"_s, &cCollectionViewController::hInsertPhotos);
    add(u"hRemoveAllPhoto"_s, &cCollectionViewController::hRemoveAllPhoto);
    add(u"hRemoveSelectedObject"_s, &cCollectionViewController::hRemoveSelectedPhotoObject);
    add(u"hRemoveSelectedPhotoObject"_s, &cCollectionViewController::hRemoveSelectedPhotoObject);
    add(u"hProcessAllPhotoFlag"_s, &cCollectionViewController::hProcessAllPhotoFlag);
    add(u"cbPhotoToProcessClicked"_s, &cCollectionViewController::cbPhotoToProcessClicked);
    add(u"setSortingModeAz"_s, &cCollectionViewController::setSortingModeAz);
    add(u"setSortingModezA"_s, &cCollectionViewController::setSortingModezA);
    add(u"hRotateRight"_s, &cCollectionViewController::hRotateRight);
    add(u"hRotateLeft"_s, &cCollectionViewController::hRotateLeft);
    add(u"hFlipHorizontal"_s, &cCollectionViewController::hFlipHorizontal);
    add(u"hFlipVertical"_s, &cCollectionViewController::hFlipVertical);
}

void cCollectionViewController::registerPreviewActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (cCollectionViewController::*action)()) {
        actions.add(collectionViewControllerClass, name, [this, action](const auto&) {
            (this->*action)();
        });
    };
    add(u"callForPreview"_s, &cCollectionViewController::callForPreview);
    add(u"callForDefaultImage"_s, &cCollectionViewController::callForDefaultImage);
    add(u"callForTemplatePreview"_s, &cCollectionViewController::callForTemplatePreview);
    add(u"hCheckboxPreviewTouched"_s, &cCollectionViewController::hCheckboxPreviewTouched);
    add(u"hCropPositionSegmentedControl"_s,
        &cCollectionViewController::hCropPositionSegmentedControl);
    add(u"hFlipCropWH"_s, &cCollectionViewController::hFlipCropWH);
    add(u"hFlipCropXY"_s, &cCollectionViewController::hFlipCropXY);
    add(u"hFlipScaleFixWH"_s, &cCollectionViewController::hFlipScaleFixWH);
    add(u"tabViewdidSelectTabViewItem"_s, &cCollectionViewController::tabViewdidSelectTabViewItem);
    actions.add(
        collectionViewControllerClass,
        u"controlTextDidEndEditing"_s,
        [this](const controls::Sender& sender) { controlTextDidEndEditing(sender.tag); }
    );
}

} // namespace brenvaldo::workspace
