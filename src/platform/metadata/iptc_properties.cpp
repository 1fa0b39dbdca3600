// SPDX-License-Identifier: GPL-3.0-or-later
#include "iptc_properties.h"

#include "exif_properties.h"
#include "iptc_data_sets.h"
#include "xmp_values.h"

#include <platform/foundation/literals.h>

#include <QHash>
#include <QRegularExpression>

#include <array>

namespace brenvaldo::platform::metadata {

namespace {

enum class Form { Text, Number, Array, Date, Time };

struct Row
{
    const char* key = nullptr; ///< of the property
    int dataSet = 0; ///< of record 2; 0 when IIM has none
    Form form = Form::Text;
    const char* xmp = nullptr; ///< null when XMP has no counterpart
};

constexpr std::array<Row, 50> rows{{
    {"ObjectTypeReference", 3, Form::Text, nullptr},
    {"ObjectAttributeReference", 4, Form::Text, "Xmp.iptc.IntellectualGenre"},
    {"ObjectName", 5, Form::Text, "Xmp.dc.title"},
    {"EditStatus", 7, Form::Text, nullptr},
    {"EditorialUpdate", 8, Form::Text, nullptr},
    {"Urgency", 10, Form::Text, "Xmp.photoshop.Urgency"},
    {"SubjectReference", 12, Form::Array, "Xmp.iptc.SubjectCode"},
    {"Category", 15, Form::Text, "Xmp.photoshop.Category"},
    {"SupplementalCategory", 20, Form::Array, "Xmp.photoshop.SupplementalCategories"},
    {"FixtureIdentifier", 22, Form::Text, nullptr},
    {"Keywords", 25, Form::Array, "Xmp.dc.subject"},
    {"ContentLocationCode", 26, Form::Array, nullptr},
    {"ContentLocationName", 27, Form::Array, nullptr},
    {"ReleaseDate", 30, Form::Date, nullptr},
    {"ReleaseTime", 35, Form::Time, nullptr},
    {"ExpirationDate", 37, Form::Date, nullptr},
    {"ExpirationTime", 38, Form::Time, nullptr},
    {"SpecialInstructions", 40, Form::Text, "Xmp.photoshop.Instructions"},
    {"ActionAdvised", 42, Form::Text, nullptr},
    {"ReferenceService", 45, Form::Array, nullptr},
    {"ReferenceDate", 47, Form::Array, nullptr},
    {"ReferenceNumber", 50, Form::Array, nullptr},
    {"DateCreated", 55, Form::Date, "Xmp.photoshop.DateCreated"},
    {"TimeCreated", 60, Form::Time, "Xmp.photoshop.DateCreated"},
    {"DigitalCreationDate", 62, Form::Date, "Xmp.xmp.CreateDate"},
    {"DigitalCreationTime", 63, Form::Time, "Xmp.xmp.CreateDate"},
    {"OriginatingProgram", 65, Form::Text, nullptr},
    {"ProgramVersion", 70, Form::Text, nullptr},
    {"ObjectCycle", 75, Form::Text, nullptr},
    {"Byline", 80, Form::Array, "Xmp.dc.creator"},
    {"BylineTitle", 85, Form::Array, "Xmp.photoshop.AuthorsPosition"},
    {"City", 90, Form::Text, "Xmp.photoshop.City"},
    {"SubLocation", 92, Form::Text, "Xmp.iptc.Location"},
    {"Province/State", 95, Form::Text, "Xmp.photoshop.State"},
    {"Country/PrimaryLocationCode", 100, Form::Text, "Xmp.iptc.CountryCode"},
    {"Country/PrimaryLocationName", 101, Form::Text, "Xmp.photoshop.Country"},
    {"OriginalTransmissionReference", 103, Form::Text, "Xmp.photoshop.TransmissionReference"},
    {"Headline", 105, Form::Text, "Xmp.photoshop.Headline"},
    {"Credit", 110, Form::Text, "Xmp.photoshop.Credit"},
    {"Source", 115, Form::Text, "Xmp.photoshop.Source"},
    {"CopyrightNotice", 116, Form::Text, "Xmp.dc.rights"},
    {"Contact", 118, Form::Array, nullptr},
    {"Caption/Abstract", 120, Form::Text, "Xmp.dc.description"},
    {"Writer/Editor", 122, Form::Text, "Xmp.photoshop.CaptionWriter"},
    {"ImageType", 130, Form::Text, nullptr},
    {"ImageOrientation", 131, Form::Text, nullptr},
    {"LanguageIdentifier", 135, Form::Text, nullptr},
    {"StarRating", 0, Form::Number, "Xmp.xmp.Rating"},
    {"Scene", 0, Form::Array, "Xmp.iptc.Scene"},
    {"UsageTerms", 0, Form::Text, "Xmp.xmpRights.UsageTerms"},
}};

constexpr std::array contactFields{
    "CiAdrCity",
    "CiAdrCtry",
    "CiAdrExtadr",
    "CiAdrPcode",
    "CiAdrRegion",
    "CiEmailWork",
    "CiTelWork",
    "CiUrlWork",
};

using DataSets = QHash<int, QList<QByteArrayView>>;

DataSets dataSetsOf(QByteArrayView iptc)
{
    DataSets sets;
    for (const IptcDataSet& set : readIptcDataSets(iptc).sets)
        sets[set.number].append(set.value);
    return sets;
}

QStringList textsOf(const DataSets& sets, const Row& row)
{
    constexpr int recordOfApplications = 0x200;
    QStringList texts;
    if (row.dataSet != 0) {
        for (const QByteArrayView value : sets.value(recordOfApplications + row.dataSet))
            texts.append(metadataText(value));
    }
    return texts;
}

/// The part of an XMP date that the row wants: "20261115" or "104433+0100"; nothing without one.
QStringList partsOfXmpDate(const QString& date, Form form)
{
    static const QRegularExpression pattern(
        u"^(\\d{4})-(\\d\\d)-(\\d\\d)"
        u"(?:T(\\d\\d):(\\d\\d)(?::(\\d\\d)(?:\\.\\d+)?)?(Z|[+-]\\d\\d:\\d\\d)?)?$"_s
    );
    const QRegularExpressionMatch match = pattern.match(date);
    if (!match.hasMatch())
        return {};
    if (form == Form::Date)
        return {match.captured(1) + match.captured(2) + match.captured(3)};
    if (match.captured(4).isEmpty())
        return {};
    const QString seconds = match.captured(6).isEmpty() ? u"00"_s : match.captured(6);
    QString zone = match.captured(7).remove(QLatin1Char(':'));
    if (zone == u"Z"_s)
        zone = u"+0000"_s;
    return {match.captured(4) + match.captured(5) + seconds + zone};
}

QStringList textsOf(const XmpValues& xmp, const Row& row)
{
    if (!row.xmp)
        return {};
    const QStringList texts = xmp.texts(row.xmp);
    const bool isMoment = row.form == Form::Date || row.form == Form::Time;
    return isMoment && !texts.isEmpty() ? partsOfXmpDate(texts.first(), row.form) : texts;
}

PropertyValue::Array arrayOf(const QStringList& texts)
{
    PropertyValue::Array array;
    for (const QString& text : texts)
        array.append(PropertyValue(text));
    return array;
}

PropertyValue valueOf(const QStringList& texts, Form form)
{
    if (form == Form::Array)
        return arrayOf(texts);
    if (form == Form::Number)
        return PropertyValue(texts.first().toDouble());
    return PropertyValue(texts.first());
}

void fill(PropertyDictionary& iptc, QLatin1StringView key, const PropertyValue& value)
{
    if (!iptc.contains(key))
        iptc.insert(key, value);
}

/// "2026:11:15 10:44:33" fills the date with "20261115" and the time with "104433".
void fillMoment(
    PropertyDictionary& iptc,
    const std::optional<QString>& moment,
    QLatin1StringView dateKey,
    QLatin1StringView timeKey
)
{
    static const QRegularExpression pattern(
        u"^(\\d{4}):(\\d\\d):(\\d\\d) (\\d\\d):(\\d\\d):(\\d\\d)"_s
    );
    const QRegularExpressionMatch match = pattern.match(moment.value_or(QString()));
    if (!match.hasMatch())
        return;
    fill(iptc, dateKey, match.captured(1) + match.captured(2) + match.captured(3));
    fill(iptc, timeKey, match.captured(4) + match.captured(5) + match.captured(6));
}

void fillFromExif(PropertyDictionary& iptc, const ExifProperties& exif)
{
    const auto text = [&exif](const char* key) {
        return exif.tiff.text(QLatin1StringView(key)).value_or(QString());
    };
    if (const QString caption = text("ImageDescription"); !caption.isEmpty())
        fill(iptc, QLatin1StringView("Caption/Abstract"), caption);
    if (const QString artist = text("Artist"); !artist.isEmpty())
        fill(iptc, QLatin1StringView("Byline"), arrayOf({artist}));
    if (const QString copyright = text("Copyright"); !copyright.isEmpty())
        fill(iptc, QLatin1StringView("CopyrightNotice"), copyright);
    fillMoment(
        iptc,
        exif.exif.text(QLatin1StringView("DateTimeOriginal")),
        QLatin1StringView("DateCreated"),
        QLatin1StringView("TimeCreated")
    );
    fillMoment(
        iptc,
        exif.exif.text(QLatin1StringView("DateTimeDigitized")),
        QLatin1StringView("DigitalCreationDate"),
        QLatin1StringView("DigitalCreationTime")
    );
}

PropertyDictionary contactOf(const XmpValues& xmp)
{
    PropertyDictionary contact;
    for (const char* field : contactFields) {
        const QStringList texts
            = xmp.texts(QByteArray("Xmp.iptc.CreatorContactInfo/Iptc4xmpCore:") + field);
        if (!texts.isEmpty())
            contact.insert(QLatin1StringView(field), texts.first());
    }
    return contact;
}

} // namespace

PropertyDictionary
iptcProperties(QByteArrayView iim, const XmpValues& xmp, const ExifProperties& exif)
{
    const DataSets sets = dataSetsOf(iim);
    PropertyDictionary iptc;
    for (const Row& row : rows) {
        QStringList texts = textsOf(sets, row);
        if (texts.isEmpty())
            texts = textsOf(xmp, row);
        if (!texts.isEmpty())
            iptc.insert(QLatin1StringView(row.key), valueOf(texts, row.form));
    }
    const PropertyDictionary contact = contactOf(xmp);
    if (!contact.isEmpty())
        iptc.insert(QLatin1StringView("CreatorContactInfo"), contact);
    fillFromExif(iptc, exif);
    return iptc;
}

} // namespace brenvaldo::platform::metadata
