// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::imaging {

/// The six values that close the arguments of every batch operation.
struct OutputTail
{
    QString outputType; ///< type identifier made from the chosen title, or "original file type"
    QString compressionLevel; ///< title of `pubJPEGCompressionLevel`
    QString fileExtension; ///< the source's path extension
    QString fileExtensionNSStr; ///< stays unset in a run
    QString fileUTI; ///< type identifier of that extension
    QString myFileType; ///< type identifier that is written
};

/// The two values that open them.
struct SourceAndBase
{
    QString source; ///< path of the photo
    QString destinationBase; ///< destination folder and output name, without extension
};

} // namespace brenvaldo::imaging
