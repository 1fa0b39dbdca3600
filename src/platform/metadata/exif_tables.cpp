// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_tables.h"

#include <array>

namespace brenvaldo::platform::metadata {

namespace {

using Rule = ExifRule;

constexpr std::array<ExifRow, 74> exifRows{{
    {"ExposureTime", 0x829a, Rule::Plain},
    {"FNumber", 0x829d, Rule::Plain},
    {"ExposureProgram", 0x8822, Rule::Plain},
    {"SpectralSensitivity", 0x8824, Rule::Plain},
    {"ISOSpeedRatings", 0x8827, Rule::Array},
    {"OECF", 0x8828, Rule::Array},
    {"SensitivityType", 0x8830, Rule::Plain},
    {"StandardOutputSensitivity", 0x8831, Rule::Plain},
    {"RecommendedExposureIndex", 0x8832, Rule::Plain},
    {"ISOSpeed", 0x8833, Rule::Plain},
    {"ISOSpeedLatitudeyyy", 0x8834, Rule::Plain},
    {"ISOSpeedLatitudezzz", 0x8835, Rule::Plain},
    {"ExifVersion", 0x9000, Rule::Version},
    {"DateTimeOriginal", 0x9003, Rule::Plain},
    {"DateTimeDigitized", 0x9004, Rule::Plain},
    {"OffsetTime", 0x9010, Rule::Plain},
    {"OffsetTimeOriginal", 0x9011, Rule::Plain},
    {"OffsetTimeDigitized", 0x9012, Rule::Plain},
    {"ComponentsConfiguration", 0x9101, Rule::Array},
    {"CompressedBitsPerPixel", 0x9102, Rule::Plain},
    {"ShutterSpeedValue", 0x9201, Rule::Plain},
    {"ApertureValue", 0x9202, Rule::Plain},
    {"BrightnessValue", 0x9203, Rule::Plain},
    {"ExposureBiasValue", 0x9204, Rule::Plain},
    {"MaxApertureValue", 0x9205, Rule::Plain},
    {"SubjectDistance", 0x9206, Rule::Plain},
    {"MeteringMode", 0x9207, Rule::Plain},
    {"LightSource", 0x9208, Rule::Plain},
    {"Flash", 0x9209, Rule::Plain},
    {"FocalLength", 0x920a, Rule::Plain},
    {"SubjectArea", 0x9214, Rule::Array},
    {"UserComment", 0x9286, Rule::Comment},
    {"SubsecTime", 0x9290, Rule::Plain},
    {"SubsecTimeOriginal", 0x9291, Rule::Plain},
    {"SubsecTimeDigitized", 0x9292, Rule::Plain},
    {"FlashPixVersion", 0xa000, Rule::Version},
    {"ColorSpace", 0xa001, Rule::Plain},
    {"PixelXDimension", 0xa002, Rule::Plain},
    {"PixelYDimension", 0xa003, Rule::Plain},
    {"RelatedSoundFile", 0xa004, Rule::Plain},
    {"FlashEnergy", 0xa20b, Rule::Plain},
    {"SpatialFrequencyResponse", 0xa20c, Rule::Array},
    {"FocalPlaneXResolution", 0xa20e, Rule::Plain},
    {"FocalPlaneYResolution", 0xa20f, Rule::Plain},
    {"FocalPlaneResolutionUnit", 0xa210, Rule::Plain},
    {"SubjectLocation", 0xa214, Rule::Array},
    {"ExposureIndex", 0xa215, Rule::Plain},
    {"SensingMethod", 0xa217, Rule::Plain},
    {"FileSource", 0xa300, Rule::FirstByte},
    {"SceneType", 0xa301, Rule::FirstByte},
    {"CFAPattern", 0xa302, Rule::Array},
    {"CustomRendered", 0xa401, Rule::Plain},
    {"ExposureMode", 0xa402, Rule::Plain},
    {"WhiteBalance", 0xa403, Rule::Plain},
    {"DigitalZoomRatio", 0xa404, Rule::Plain},
    {"FocalLenIn35mmFilm", 0xa405, Rule::Plain},
    {"SceneCaptureType", 0xa406, Rule::Plain},
    {"GainControl", 0xa407, Rule::Plain},
    {"Contrast", 0xa408, Rule::Plain},
    {"Saturation", 0xa409, Rule::Plain},
    {"Sharpness", 0xa40a, Rule::Plain},
    {"DeviceSettingDescription", 0xa40b, Rule::Array},
    {"SubjectDistRange", 0xa40c, Rule::Plain},
    {"ImageUniqueID", 0xa420, Rule::Plain},
    {"CameraOwnerName", 0xa430, Rule::Plain},
    {"BodySerialNumber", 0xa431, Rule::Plain},
    {"LensSpecification", 0xa432, Rule::Array},
    {"LensMake", 0xa433, Rule::Plain},
    {"LensModel", 0xa434, Rule::Plain},
    {"LensSerialNumber", 0xa435, Rule::Plain},
    {"CompositeImage", 0xa460, Rule::Plain},
    {"SourceImageNumberOfCompositeImage", 0xa461, Rule::Array},
    {"SourceExposureTimesOfCompositeImage", 0xa462, Rule::Array},
    {"Gamma", 0xa500, Rule::Plain},
}};

constexpr std::array<ExifRow, 22> tiffRows{{
    {"Compression", 0x0103, Rule::Plain},  {"PhotometricInterpretation", 0x0106, Rule::Plain},
    {"DocumentName", 0x010d, Rule::Plain}, {"ImageDescription", 0x010e, Rule::Plain},
    {"Make", 0x010f, Rule::Plain},         {"Model", 0x0110, Rule::Plain},
    {"Orientation", 0x0112, Rule::Plain},  {"XResolution", 0x011a, Rule::Plain},
    {"YResolution", 0x011b, Rule::Plain},  {"ResolutionUnit", 0x0128, Rule::Plain},
    {"Software", 0x0131, Rule::Plain},     {"TransferFunction", 0x012d, Rule::Array},
    {"DateTime", 0x0132, Rule::Plain},     {"Artist", 0x013b, Rule::Plain},
    {"HostComputer", 0x013c, Rule::Plain}, {"Copyright", 0x8298, Rule::Plain},
    {"WhitePoint", 0x013e, Rule::Array},   {"PrimaryChromaticities", 0x013f, Rule::Array},
    {"TileWidth", 0x0142, Rule::Plain},    {"TileLength", 0x0143, Rule::Plain},
    {"XPosition", 0x011e, Rule::Plain},    {"YPosition", 0x011f, Rule::Plain},
}};

constexpr std::array<ExifRow, 32> gpsRows{{
    {"GPSVersion", 0x0000, Rule::Array},        {"LatitudeRef", 0x0001, Rule::Plain},
    {"Latitude", 0x0002, Rule::Degrees},        {"LongitudeRef", 0x0003, Rule::Plain},
    {"Longitude", 0x0004, Rule::Degrees},       {"AltitudeRef", 0x0005, Rule::Plain},
    {"Altitude", 0x0006, Rule::Plain},          {"TimeStamp", 0x0007, Rule::TimeOfDay},
    {"Satellites", 0x0008, Rule::Plain},        {"Status", 0x0009, Rule::Plain},
    {"MeasureMode", 0x000a, Rule::Plain},       {"DOP", 0x000b, Rule::Plain},
    {"SpeedRef", 0x000c, Rule::Plain},          {"Speed", 0x000d, Rule::Plain},
    {"TrackRef", 0x000e, Rule::Plain},          {"Track", 0x000f, Rule::Plain},
    {"ImgDirectionRef", 0x0010, Rule::Plain},   {"ImgDirection", 0x0011, Rule::Plain},
    {"MapDatum", 0x0012, Rule::Plain},          {"DestLatitudeRef", 0x0013, Rule::Plain},
    {"DestLatitude", 0x0014, Rule::Degrees},    {"DestLongitudeRef", 0x0015, Rule::Plain},
    {"DestLongitude", 0x0016, Rule::Degrees},   {"DestBearingRef", 0x0017, Rule::Plain},
    {"DestBearing", 0x0018, Rule::Plain},       {"DestDistanceRef", 0x0019, Rule::Plain},
    {"DestDistance", 0x001a, Rule::Plain},      {"ProcessingMethod", 0x001b, Rule::Comment},
    {"AreaInformation", 0x001c, Rule::Comment}, {"DateStamp", 0x001d, Rule::Plain},
    {"Differential", 0x001e, Rule::Plain},      {"HPositioningError", 0x001f, Rule::Plain},
}};

} // namespace

std::span<const ExifRow> exifTable() { return exifRows; }

std::span<const ExifRow> tiffTable() { return tiffRows; }

std::span<const ExifRow> gpsTable() { return gpsRows; }

} // namespace brenvaldo::platform::metadata
