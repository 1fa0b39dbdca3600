// SPDX-License-Identifier: GPL-3.0-or-later
#include "responsive_design.h"

#include "css_create.h"
#include "gallery_folders.h"
#include "gallery_icons.h"
#include "page_rules.h"

#include <files/file_handling.h>
#include <files/web_addresses.h>
#include <platform/foundation/file_name.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>
#include <platform/foundation/paths.h>

#include <QUrl>

#include <utility>

namespace brenvaldo::gallery {

namespace {

constexpr double stage = 0.2; // of the bar
constexpr int shareOfPhotos = 98;

void writePage(const QString& text, const QString& path)
{
    files::cNSFileHandling::hWritHTMLFile({text, path});
    files::cNSFileHandling::hAddIconToFile(path, icon(u"Brenvaldo_HTMLicon"_s));
}

void writeStylesheet(const GallerySettings& settings, const QString& destination)
{
    if (settings.page.model == PageModel::Grid)
        cCssCreate::hCreateCssGridMod9(settings.stylesheet, destination);
    else
        cCssCreate::hCreateCss9(settings.stylesheet, destination);
}

} // namespace

cResponsiveDesign::cResponsiveDesign(Surroundings surroundings)
    : m_surroundings(std::move(surroundings))
{
}

void cResponsiveDesign::hCreateResponsiveHTML(
    const QString& destination, imaging::PictureSink& sink
)
{
    controls::RunningProgress progress(m_surroundings.bar, controls::responsiveDesignBar);
    hPhotoRatioCalc();
    progress.advance(stage);
    const QStringList photos = m_surroundings.tickedPhotos();
    if (photos.isEmpty()) {
        m_surroundings.hAlertWindow(
            u"Sorry, you forgot to select photos."_s, u"Please choose the photos."_s
        );
        return;
    }
    const GallerySettings settings = settingsFor(destination);
    warnOfSmallPictures(settings);
    hCreateFolderStructure(destination);
    progress.advance(stage);

    const auto pictures = takePictures(photos, settings, {.sink = sink, .progress = progress});
    if (!pictures)
        return;
    writeStylesheet(settings, destination);
    progress.advance(stage);
    writePages(settings, *pictures, destination);
    progress.advance(stage);
    hCreateIndexRedirectHTML(settings.page.baseName, destination);
    std::ignore = sink.lastWord(); // a page shows pictures that stand
    m_surroundings.desktop.openUrl(
        QUrl::fromLocalFile(destination + pageName(settings.page.baseName, 1))
    );
}

std::optional<QList<GalleryPicture>> cResponsiveDesign::takePictures(
    const QStringList& photos, const GallerySettings& settings, const Run& run
) const
{
    QList<GalleryPicture> pictures;
    const int step = shareOfPhotos / static_cast<int>(photos.size());
    for (const QString& path : photos) {
        if (run.progress.isAskedToEnd())
            return std::nullopt;
        const QString name = platform::nameWithoutExtension(path);
        pictures.append({name, captionOf(settings, path)});
        run.sink.take(
            {.source = path,
             .target = settings.large.folder + name + u'.' + settings.large.format,
             .outcome = imaging::galleryPictures(
                 m_surroundings.imageHandling, path, settings.thumbnail, settings.large
             )}
        );
        run.progress.advance(step);
    }
    return pictures;
}

GallerySettings cResponsiveDesign::settingsFor(const QString& destination) const
{
    GallerySettings settings = readSettings(m_surroundings.panel);
    settings.page.productSite = files::webAddress(u"productSite"_s);
    settings.thumbnail.folder.prepend(destination);
    settings.large.folder.prepend(destination);
    return settings;
}

void cResponsiveDesign::warnOfSmallPictures(const GallerySettings& settings) const
{
    if (settings.largeSize > settings.thumbnailSize)
        return;
    m_surroundings.hAlertWindow(
        u"Sorry, some wrong properties"_s,
        u"- Lightbox images are smaller than your thumbnails. (Thumbnail size: %1)"_s.arg(
            settings.thumbnailSize
        )
    );
}

QString cResponsiveDesign::captionOf(const GallerySettings& settings, const QString& path) const
{
    if (!settings.page.showsMetadata)
        return {};
    return caption(
        settings.caption,
        platform::lastPathComponent(path),
        [&path](const QString& title) { return metadata::mMeta::hGetExifUc(path, title); },
        [this, &path](const QString& title) {
            return m_surroundings.meta.hGetSomeIPTC(path, title);
        }
    );
}

void cResponsiveDesign::writePages(
    const GallerySettings& settings,
    const QList<GalleryPicture>& pictures,
    const QString& destination
) const
{
    const int perPage = settings.columns * settings.rows;
    PageValues values = settings.page;
    values.pageCount = pageCount(static_cast<int>(pictures.size()), perPage);
    for (int number = 1; number <= values.pageCount; ++number) {
        const QList<GalleryPicture> ofPage
            = pictures.mid(static_cast<qsizetype>(number - 1) * perPage, perPage);
        writePage(galleryPage(values, ofPage), destination + pageName(values.baseName, number));
    }
}

void cResponsiveDesign::hCreateIndexRedirectHTML(
    const QString& baseName, const QString& destination
)
{
    writePage(redirectPage(baseName), destination + u"index.html"_s);
}

void cResponsiveDesign::hPhotoRatioCalc()
{
    panels::GalleryPanel& panel = m_surroundings.panel;
    const int width = platform::intValue(panel.tfSmallCropWidth.stringValue());
    if (const auto height = thumbnailHeight(panel.pubPhotoRatio.indexOfSelectedItem(), width))
        panel.tfSmallCropHeight.setStringValue(QString::number(*height));
}

void cResponsiveDesign::hPgAddMetaDataValue()
{
    panels::GalleryPanel& panel = m_surroundings.panel;
    QString sources = panel.tfPgMetaDataToShow.stringValue();
    if (!sources.isEmpty())
        sources += u';';
    panel.tfPgMetaDataToShow.setStringValue(sources + panel.pubPgMetaData.titleOfSelectedItem());
}

void cResponsiveDesign::hPgClearMetaDataValue()
{
    m_surroundings.panel.tfPgMetaDataToShow.setStringValue({});
}

void cResponsiveDesign::showTemplateOfPreset() const
{
    const int index = m_surroundings.panel.pubPhotoGalleryModel.indexOfSelectedItem();
    if (index >= 0 && index <= 3)
        m_surroundings.showPicture(u"Ex0%1XLpst.png"_s.arg(index + 1));
}

void cResponsiveDesign::registerActions(controls::ActionRegistry& actions)
{
    const QString className = u"cResponsiveDesign"_s;
    const auto calculate = [this](const auto&) { hPhotoRatioCalc(); };
    for (const QString& action :
         {u"hCallForPhotoRatioCalc"_s,
          u"notifPhotoRatioCalc"_s,
          u"controlTextDidEndEditing"_s,
          u"hPhotoRatioCalc"_s})
        actions.add(className, action, calculate);
    actions.add(className, u"hPgAddMetaDataValue"_s, [this](const auto&) {
        hPgAddMetaDataValue();
    });
    actions.add(className, u"hPgClearMetaDataValue"_s, [this](const auto&) {
        hPgClearMetaDataValue();
    });
    actions.add(className, u"closeAlertSheet"_s, [this](const auto&) {
        m_surroundings.closeAlert();
    });
}

} // namespace brenvaldo::gallery
