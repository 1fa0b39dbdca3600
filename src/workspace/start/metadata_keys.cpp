// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata_keys.h"

namespace brenvaldo::workspace {

const QStringList& metadataKeys()
{
    static const QStringList keys{
        QString(),
        u"AcquisitionMake"_qs,
        u"AcquisitionModel"_qs,
        u"BitsPerSample"_qs,
        u"ColorSpace"_qs,
        u"ContentCreationDate"_qs,
        u"ContentModificationDate"_qs,
        u"ContentType"_qs,
        u"Creator"_qs,
        u"Description"_qs,
        u"DisplayName"_qs,
        u"EXIFVersion"_qs,
        u"ExposureMode"_qs,
        u"ExposureTimeSeconds"_qs,
        u"FlashOnOff"_qs,
        u"FNumber"_qs,
        u"FocalLength"_qs,
        u"FSContentChangeDate"_qs,
        u"FSCreationDate"_qs,
        u"FSCreatorCode"_qs,
        u"FSFinderFlags"_qs,
        u"FSHasCustomIcon"_qs,
        u"FSInvisible"_qs,
        u"FSIsExtensionHidden"_qs,
        u"FSIsStationery"_qs,
        u"FSLabel"_qs,
        u"FSName"_qs,
        u"FSNodeCount"_qs,
        u"FSOwnerGroupID"_qs,
        u"FSOwnerUserID"_qs,
        u"FSSize"_qs,
        u"FSTypeCode"_qs,
        u"HasAlphaChannel"_qs,
        u"ISOSpeed"_qs,
        u"Kind"_qs,
        u"LastUsedDate"_qs,
        u"Orientation"_qs,
        u"PixelCount"_qs,
        u"PixelHeight"_qs,
        u"PixelWidth"_qs,
        u"ProfileName"_qs,
        u"RedEyeOnOff"_qs,
        u"ResolutionHeightDPI"_qs,
        u"ResolutionWidthDPI"_qs,
        u"WhiteBalance"_qs,
    };
    return keys;
}

} // namespace brenvaldo::workspace
