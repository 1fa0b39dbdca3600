// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch_rules.h"
#include "function_id.h"
#include "gui_controls.h"

#include <imaging/writer_rules.h>
#include <platform/foundation/numbers.h>
#include <platform/foundation/paths.h>
#include <platform/graphics/image_source.h>

#include <platform/containers/type_identifier.h>

namespace brenvaldo::workspace {

QStringList cGUIcontrols::takenByFullRule() const
{
    QStringList taken;
    for (const cCollectionViewItem& entry : m_photos.entries()) {
        if (entry.myRenameSelect > 0 || entry.myPhotoSelect <= 0)
            continue;
        const QString filter
            = applyOnFilter(m_panels.vwApplyOn.pubPhotoOrientation.indexOfSelectedItem());
        if (filter == u"ALL" || filter == entry.myPhotoOrientation)
            taken.append(entry.myPhotoDescription);
    }
    return taken;
}

QStringList cGUIcontrols::takenByTick() const
{
    QStringList taken;
    for (const cCollectionViewItem& entry : m_photos.entries()) {
        if (entry.myPhotoSelect > 0)
            taken.append(entry.myPhotoDescription);
    }
    return taken;
}

cGUIcontrols::OutputChoice cGUIcontrols::outputChoice() const
{
    const panels::FileTypePanel& panel = m_panels.vwFileType;
    return {
        .type = imaging::outputTypeForTitle(panel.pubFileType.titleOfSelectedItem()),
        .compressionLevel = panel.pubJPEGCompressionLevel.titleOfSelectedItem()};
}

QString cGUIcontrols::outputName(const QString& path) const
{
    const QString name = platform::lastPathComponent(path);
    const auto& chain = m_panels.vwWatermark.cActionsTWMArrayController.arrangedObjects();
    if (chain.isEmpty() || !m_subsystems.operations.hRenameTWMFile)
        return name;
    return m_subsystems.operations.hRenameTWMFile(path, name, chain);
}

cGUIcontrols::PhotoOutput cGUIcontrols::outputOf(
    const QString& path, const QString& destination, const OutputChoice& choice
) const
{
    const QString extension = platform::pathExtension(path);
    const QString fileUTI = platform::preferredTypeIdentifier(extension);
    return {
        .photo
        = {.source = path, .destinationBase = destinationBase(destination, outputName(path))},
        .tail
        = {.outputType = choice.type,
           .compressionLevel = choice.compressionLevel,
           .fileExtension = extension,
           .fileExtensionNSStr = {},
           .fileUTI = fileUTI,
           .myFileType = imaging::keepsOriginalType(choice.type) ? fileUTI : choice.type}};
}

void cGUIcontrols::runEditFunction(const QStringList& photos, const QString& destination)
{
    const int index = m_window.pubEditPhoto.indexOfSelectedItem();
    const FunctionRow* row = editFunctionAt(index);
    if (!row)
        return;
    if (index == 0)
        runWatermark(photos, destination);
    else
        runEach(row->id, photos, destination, photoRunAt(index));
}

void cGUIcontrols::runWatermark(const QStringList& photos, const QString& destination)
{
    const panels::WatermarkPanel& panel = m_panels.vwWatermark;
    const OutputChoice choice = outputChoice();
    const watermark::WatermarkRun run{
        .photos = photos,
        .destination = destination,
        .outputType = choice.type,
        .compressionLevel = choice.compressionLevel,
        .fileNameText = panel.tvFileName.stringValue(),
        .photoProperty = panel.pubFileNamePhotoProperties.indexOfSelectedItem()};
    const bool isText = panel.tbvWatermarkType.selectedLabel() == u"Text";
    const QLatin1String function = isText ? functionId::textWM : functionId::imageWM;
    const auto& operation = isText ? m_subsystems.operations.setWatermarkText
                                   : m_subsystems.operations.setWatermarkImage;
    if (operation) {
        operation(run, [&](const watermark::MarkedPhoto& photo) {
            record(function, {.source = photo.source, .target = photo.target, .word = photo.word});
        });
        return;
    }
    logNotBuilt(function);
    for (const QString& path : photos)
        record(function, {.source = path, .target = {}, .word = failedWord()});
}

void cGUIcontrols::runEach(
    const QLatin1String& function,
    const QStringList& photos,
    const QString& destination,
    const RunPhoto& runPhoto
)
{
    const OutputChoice choice = outputChoice();
    const double step = progressStep(photos.size());
    controls::RunningProgress bar = shownBar();
    for (const QString& path : photos) {
        bar.advance(step);
        if (bar.isAskedToEnd())
            return;
        const PhotoOutput output = outputOf(path, destination, choice);
        const auto word = runPhoto(output);
        if (!word)
            continue;
        const QString target = imaging::writtenPath(
            imaging::Writer::Batch, output.photo.destinationBase, output.tail.myFileType
        );
        record(function, {.source = path, .target = target, .word = *word});
    }
}

cGUIcontrols::RunPhoto cGUIcontrols::photoRunAt(int editIndex)
{
    const BatchOperations& operations = m_subsystems.operations;
    const auto plain = [editIndex](const BatchOperations::PhotoOperation& operation) -> RunPhoto {
        return [&operation, id = editFunctionAt(editIndex)->id](const PhotoOutput& output) {
            return wordOf(operation, id, output.photo, output.tail);
        };
    };
    switch (editIndex) {
    case 1:
        return [&operations, settings = tintSettings()](const PhotoOutput& output) {
            return wordOf(
                operations.addTintToImage2, functionId::addTint, output.photo, settings, output.tail
            );
        };
    case 2:
        return plain(operations.hAddFrame);
    case 3:
        return plain(operations.hAddRoundings);
    case 4:
        return plain(operations.convertColorSpace);
    case 5:
        return plain(operations.hGetListOfFaces);
    case 6:
        return plain(operations.hRotatePicture);
    case 7:
        return plain(operations.hAddFilter);
    case 8:
        return [this](const PhotoOutput& output) { return resized(output); };
    default:
        return [this](const PhotoOutput& output) { return cropped(output); };
    }
}

std::optional<QString> cGUIcontrols::resized(const PhotoOutput& output)
{
    if (m_panels.vwResizePhotos.pubScaleType.indexOfSelectedItem() == 0)
        return resizedToMaximum(output);
    return resizedToBox(output);
}

QString cGUIcontrols::resizedToMaximum(const PhotoOutput& output)
{
    const panels::ScaleMaxView& view = m_panels.vwResizePhotos.dvVCUiScaleMaxView;
    const int value = platform::wrapped32(view.tfScaleMaxVal.integerValue());
    if (value == 0)
        show(wrongValueMessage());
    return wordOf(
        m_subsystems.operations.hScalePhotosPercentage,
        functionId::resizePhotos,
        output.photo,
        value,
        view.pubScaleMaxType.indexOfSelectedItem(),
        output.tail
    );
}

std::optional<QString> cGUIcontrols::resizedToBox(const PhotoOutput& output)
{
    const panels::ScaleFixView& view = m_panels.vwResizePhotos.dvVCUiScaleFixView;
    const platform::PixelSize box{
        .width = platform::wrapped32(view.tfScaleFixWidth.integerValue()),
        .height = platform::wrapped32(view.tfScaleFixHeight.integerValue())};
    if (box.width == 0 || box.height == 0) {
        show(wrongSizeMessage());
        return std::nullopt;
    }
    return wordOf(
        m_subsystems.operations.hScalePhotosWidthAndHeight,
        functionId::resizePhotos,
        output.photo,
        box,
        view.cbScaleAspectRatio.state(),
        output.tail
    );
}

QString cGUIcontrols::cropped(const PhotoOutput& output) const
{
    const panels::CropPanel& panel = m_panels.vwCropPhotos;
    platform::PixelSize size{
        .width = platform::wrapped32(panel.dvVCUiCropWxHView.tfCropWidth.integerValue()),
        .height = platform::wrapped32(panel.dvVCUiCropWxHView.tfCropHeight.integerValue())};
    if (size.width == 0 || size.height == 0) {
        const auto source = platform::ImageSource::open(output.photo.source);
        size = source ? source->header().uprightSize : platform::PixelSize{};
    }
    const CropSettings settings{
        .size = size,
        .cutOff = panel.dvVCUiCropMinusView.tfCropCutOff.integerValue(),
        .xOffset = panel.dvVCUiCropPositionView.tfXcropOffset.integerValue(),
        .yOffset = panel.dvVCUiCropPositionView.tfYcropOffset.integerValue(),
        .anchor = panel.dvVCUiCropPositionView.scCropPosition.selectedSegment(),
        .cropType = panel.pubCropType.titleOfSelectedItem()};
    return wordOf(
        m_subsystems.operations.hCropPhotos,
        functionId::cropPhotos,
        output.photo,
        settings,
        output.tail
    );
}

TintSettings cGUIcontrols::tintSettings() const
{
    const panels::TintPanel& panel = m_panels.vwAddTint;
    return {
        .colour = panel.cwAddTint.color().withAlpha(1),
        .blendIndex = panel.pubAddTintRenderMethod.indexOfSelectedItem(),
        .duoToneState = panel.cbAddTintDuoTone.state(),
        .anchor = panel.scAddTintPosition.selectedSegment(),
        .xOffset = panel.tfAddTintPosX.integerValue(),
        .yOffset = panel.tfAddTintPosY.integerValue(),
        .sizeMode = panel.tbvFrameType.selectedLabel(),
        .width = panel.tfAddTintWidth.integerValue(),
        .height = panel.tfAddTintHeight.integerValue(),
        .originalSizeState = panel.cbAddTintOrigSize.state(),
        .percentage = panel.tfAddTintPercentage.integerValue(),
        .pixels = panel.tfAddTintPixels.integerValue(),
        .percentageMode = panel.pubAddTintPercentageOrient.indexOfSelectedItem(),
        .gradientState = panel.cbAddTintGradient.state(),
        .angleIndex = panel.pubAddTintAngle.indexOfSelectedItem(),
        .opacity = panel.tfAddTintOpacity.integerValue()};
}

} // namespace brenvaldo::workspace
