// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gallery_settings.h"

#include <controls/action_registry.h>
#include <controls/progress.h>
#include <imaging/picture_sink.h>
#include <metadata/mmeta.h>
#include <platform/storage/desktop.h>

#include <QStringList>

#include <functional>
#include <optional>

namespace brenvaldo::gallery {

/// Makes a folder of web pages out of the photo list: thumbnails in a grid, each of which opens its
/// large picture, on numbered pages with one stylesheet.
class cResponsiveDesign
{
public:
    struct Surroundings
    {
        panels::GalleryPanel& panel;
        controls::ProgressIndicator& bar;
        imaging::DVImageHandling& imageHandling;
        metadata::mMeta& meta;
        platform::storage::Desktop& desktop;
        /// Paths of the ticked entries of the photo list, in its order.
        std::function<QStringList()> tickedPhotos;
        std::function<void(const QString& title, const QString& text)> hAlertWindow;
        std::function<void()> closeAlert;
        /// Shows a picture of the program's resources in the preview.
        std::function<void(const QString& name)> showPicture;
    };

    explicit cResponsiveDesign(Surroundings surroundings);

    /// Makes the gallery in the folder `destination`, which ends in "/", and opens its first page.
    ///
    /// Photos that fill their pages exactly give no page but the one that leads to them.
    void hCreateResponsiveHTML(const QString& destination, imaging::PictureSink& sink);

    /// Writes "index.html", which leads to the first page.
    static void hCreateIndexRedirectHTML(const QString& baseName, const QString& destination);

    /// The height of a thumbnail follows its width, by the chosen ratio.
    void hPhotoRatioCalc();

    /// Adds the chosen source to those of the captions.
    void hPgAddMetaDataValue();
    void hPgClearMetaDataValue();

    /// Shows the picture of the template that a preset has chosen.
    void showTemplateOfPreset() const;

    void registerActions(controls::ActionRegistry& actions);

private:
    struct Run
    {
        imaging::PictureSink& sink;
        controls::RunningProgress& progress;
    };

    [[nodiscard]] GallerySettings settingsFor(const QString& destination) const;
    /// Hands the pictures of each photo to the sink; nothing when the run is asked to end.
    [[nodiscard]] std::optional<QList<GalleryPicture>>
    takePictures(const QStringList& photos, const GallerySettings& settings, const Run& run) const;
    void warnOfSmallPictures(const GallerySettings& settings) const;
    [[nodiscard]] QString captionOf(const GallerySettings& settings, const QString& path) const;
    void writePages(
        const GallerySettings& settings,
        const QList<GalleryPicture>& pictures,
        const QString& destination
    ) const;

    Surroundings m_surroundings;
};

} // namespace brenvaldo::gallery
