// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "property_dictionary.h"

#include <QLatin1StringView>
#include <QString>

#include <optional>

namespace brenvaldo::platform::metadata {

/// Keys of the property dictionary, named after the platform's constants.
namespace property {

inline constexpr QLatin1StringView pixelWidth("PixelWidth");
inline constexpr QLatin1StringView pixelHeight("PixelHeight");
inline constexpr QLatin1StringView dpiWidth("DPIWidth");
inline constexpr QLatin1StringView dpiHeight("DPIHeight");
inline constexpr QLatin1StringView depth("Depth");
inline constexpr QLatin1StringView colorModel("ColorModel");
inline constexpr QLatin1StringView profileName("ProfileName");
inline constexpr QLatin1StringView orientation("Orientation");
inline constexpr QLatin1StringView hasAlpha("HasAlpha");
inline constexpr QLatin1StringView isFloat("IsFloat");
inline constexpr QLatin1StringView isIndexed("IsIndexed");

inline constexpr QLatin1StringView exifDictionary("{Exif}");
inline constexpr QLatin1StringView tiffDictionary("{TIFF}");
inline constexpr QLatin1StringView iptcDictionary("{IPTC}");
inline constexpr QLatin1StringView gpsDictionary("{GPS}");
inline constexpr QLatin1StringView jfifDictionary("{JFIF}");
inline constexpr QLatin1StringView pngDictionary("{PNG}");
inline constexpr QLatin1StringView gifDictionary("{GIF}");
inline constexpr QLatin1StringView exifAuxDictionary("{ExifAux}");

inline constexpr QLatin1StringView exifUserComment("UserComment");
inline constexpr QLatin1StringView exifDateTimeOriginal("DateTimeOriginal");

inline constexpr QLatin1StringView iptcByline("Byline");
inline constexpr QLatin1StringView iptcBylineTitle("BylineTitle");
inline constexpr QLatin1StringView iptcCaptionAbstract("Caption/Abstract");
inline constexpr QLatin1StringView iptcCity("City");
inline constexpr QLatin1StringView iptcContact("Contact");
inline constexpr QLatin1StringView iptcCopyrightNotice("CopyrightNotice");
inline constexpr QLatin1StringView iptcCountryPrimaryLocationName("Country/PrimaryLocationName");
inline constexpr QLatin1StringView iptcCreatorContactInfo("CreatorContactInfo");
inline constexpr QLatin1StringView iptcCredit("Credit");
inline constexpr QLatin1StringView iptcDateCreated("DateCreated");
inline constexpr QLatin1StringView iptcHeadline("Headline");
inline constexpr QLatin1StringView iptcKeywords("Keywords");
inline constexpr QLatin1StringView iptcObjectName("ObjectName");
inline constexpr QLatin1StringView iptcProvinceState("Province/State");
inline constexpr QLatin1StringView iptcRightsUsageTerms("UsageTerms");
inline constexpr QLatin1StringView iptcSource("Source");
inline constexpr QLatin1StringView iptcSubjectReference("SubjectReference");
inline constexpr QLatin1StringView iptcTimeCreated("TimeCreated");
inline constexpr QLatin1StringView iptcWriterEditor("Writer/Editor");

} // namespace property

/// All properties of image 0 of the file at `path`; nothing when the file is no readable image.
///
/// Sizes are those of the stored pixels. The dictionaries of metadata are missing when the file
/// has no value for them.
[[nodiscard]] std::optional<PropertyDictionary> imageProperties(const QString& path);

} // namespace brenvaldo::platform::metadata
