// SPDX-License-Identifier: GPL-3.0-or-later
#include "run_offer.h"

#include "function_id.h"
#include "function_table.h"

#include <algorithm>
#include <array>

namespace brenvaldo::workspace {

namespace {

/// A function that does its work by buttons of its own panel.
struct OwnButton
{
    QLatin1String function;
    QLatin1String action;
    RunOffer offer;
};

constexpr std::array ownButtons{
    OwnButton{functionId::manSort, QLatin1String("hCopyFileToFolder"), RunOffer::Nothing},
    OwnButton{functionId::batchSort, QLatin1String("hSortFiles"), RunOffer::Message},
    OwnButton{functionId::batchQR, QLatin1String("hGenerateCode"), RunOffer::Message},
};

template <class Operation>
bool isThere(const BatchOperations& operations, Operation BatchOperations::*operation)
{
    return static_cast<bool>(operations.*operation);
}

bool hasOperation(const QString& function, const BatchOperations& operations)
{
    using All = BatchOperations;
    struct Row
    {
        QLatin1String function;
        bool isThere;
    };
    const std::array rows{
        Row{functionId::textWM, isThere(operations, &All::setWatermarkText)},
        Row{functionId::imageWM, isThere(operations, &All::setWatermarkImage)},
        Row{functionId::addTint, isThere(operations, &All::addTintToImage2)},
        Row{functionId::framing, isThere(operations, &All::hAddFrame)},
        Row{functionId::roundings, isThere(operations, &All::hAddRoundings)},
        Row{functionId::profileConversion, isThere(operations, &All::convertColorSpace)},
        Row{functionId::faces, isThere(operations, &All::hGetListOfFaces)},
        Row{functionId::rotatePhotos, isThere(operations, &All::hRotatePicture)},
        Row{functionId::filters, isThere(operations, &All::hAddFilter)},
        Row{functionId::resizePhotos, isThere(operations, &All::hScalePhotosPercentage)},
        Row{functionId::cropPhotos, isThere(operations, &All::hCropPhotos)},
        Row{functionId::batchUploadPhotos, isThere(operations, &All::uploadToPhotos)},
        Row{functionId::batchExifUC, isThere(operations, &All::hSetExifData)},
        Row{functionId::fileRenaming, isThere(operations, &All::hGetRenamePropertyValues)},
        Row{functionId::batchFileConvert, isThere(operations, &All::hConvertFileType)},
        Row{functionId::htmlExport, isThere(operations, &All::hCreateResponsiveHTML)},
    };
    return std::any_of(rows.begin(), rows.end(), [&](const Row& row) {
        return row.isThere && function == row.function;
    });
}

QString editFunction(const panels::Panels& panels)
{
    const FunctionRow* row = editFunctionAt(panels.window.pubEditPhoto.indexOfSelectedItem());
    if (!row)
        return {};
    const bool isImageTab = panels.vwWatermark.tbvWatermarkType.selectedLabel() != u"Text";
    return row->id == functionId::textWM && isImageTab ? functionId::imageWM : row->id;
}

QString fileManagementFunction(const panels::Panels& panels)
{
    const FunctionRow* row
        = fileManagementFunctionAt(panels.window.pubFileManagementSelect.indexOfSelectedItem());
    if (!row)
        return {};
    if (row->id != functionId::manSort)
        return row->id;
    const QString& tab = panels.vwFileManagementSorting.mySortTabView.selectedIdentifier();
    if (tab == u"1")
        return functionId::manSort;
    return tab == u"2" ? functionId::batchSort : functionId::batchUploadPhotos;
}

} // namespace

QString shownFunction(const panels::Panels& panels)
{
    const QStringList& section = panels.window.dvVCUiMainPropertySelect.views();
    if (section.contains(panels.window.pubEditPhoto.name()))
        return editFunction(panels);
    if (section.contains(panels.window.pubFileManagementSelect.name()))
        return fileManagementFunction(panels);
    return functionId::htmlExport;
}

RunOffer runOffer(
    const QString& function,
    const BatchOperations& operations,
    const controls::ActionRegistry& actions
)
{
    for (const OwnButton& button : ownButtons) {
        if (function == button.function)
            return actions.knows(button.action) ? button.offer : RunOffer::ComesLater;
    }
    return hasOperation(function, operations) ? RunOffer::Run : RunOffer::ComesLater;
}

} // namespace brenvaldo::workspace
