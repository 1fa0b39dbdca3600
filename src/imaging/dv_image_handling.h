// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "crop_rules.h"
#include "frame_settings.h"
#include "output_tail.h"
#include "picture_to_save.h"
#include "rounding_settings.h"
#include "tint_settings.h"

#include <platform/containers/metadata_blocks.h>
#include <platform/graphics/color.h>
#include <platform/graphics/image.h>

#include <QImage>
#include <QPoint>
#include <QString>
#include <QUrl>

#include <optional>
#include <vector>

namespace brenvaldo::platform::drawing {
class AttributedText;
}

namespace brenvaldo::imaging {

struct RotateSettings;

/// Where faces are in an upright picture, in the order of their numbers.
using FaceFinder
    = std::vector<platform::graphics::PixelRect> (*)(const platform::graphics::Image& picture);

/// The image operations: access to photos, sizes and resolutions, the writers, and the operations
/// on single photos.
///
/// Sizes and coordinates are pixels, angles degrees counter-clockwise. An object lives for a run or
/// a preview; what it keeps from photo to photo is told at the operations.
class DVImageHandling
{
public:
    /// Opens a photo upright, its orientation applied; nothing when it can't be read.
    [[nodiscard]] static std::optional<platform::graphics::Image> hNSURLtoCIImage(const QUrl& url);

    /// Opens the stored pixels of a photo, its orientation not applied; nothing when it can't be
    /// read.
    [[nodiscard]] static std::optional<platform::graphics::Image>
    hStringToCGImageRef(const QString& path);

    /// The picture at one pixel a point, 72 dots per inch.
    [[nodiscard]] static platform::graphics::Image
    imageFromCGImageRef(const platform::graphics::Image& image);

    /// The pixels of a picture, whatever its size in points.
    [[nodiscard]] static platform::graphics::Image
    nsImageToCGImageRef(const platform::graphics::Image& image);

    /// The picture evaluated once and for all, its pixels in memory; nothing when it is damaged.
    [[nodiscard]] static std::optional<platform::graphics::Image>
    ciimageFromNSImage(const platform::graphics::Image& image);

    /// Upright size of the photo at `path`; 0 by 0 when it can't be read.
    [[nodiscard]] static platform::graphics::PixelSize hGetImgPixelSize(const QString& path);

    /// Size of a picture in hand; 0 by 0 for none.
    [[nodiscard]] static platform::graphics::PixelSize
    hGetCIImgPixelSize(const std::optional<platform::graphics::Image>& image);

    /// Upright size as text: "4000px x 3000px (w x h)".
    [[nodiscard]] static QString hGetPixelSize(const QString& path);

    /// Reads the dots per inch, rounded up, into `currentDPI()`; NaN for an unreadable photo.
    double hGetImgResolution(const QString& path);
    double hGetNSImgResolution(const platform::graphics::Image& image);

    /// The last resolution read; 0 before the first.
    [[nodiscard]] double currentDPI() const { return m_currentDPI; }

    /// The same pixels at a size in points of whole numbers; a resolution that is not above 0
    /// changes nothing.
    ///
    /// The picture's resolution follows from its width; the height in points is that of
    /// `pointsAtResolution`.
    [[nodiscard]] static platform::graphics::Image
    convertImageResolution(const platform::graphics::Image& image, double dotsPerInch);

    /// A byte count for people: "1.50MB". Above 1024 TB the look-up of a unit fails with a range
    /// error.
    [[nodiscard]] static QString hNSFileSizeToHumanNotification(double bytes);

    /// Writer of the batch operations. Replaces an existing file without a question; a failure
    /// leaves what stood there.
    static ResultWord hSaveToNewImageFileX(const PictureToSave& picture);

    /// Writer of the watermark runs: as `hSaveToNewImageFileX`, but HEIC is an unknown type.
    static ResultWord hSaveToNewImageFileMPR(const PictureToSave& picture);

    /// Writer of the quick edits and of the gallery: takes the whole path and the platform's
    /// default quality.
    static ResultWord hSaveToNewImageFile(const PictureToSave& picture);

    struct PixelTexts
    {
        QString width;
        QString height;
    };

    /// Puts the texts in the places of "<[IMGW]>" and "<[IMGH]>"; all other tokens stay.
    [[nodiscard]] static QString
    hFileNamePrePostFixConstruct(const QString& nameTemplate, const PixelTexts& texts);

    /// Resizes a photo by one number, the maximum mode; `maximumType` is an index of
    /// `pubScaleMaxType`.
    ///
    /// A size that nothing can be drawn at (a value of 0, an unreadable photo) writes nothing and
    /// answers "OK"; a Photoshop or PDF file that would keep its type is not supported.
    [[nodiscard]] static Outcome hScalePhotosPercentage(
        const SourceAndBase& photo, int value, int maximumType, const OutputTail& tail
    );

    /// Resizes a photo to `box`, the fixed mode; with an `aspectState` of 1 the photo covers the
    /// box and the excess is cut off, otherwise it is stretched.
    ///
    /// A size that nothing can be drawn at writes nothing and answers the word of the photo before.
    [[nodiscard]] Outcome hScalePhotosWidthAndHeight(
        const SourceAndBase& photo,
        platform::graphics::PixelSize box,
        int aspectState,
        const OutputTail& tail
    );

    /// Lays a tint over the stored pixels of a photo.
    ///
    /// An anchor that is none takes the origin of the area before; (0, 0) at first.
    [[nodiscard]] Outcome addTintToImage2(
        const SourceAndBase& photo, const TintSettings& settings, const OutputTail& tail
    );

    /// The picture that `addTintToImage2` makes of a photo with those stored pixels.
    [[nodiscard]] platform::graphics::Image
    addTintToImage2Preview(const platform::graphics::Image& photo, const TintSettings& settings);

    /// The picture at `factor` (0.5 is half) of its size in points, at one pixel a point; nothing
    /// when no pixel is left. A negative factor also turns it upside down.
    [[nodiscard]] static std::optional<platform::graphics::Image>
    hScalePictureBase(const platform::graphics::Image& image, float factor);

    /// Cuts a rectangle out of a photo, whose orientation is applied. What lies outside of the
    /// photo is left out; a rectangle that is all outside fails in the writer.
    ///
    /// An anchor that there is not leaves the place where the object had it last.
    [[nodiscard]] Outcome
    hCropPhotos(const SourceAndBase& photo, const CropSettings& settings, const OutputTail& tail);

    /// A transparent picture, as large as the upright photo at `path`, with the outline of the
    /// rectangle; nothing when the photo can't be read.
    [[nodiscard]] std::optional<platform::graphics::Image>
    hCropPhotosPreview(const QString& path, const CropSettings& settings);

    /// A crop of a gallery's picture.
    struct GalleryCrop
    {
        platform::graphics::PixelSize size;
        QString kind
            = {}; ///< "myCropThumb" takes the offset of thumbnails, any other that of big ones
        int anchor = 0;
        CropOffset thumbnailOffset = {};
        CropOffset bigOffset = {};
    };

    /// Cuts a rectangle out of the stored pixels of the photo at `path` and writes it under its
    /// name into `folder`, which ends in "/".
    ///
    /// "Not Supported" for Photoshop and PDF files; "OK", and nothing written, when there is no
    /// file.
    ResultWord cropImage9(const QString& path, const QString& folder, const GalleryCrop& crop);

    /// The part of a picture that `cropImage9` cuts out; nothing when it lies outside.
    [[nodiscard]] std::optional<platform::graphics::Image>
    galleryCut(const platform::graphics::Image& picture, const GalleryCrop& crop);

    /// Resizes the stored pixels of the photo at `path` by the rule of `gallerySize` and writes it
    /// under its name into `folder`, which ends in "/".
    ///
    /// "Not Supported" for Photoshop and PDF files; "OK", and nothing written, at a size that
    /// nothing can be drawn at. A type that there is not takes the size before.
    ResultWord
    resizeImageResponsiveDesign(const QString& path, int value, int type, const QString& folder);

    /// Turns a photo's stored pixels. Corners that become free are transparent; on a canvas the
    /// picture is 8-bit sRGB with an alpha, all of it opaque.
    [[nodiscard]] static Outcome hRotatePicture(
        const SourceAndBase& photo, const RotateSettings& settings, const OutputTail& tail
    );

    /// The same picture of a photo with those stored pixels; nothing when there is none.
    [[nodiscard]] static std::optional<platform::graphics::Image>
    hRotatePicturesPreview(const platform::graphics::Image& photo, const RotateSettings& settings);

    /// Turns the photo at `path` by `angle` degrees and writes it under its name into `folder`,
    /// which ends in "/" and may be the photo's own.
    ///
    /// Works on stored pixels. Free corners are transparent where the photo has alpha. Nothing when
    /// the photo can't be read.
    std::optional<ResultWord>
    hRotatePicture(const QString& path, const QString& folder, float angle);

    /// Mirrors the photo left to right, otherwise as `hRotatePicture`; "Not Supported" for
    /// Photoshop and PDF files.
    std::optional<ResultWord> hFlipHorizontalPicture(const QString& path, const QString& folder);

    /// Mirrors the photo top to bottom.
    std::optional<ResultWord> hFlipVerticalPicture(const QString& path, const QString& folder);

    /// The picture turned by `angle` degrees on a transparent canvas that just holds it, at one
    /// pixel a point; nothing when no pixel is left.
    [[nodiscard]] static std::optional<platform::graphics::Image>
    hRotatePictureBase(const platform::graphics::Image& image, float angle);

    /// Draws a frame inside or around the stored pixels of a photo.
    ///
    /// A frame type that is neither answers the word of the photo before. Around a photo an opacity
    /// that is no percentage takes the last one of the object; 0 at first.
    [[nodiscard]] Outcome
    hAddFrame(const SourceAndBase& photo, const FrameSettings& settings, const OutputTail& tail);

    /// The picture of `hAddFrame` for a photo with those stored pixels at the opacity of
    /// `shownOpacity`; nothing without a frame type.
    [[nodiscard]] std::optional<platform::graphics::Image>
    hAddFramePreview(const platform::graphics::Image& photo, const FrameSettings& settings);

    /// The picture with a frame inside, as `hAddFramePreview` draws it, at one pixel a point; the
    /// frame type is not asked for.
    [[nodiscard]] static platform::graphics::Image peeAddBorderToImageInside(
        const platform::graphics::Image& image, const FrameSettings& settings
    );

    /// Draws a line along the edge of the photo at `path` and replaces the file; half of `width`
    /// pixels falls on the picture.
    ResultWord
    addBorderToImage2(const QString& path, const platform::graphics::Color& color, double width);

    /// The picture with the line of `addBorderToImage2` along its edge.
    [[nodiscard]] static platform::graphics::Image withEdgeLine(
        const platform::graphics::Image& picture,
        const platform::graphics::Color& color,
        double width
    );

    /// Cuts the stored pixels of a photo to a rounded shape, with a border and a background as the
    /// settings tell: 8-bit sRGB with alpha.
    [[nodiscard]] Outcome hAddRoundings(
        const SourceAndBase& photo, const RoundingSettings& settings, const OutputTail& tail
    );

    /// The picture of `hAddRoundings` for a photo with those stored pixels; nothing when there is
    /// none.
    [[nodiscard]] std::optional<platform::graphics::Image>
    hAddRoundingsPreview(const platform::graphics::Image& photo, const RoundingSettings& settings);

    /// Cuts out each face of a photo, for files "f1_" and the output name, "f2_" and so on.
    ///
    /// Faces are looked for in the upright picture and cut from the stored pixels: a photo that is
    /// stored turned is cut elsewhere. The word is that of the last face; without a face nothing is
    /// written and the word is that of the picture before.
    [[nodiscard]] static Outcome
    hGetListOfFaces(const SourceAndBase& photo, FaceFinder findFaces, const OutputTail& tail);

    /// The path without extension that a face is written to; `number` counts from 1.
    [[nodiscard]] static QString faceBase(const QString& destinationBase, int number);

    /// The text layer as a relief, lit by `texture` ("texture1" to "texture8"); as large and as
    /// opaque as the layer. "texture6" is the ball of `h3DcolorEffect` in `color`.
    ///
    /// The relief always has the filters' own default height: `scale` is set before the defaults
    /// are, and so is without effect.
    [[nodiscard]] static QImage embossTextWatermarkEffect(
        const QImage& layer,
        const QString& texture,
        const platform::graphics::Color& color,
        float scale
    );

    /// A ball of 134 by 134 pixels, black at its rim and `color` at its highlight.
    [[nodiscard]] static QImage h3DcolorEffect(const platform::graphics::Color& color);

    /// A text in `color` on a ground that fills the text's measured size; null for an empty text.
    [[nodiscard]] static QImage imageWithAttributedString(
        const platform::drawing::AttributedText& text,
        const platform::graphics::Color& color,
        const platform::graphics::Color& ground
    );

    /// Saves what an operation answered, where that is a picture; the photo's word.
    ResultWord finish(const Outcome& outcome);

    /// The photo's word when its picture, if it has one, was saved with the word `saved`.
    ResultWord finish(const Outcome& outcome, ResultWord saved);

    /// The result word of the last save; "Failed" before the first. Watermarks and conversions,
    /// which have writers of their own, leave it.
    [[nodiscard]] ResultWord storeResult() const { return m_storeResult; }

private:
    /// The part of `photo` at the place of the anchor, or at the last one for an anchor that there
    /// is not.
    [[nodiscard]] std::optional<platform::graphics::Image> cutOut(
        const platform::graphics::Image& photo,
        const std::optional<QPoint>& origin,
        platform::graphics::PixelSize size
    );

    std::optional<ResultWord>
    flipPicture(const QString& path, const QString& folder, platform::graphics::Image::Axis axis);

    [[nodiscard]] platform::graphics::Image
    tinted(const platform::graphics::Image& photo, const TintSettings& settings);

    double m_currentDPI = 0;
    QPoint m_origin; ///< of the last part cut, outlined or tinted, as that operation counts it
    platform::graphics::PixelSize m_gallerySize; ///< of the last resizing for a gallery
    double m_frameOpacity = 0; ///< of the last frame, border or tint, from 0 to 1
    ResultWord m_storeResult = ResultWord::Failed;
};

} // namespace brenvaldo::imaging
