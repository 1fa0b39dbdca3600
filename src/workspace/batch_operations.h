// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <imaging/output_tail.h>
#include <platform/graphics/color.h>
#include <platform/graphics/geometry.h>
#include <watermark/dv_watermark.h>

#include <QString>
#include <QStringList>

#include <functional>

/// \file
/// The operations that a run of the batch driver calls, one entry a function. An empty entry is a
/// function that is still to come: its photos fail.

namespace brenvaldo::workspace {

/// The settings of a tint, in the order in which the operation takes them.
struct TintSettings
{
    platform::Color colour;
    int blendIndex = 0;
    int duoToneState = 0;
    int anchor = 0;
    std::int64_t xOffset = 0;
    std::int64_t yOffset = 0;
    QString sizeMode;
    std::int64_t width = 0;
    std::int64_t height = 0;
    int originalSizeState = 0;
    std::int64_t percentage = 0;
    std::int64_t pixels = 0;
    int percentageMode = 0;
    int gradientState = 0;
    int angleIndex = 0;
    std::int64_t opacity = 0;
};

/// The settings of a crop, in the order in which the operation takes them.
struct CropSettings
{
    platform::PixelSize size;
    std::int64_t cutOff = 0;
    std::int64_t xOffset = 0;
    std::int64_t yOffset = 0;
    int anchor = 0;
    QString cropType; ///< title of `pubCropType`
};

/// What became of one photo of a run.
struct PhotoOutcome
{
    QString source;
    QString target; ///< path that was to be written; empty when there is none
    QString word;
};

struct Conversion
{
    QString source;
    QString typeIdentifier;
    QString compressionLevel;
    QString target; ///< whole path
};

/// One photo for the photo library.
struct PhotoUpload
{
    QString path;
    QString album;
    QString keyword;
    QString title;
    QString description;
    QString favourite; ///< "1" or "0"
};

/// One photo of a renaming run, or one press of "add to the chain".
struct RenameRequest
{
    QString path;
    QString function; ///< "RenamingFunction" or "CActionFunction"
    int previewState = 0; ///< 1: a dry run
    int index = 0; ///< of the entry in the photo list
};

struct BatchOperations
{
    /// Answers the result word.
    using PhotoOperation
        = std::function<QString(const imaging::SourceAndBase&, const imaging::OutputTail&)>;
    /// Loops over the photos by itself.
    using WatermarkOperation
        = std::function<void(const watermark::WatermarkRun&, const watermark::PhotoDone&)>;

    WatermarkOperation setWatermarkText = {};
    WatermarkOperation setWatermarkImage = {};
    std::function<
        QString(const imaging::SourceAndBase&, const TintSettings&, const imaging::OutputTail&)>
        addTintToImage2 = {};
    PhotoOperation hAddFrame = {};
    PhotoOperation hAddRoundings = {};
    PhotoOperation convertColorSpace = {};
    PhotoOperation hGetListOfFaces = {};
    PhotoOperation hRotatePicture = {};
    PhotoOperation hAddFilter = {};
    /// Takes the value and the index of `pubScaleMaxType`.
    std::function<
        QString(const imaging::SourceAndBase&, int value, int maximumType, const imaging::OutputTail&)>
        hScalePhotosPercentage = {};
    /// Takes the box and the state of `cbScaleAspectRatio`.
    std::function<
        QString(const imaging::SourceAndBase&, platform::PixelSize box, int aspectState, const imaging::OutputTail&)>
        hScalePhotosWidthAndHeight = {};
    std::function<
        QString(const imaging::SourceAndBase&, const CropSettings&, const imaging::OutputTail&)>
        hCropPhotos = {};

    std::function<QString(const Conversion&)> hConvertFileType = {};
    std::function<QString(const PhotoUpload&)> uploadToPhotos = {};
    /// Takes path, comment and the state of `cbClearBeforeAdd`.
    std::function<QString(const QString&, const QString&, int)> hSetExifData = {};
    std::function<QString(const RenameRequest&)> hGetRenamePropertyValues = {};
    /// The new name of a photo: its path, its name, and the rows of the chain of actions.
    std::function<QString(const QString&, const QString&, const QList<QStringList>&)> hRenameTWMFile
        = {};
    /// Builds a gallery of the photos into the folder.
    std::function<void(const QStringList& photos, const QString& destination)> hCreateResponsiveHTML
        = {};
};

} // namespace brenvaldo::workspace
