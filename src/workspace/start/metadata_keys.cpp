// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata_keys.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::workspace {

const QStringList& metadataKeys()
{
    static const QStringList keys{
        QString(),
        u"AcquisitionMake"_s,
        u"AcquisitionModel"_s,
        u"BitsPerSample"_s,
        u"ColorSpace"_s,
        u"ContentCreationDate"_s,
        u"ContentModificationDate"_s,
        u"ContentType"_s,
        u"Creator"_s,
        u"Description"_s,
        u"DisplayName"_s,
        u"EXIFVersion"_s,
        u"ExposureMode"_s,
        u"ExposureTimeSeconds"_s,
        u"FlashOnOff"_s,
        u"FNumber"_s,
        u"FocalLength"_s,
        u"FSContentChangeDate"_s,
        u"FSCreationDate"_s,
        u"FSCreatorCode"_s,
        u"FSFinderFlags"_s,
        u"FSHasCustomIcon"_s,
        u"FSInvisible"_s,
        u"FSIsExtensionHidden"_s,
        u"FSIsStationery"_s,
        u"FSLabel"_s,
        u"FSName"_s,
        u"FSNodeCount"_s,
        u"FSOwnerGroupID"_s,
        u"FSOwnerUserID"_s,
        u"FSSize"_s,
        u"FSTypeCode"_s,
        u"HasAlphaChannel"_s,
        u"ISOSpeed"_s,
        u"Kind"_s,
        u"LastUsedDate"_s,
        u"Orientation"_s,
        u"PixelCount"_s,
        u"PixelHeight"_s,
        u"PixelWidth"_s,
        u"ProfileName"_s,
        u"RedEyeOnOff"_s,
        u"ResolutionHeightDPI"_s,
        u"ResolutionWidthDPI"_s,
        u"WhiteBalance"_s,
    };
    return keys;
}

} // namespace brenvaldo::workspace
