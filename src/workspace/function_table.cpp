// SPDX-License-Identifier: GPL-3.0-or-later
#include "function_table.h"

#include "function_id.h"

#include <array>

namespace brenvaldo::workspace {

namespace {

using enum HolderChange;

constexpr HolderPlan withPreview(QLatin1String mainView)
{
    return {mainView, Fill, Fill, Fill, Fill};
}

constexpr HolderPlan withoutPreview(QLatin1String mainView)
{
    return {mainView, Empty, Fill, Fill, Fill};
}

constexpr FunctionRow editRow(QLatin1String id, const HolderPlan& holders)
{
    return {id, holders, PresetButtons::Show};
}

constexpr std::array editFunctions{
    editRow(functionId::textWM, withPreview(QLatin1String("vwWatermark"))),
    editRow(functionId::addTint, withPreview(QLatin1String("vwAddTint"))),
    editRow(functionId::framing, withPreview(QLatin1String("vwFraming"))),
    editRow(functionId::roundings, withPreview(QLatin1String("vwRoundings"))),
    editRow(
        functionId::profileConversion,
        {QLatin1String("vwProfileConversion"), Fill, Fill, LeaveAsItWas, LeaveAsItWas}
    ),
    editRow(functionId::faces, withoutPreview(QLatin1String("vwCopyFaces"))),
    editRow(functionId::rotatePhotos, withPreview(QLatin1String("vwRotatePhotos"))),
    editRow(functionId::filters, withPreview(QLatin1String("vwFilterPhotos"))),
    editRow(functionId::resizePhotos, withoutPreview(QLatin1String("vwResizePhotos"))),
    editRow(functionId::cropPhotos, withPreview(QLatin1String("vwCropPhotos"))),
};

constexpr std::array<FunctionRow, 5> fileManagementFunctions{{
    {functionId::manSort,
     {QLatin1String("vwFileManagementSorting"), Empty, Empty, Empty, Empty},
     PresetButtons::Show},
    {functionId::batchExifUC,
     {QLatin1String("vwFileManagementEXIF"), Empty, Empty, Empty, Empty},
     PresetButtons::LeaveAsTheyWere},
    {functionId::fileRenaming,
     {QLatin1String("vwFileManagementRename"), Fill, Empty, Empty, Fill},
     PresetButtons::Show},
    {functionId::batchFileConvert,
     {QLatin1String("vwFileManagementConvert"), Empty, Empty, Fill, Fill},
     PresetButtons::Hide},
    {functionId::batchQR,
     {QLatin1String("vwQRBarCode"), Empty, Empty, Empty, Fill},
     PresetButtons::Show},
}};

struct TagRange
{
    int first;
    QLatin1String id;
};

constexpr std::array tagRanges{
    TagRange{400, functionId::addTint},
    TagRange{300, functionId::imageWM},
    TagRange{200, functionId::textWM},
    TagRange{151, functionId::framing},
    TagRange{101, functionId::roundings},
    TagRange{81, functionId::rotatePhotos},
    TagRange{71, functionId::cropPhotos},
    TagRange{51, functionId::filters},
};

template <class Rows>
const FunctionRow* rowAt(const Rows& rows, int index)
{
    if (index < 0 || index >= static_cast<int>(rows.size()))
        return nullptr;
    return &rows.at(static_cast<std::size_t>(index));
}

} // namespace

const FunctionRow* editFunctionAt(int index) { return rowAt(editFunctions, index); }

const FunctionRow* fileManagementFunctionAt(int index)
{
    return rowAt(fileManagementFunctions, index);
}

std::optional<QLatin1String> functionOfFieldTag(int tag)
{
    for (const TagRange& range : tagRanges) {
        if (tag >= range.first)
            return range.id;
    }
    return std::nullopt;
}

} // namespace brenvaldo::workspace
