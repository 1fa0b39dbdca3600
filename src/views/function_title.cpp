// SPDX-License-Identifier: GPL-3.0-or-later
#include "function_title.h"

#include <workspace/function_id.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace brenvaldo::views {

namespace {

namespace id = workspace::functionId;

struct Title
{
    QLatin1String function;
    const char* text;
};

constexpr std::array titles{
    Title{id::textWM, QT_TRANSLATE_NOOP("FunctionTitle", "Text watermark")},
    Title{id::imageWM, QT_TRANSLATE_NOOP("FunctionTitle", "Image watermark")},
    Title{id::addTint, QT_TRANSLATE_NOOP("FunctionTitle", "Tint")},
    Title{id::framing, QT_TRANSLATE_NOOP("FunctionTitle", "Frame")},
    Title{id::roundings, QT_TRANSLATE_NOOP("FunctionTitle", "Rounded corners")},
    Title{id::profileConversion, QT_TRANSLATE_NOOP("FunctionTitle", "Colour profile")},
    Title{id::faces, QT_TRANSLATE_NOOP("FunctionTitle", "Cut out faces")},
    Title{id::rotatePhotos, QT_TRANSLATE_NOOP("FunctionTitle", "Rotate")},
    Title{id::filters, QT_TRANSLATE_NOOP("FunctionTitle", "Filters")},
    Title{id::resizePhotos, QT_TRANSLATE_NOOP("FunctionTitle", "Resize")},
    Title{id::cropPhotos, QT_TRANSLATE_NOOP("FunctionTitle", "Crop")},
    Title{id::batchUploadPhotos, QT_TRANSLATE_NOOP("FunctionTitle", "Upload")},
    Title{id::batchExifUC, QT_TRANSLATE_NOOP("FunctionTitle", "EXIF and IPTC")},
    Title{id::fileRenaming, QT_TRANSLATE_NOOP("FunctionTitle", "Rename files")},
    Title{QLatin1String("hRotateRight"), QT_TRANSLATE_NOOP("FunctionTitle", "Rotate right")},
    Title{QLatin1String("hRotateLeft"), QT_TRANSLATE_NOOP("FunctionTitle", "Rotate left")},
    Title{QLatin1String("hFlipHorizontal"), QT_TRANSLATE_NOOP("FunctionTitle", "Flip")},
    Title{QLatin1String("hFlipVertical"), QT_TRANSLATE_NOOP("FunctionTitle", "Flip")},
    Title{id::batchFileConvert, QT_TRANSLATE_NOOP("FunctionTitle", "Convert file type")},
};

} // namespace

QString functionTitle(const QString& function)
{
    const auto found = std::find_if(titles.begin(), titles.end(), [&](const Title& title) {
        return function == title.function;
    });
    if (found == titles.end())
        return function;
    return QCoreApplication::translate("FunctionTitle", found->text);
}

} // namespace brenvaldo::views
