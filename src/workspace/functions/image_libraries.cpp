// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_libraries.h"

#include <files/file_handling.h>
#include <platform/codecs/drawing_file.h>
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>

#include <QFileInfo>

#include <algorithm>

namespace brenvaldo::workspace {

using platform::graphics::PixelSize;

namespace {

constexpr int watermarkLibrary = 1;
constexpr int lastFolder = 0;

QString watermarksKey() { return u"WatermarksDestination"_s; }

QString patternsKey() { return u"PatternsDestination"_s; }

const QStringList& chosenTypes()
{
    static const QStringList types{
        u"pdf"_s,
        u"png"_s,
        u"jpg"_s,
        u"jpeg"_s,
        u"svg"_s,
        u"tif"_s,
        u"tiff"_s,
        u"gif"_s,
        u"bmp"_s,
        u"jp2"_s,
        u"heic"_s,
        u"heif"_s,
        u"webp"_s};
    return types;
}

/// The size that an image is shown at in a well; none of them is larger.
PixelSize wellSize(PixelSize image)
{
    constexpr double longestSide = 1024;
    const double scale = std::min(1.0, longestSide / std::max(image.width, image.height));
    const auto scaled = [scale](int side) { return std::max(1, qRound(side * scale)); };
    return {.width = scaled(image.width), .height = scaled(image.height)};
}

/// The upright image, or more of it than a well shows; nothing for a file that is no image.
std::optional<platform::graphics::Image> openedImage(const QString& path)
{
    const auto source = platform::codecs::ImageSource::open(path);
    if (!source)
        return platform::codecs::openDrawing(path);
    return source->uprightImage({.atLeast = wellSize(source->header().uprightSize)});
}

/// Nothing for a file that is no image, or a damaged one.
std::optional<platform::graphics::Image> wellPicture(const QString& path)
{
    const auto image = openedImage(path);
    if (!image)
        return std::nullopt;
    const PixelSize size = wellSize(image->pixelSize());
    return (image->pixelSize() == size ? *image : image->scaledTo(size)).copiedToMemory();
}

bool isSameFile(const QString& first, const QString& second)
{
    const QString canonical = QFileInfo(first).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(second).canonicalFilePath();
}

/// A file that lies in the library already stays.
void copyInto(const QString& folder, const QString& path)
{
    const QString target
        = platform::appendingPathComponent(folder, platform::lastPathComponent(path));
    if (!isSameFile(path, target))
        (void)files::cNSFileHandling::hCopyFileTo({.source = path, .target = target});
}

} // namespace

ImageLibraries::ImageLibraries(Links links)
    : m_links(std::move(links))
{
}

void ImageLibraries::registerActions(controls::ActionRegistry& actions)
{
    const QString watermark = u"DVWatermark"_s;
    const QString gui = u"cGUIcontrols"_s;
    panels::WatermarkPanel& marks = m_links.panels.vwWatermark;
    panels::GalleryPanel& gallery = m_links.panels.vwHtmlExport;
    addWell(
        actions,
        {watermark, u"hChooseWatermarkImage"_s, u"hDropWatermarkImage"_s},
        {marks.tfWaterMarkImageFilePath, marks.iwWaterMarkImage, marks.pubImageLookUp}
    );
    addWell(
        actions,
        {gui, u"hTbChoosePatternImage"_s, u"hTbDropPatternImage"_s},
        {gallery.tfTbPatternImageFilePath, gallery.iwTbPatternImage, gallery.pubTbImageLookUp}
    );
    addWell(
        actions,
        {gui, u"hSsChoosePatternImage"_s, u"hSsDropPatternImage"_s},
        {gallery.tfSsPatternImageFilePath, gallery.iwSsPatternImage, gallery.pubSsImageLookUp}
    );
    addWell(
        actions,
        {gui, u"hRgChoosePatternImage"_s, u"hRgDropPatternImage"_s},
        {gallery.tfRgPatternImageFilePath, gallery.iwRgPatternImage, gallery.pubRgImageLookUp}
    );
    for (const QString& className : {watermark, gui}) {
        actions.add(className, u"hImportWatermarkImages"_s, [this](const controls::Sender&) {
            import({watermarksKey(), u"*** Choose your watermark image please ***"_s});
        });
        actions.add(className, u"hImportPatternImages"_s, [this](const controls::Sender&) {
            import({patternsKey(), u"*** Choose your pattern image please ***"_s});
        });
    }
}

void ImageLibraries::addWell(
    controls::ActionRegistry& actions, const WellActions& names, const ChosenImage& image
)
{
    actions.add(names.className, names.choose, [this, image](const controls::Sender&) {
        choose(image);
    });
    actions.add(names.className, names.drop, [this, image](const controls::Sender&) {
        show(image, image.well.droppedFile());
    });
}

void ImageLibraries::choose(const ChosenImage& image) const
{
    controls::OpenPanel panel{.allowedTypes = chosenTypes()};
    const int place = image.lookUp.indexOfSelectedItem();
    if (place != lastFolder)
        panel.startFolder
            = m_links.defaults.text(place == watermarkLibrary ? watermarksKey() : patternsKey());
    const auto answer = m_links.chooser.open(panel);
    if (answer && !answer->isEmpty())
        show(image, answer->first());
}

void ImageLibraries::show(const ChosenImage& image, const QString& path) const
{
    image.path.setStringValue(path);
    image.well.setImage(wellPicture(path));
    m_links.notifications.post(u"btnChooseWatermarkImageEntred"_s);
}

void ImageLibraries::import(const Library& library) const
{
    if (!isReady(library))
        m_links.setLibraryDestination();
    const auto answer = m_links.chooser.open(
        {.message = library.message,
         .allowsMultipleSelection = true,
         .allowedTypes = {u"png"_s, u"jpg"_s, u"jpeg"_s}}
    );
    const QString folder = m_links.defaults.text(library.key);
    if (!answer || folder.isEmpty())
        return;
    for (const QString& path : *answer)
        copyInto(folder, path);
}

bool ImageLibraries::isReady(const Library& library) const
{
    const QString folder = m_links.defaults.text(library.key);
    return QFileInfo::exists(folder) && m_links.defaults.value(u"SupportFilesDestination"_s);
}

} // namespace brenvaldo::workspace
