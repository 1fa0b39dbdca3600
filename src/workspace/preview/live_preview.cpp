// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <workspace/functions/selected_function.h>
#include <workspace/list/collection_view_controller.h>

#include <platform/foundation/log.h>
#include <workspace/functions/function_id.h>

namespace brenvaldo::workspace {

void cCollectionViewController::callForPreview()
{
    if (m_photos.isEmpty() || selectsNonPhoto()) {
        showNoPhoto();
        return;
    }
    const auto path = hGetActiveFileFilePath();
    m_window.myTemplateOverlayPreview.clear();
    m_window.myTemplatePreview.setImage(path ? m_previewPhotos.photo(*path) : std::nullopt);
    if (!path)
        return;
    if (cSelectedFunction::sharedModel().myString == functionId::batchFileConvert) {
        callForDefaultImage();
        return;
    }
    if (isPreviewOn())
        showEffect(*path);
}

void cCollectionViewController::showEffect(const QString& path)
{
    const Function* function
        = m_functions.withId(cSelectedFunction::sharedModel().myString.value_or(QString()));
    if (!function || !function->preview)
        return;
    if (function->photoBelow == PhotoBelow::Goes)
        m_window.myTemplatePreview.clear();
    m_window.myTemplateOverlayPreview.setImage(function->preview(m_subsystems, path));
}

void cCollectionViewController::callForDefaultImage()
{
    m_window.myTemplatePreview.clear();
    m_window.myTemplateOverlayPreview.clear();
}

/// The preview is empty since no photo is selected, and nothing else tells of one either.
void cCollectionViewController::showNoPhoto()
{
    callForDefaultImage();
    m_window.tfOriginalPictureStrRef.setStringValue({});
    if (m_neighbours.forgetPhoto)
        m_neighbours.forgetPhoto();
}

void cCollectionViewController::showFile(const QString& path)
{
    m_window.myTemplateOverlayPreview.clear();
    m_window.myTemplatePreview.setImage(m_previewPhotos.photo(path));
}

void cCollectionViewController::selectionChanged()
{
    if (selectsNonPhoto())
        return;
    m_window.myTemplateOverlayPreview.clear();
    const auto path = hGetActiveFileFilePath();
    if (!path) {
        platform::log(u"no picture selected"_s);
        return;
    }
    m_window.tfOriginalPictureStrRef.setStringValue(*path); // what is printed
    callForPreview();
    if (m_neighbours.hiDoNothing)
        m_neighbours.hiDoNothing(*path);
}

bool cCollectionViewController::selectsNonPhoto() const
{
    const cCollectionViewItem* entry = m_photos.selectedEntry();
    return entry && entry->myRenameSelect > 0;
}

bool cCollectionViewController::isPreviewOn() const
{
    return m_panels.vwShowPreview.cbShowPreview.isOn();
}

void cCollectionViewController::callForHTMLTemplatePreview(const QString& imageName)
{
    m_window.myTemplatePreview.setImage(imageNamed(imageName));
    m_window.myTemplateOverlayPreview.clear();
}

void cCollectionViewController::callForTemplatePreview()
{
    struct Template
    {
        QString picture;
        QString fileName; ///< "" leaves the name of the pages as it is
    };
    static const QList<Template> templates{
        {u"Ex01XL.png"_s, u"myFirstPhotoGallery"_s},
        {u"Ex02XL.png"_s, {}},
        {u"Ex03XL.png"_s, {}},
        {u"Ex04XL.png"_s, u"myFourthPhotoGallery"_s},
    };
    const int index = m_panels.vwHtmlExport.pubPhotoGalleryModel.indexOfSelectedItem();
    if (index < 0 || index >= templates.size())
        return;
    callForHTMLTemplatePreview(templates.at(index).picture);
    if (!templates.at(index).fileName.isEmpty())
        m_panels.vwHtmlExport.tfHTMLfileName.setStringValue(templates.at(index).fileName);
}

std::optional<platform::graphics::Image> cCollectionViewController::imageNamed(const QString& name
) const
{
    return m_neighbours.imageNamed ? m_neighbours.imageNamed(name) : std::nullopt;
}

} // namespace brenvaldo::workspace
