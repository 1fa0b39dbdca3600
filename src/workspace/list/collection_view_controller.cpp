// SPDX-License-Identifier: GPL-3.0-or-later
#include "collection_view_controller.h"

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

const QString className = u"cCollectionViewController"_qs;

} // namespace

void cCollectionViewController::registerActions(controls::ActionRegistry& actions)
{
    registerListActions(actions);
    registerPreviewActions(actions);
}

void cCollectionViewController::registerListActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (cCollectionViewController::*action)()) {
        actions.add(className, name, [this, action](const auto&) { (this->*action)(); });
    };
    add(u"hChoosePhotos"_qs, &cCollectionViewController::hChoosePhotos);
    add(u"hInsertPhotos"_qs, &cCollectionViewController::hInsertPhotos);
    add(u"hRemoveAllPhoto"_qs, &cCollectionViewController::hRemoveAllPhoto);
    add(u"hRemoveSelectedObject"_qs, &cCollectionViewController::hRemoveSelectedPhotoObject);
    add(u"hRemoveSelectedPhotoObject"_qs, &cCollectionViewController::hRemoveSelectedPhotoObject);
    add(u"hProcessAllPhotoFlag"_qs, &cCollectionViewController::hProcessAllPhotoFlag);
    add(u"cbPhotoToProcessClicked"_qs, &cCollectionViewController::cbPhotoToProcessClicked);
    add(u"setSortingModeAz"_qs, &cCollectionViewController::setSortingModeAz);
    add(u"setSortingModezA"_qs, &cCollectionViewController::setSortingModezA);
    add(u"hRotateRight"_qs, &cCollectionViewController::hRotateRight);
    add(u"hRotateLeft"_qs, &cCollectionViewController::hRotateLeft);
    add(u"hFlipHorizontal"_qs, &cCollectionViewController::hFlipHorizontal);
    add(u"hFlipVertical"_qs, &cCollectionViewController::hFlipVertical);
}

void cCollectionViewController::registerPreviewActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (cCollectionViewController::*action)()) {
        actions.add(className, name, [this, action](const auto&) { (this->*action)(); });
    };
    add(u"callForPreview"_qs, &cCollectionViewController::callForPreview);
    add(u"callForDefaultImage"_qs, &cCollectionViewController::callForDefaultImage);
    add(u"callForTemplatePreview"_qs, &cCollectionViewController::callForTemplatePreview);
    add(u"hCheckboxPreviewTouched"_qs, &cCollectionViewController::hCheckboxPreviewTouched);
    add(u"hCropPositionSegmentedControl"_qs,
        &cCollectionViewController::hCropPositionSegmentedControl);
    add(u"hFlipCropWH"_qs, &cCollectionViewController::hFlipCropWH);
    add(u"hFlipCropXY"_qs, &cCollectionViewController::hFlipCropXY);
    add(u"hFlipScaleFixWH"_qs, &cCollectionViewController::hFlipScaleFixWH);
    add(u"tabViewdidSelectTabViewItem"_qs, &cCollectionViewController::tabViewdidSelectTabViewItem);
    actions.add(className, u"controlTextDidEndEditing"_qs, [this](const controls::Sender& sender) {
        controlTextDidEndEditing(sender.tag);
    });
}

} // namespace brenvaldo::workspace
