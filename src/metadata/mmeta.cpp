// SPDX-License-Identifier: GPL-3.0-or-later
#include "mmeta.h"

#include "metadata_texts.h"

#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/foundation/text.h>

#include <algorithm>
#include <array>

namespace brenvaldo::metadata {

using platform::metadata::PropertyDictionary;
using platform::metadata::PropertyValue;
namespace property = platform::metadata::property;

namespace {

const QString& userCommentName()
{
    static const QString name = u"EXIF User Comment"_s;
    return name;
}

/// True when one of `known` holds the extension as a part, case ignored: "p" is in "jpg".
bool isExtensionIn(const QStringList& known, const QString& path)
{
    const QString extension = platform::pathExtension(path).toLower();
    return std::any_of(known.begin(), known.end(), [&extension](const QString& entry) {
        return platform::containsText(entry, extension);
    });
}

QString keptText(const PropertyDictionary* dictionary, QLatin1StringView key)
{
    return dictionary ? dictionary->text(key).value_or(QString()) : QString();
}

/// True for a text of blanks alone: split at each, it gives one piece more than it has units.
bool isOfBlanksOnly(const QString& text)
{
    return platform::componentsSeparatedBy(text, u" "_s).size() == text.size() + 1;
}

/// The value in `exif`; an empty one gives way to that in `iptc`, a missing one does not.
QString valueOrCounterpart(
    const PropertyDictionary& exif,
    QLatin1StringView key,
    const PropertyDictionary* iptc,
    QLatin1StringView counterpart
)
{
    const std::optional<QString> value = exif.text(key);
    return value == QString() ? keptText(iptc, counterpart) : value.value_or(QString());
}

/// The texts of the elements, or of the values of a dictionary, or the one text.
QStringList textsOf(const PropertyValue& value)
{
    QStringList texts;
    if (const PropertyValue::Array* array = value.array()) {
        for (const PropertyValue& element : *array)
            texts.append(element.text());
    } else if (const PropertyDictionary* dictionary = value.dictionary()) {
        for (const QString& key : dictionary->keys())
            texts.append(dictionary->value(key)->text());
    } else {
        texts.append(value.text());
    }
    return texts;
}

enum class Treatment { First, Joined };

struct IptcName
{
    QLatin1StringView name;
    QLatin1StringView key;
    Treatment treatment = Treatment::Joined;
};

constexpr std::array iptcNames{
    IptcName{QLatin1StringView("IPTC Creator Title"), property::iptcBylineTitle, Treatment::First},
    IptcName{QLatin1StringView("IPTC Caption"), property::iptcCaptionAbstract},
    IptcName{QLatin1StringView("IPTC Keyword"), property::iptcKeywords},
    IptcName{QLatin1StringView("IPTC City"), property::iptcCity},
    IptcName{QLatin1StringView("IPTC Caption Writer"), property::iptcWriterEditor},
    IptcName{QLatin1StringView("IPTC Copyrights"), property::iptcCopyrightNotice},
    IptcName{QLatin1StringView("IPTC Country"), property::iptcCountryPrimaryLocationName},
    IptcName{QLatin1StringView("IPTC Credits"), property::iptcCredit},
    IptcName{QLatin1StringView("IPTC Headline"), property::iptcHeadline},
    IptcName{QLatin1StringView("IPTC Subject Code"), property::iptcSubjectReference},
    IptcName{QLatin1StringView("IPTC State Province"), property::iptcProvinceState},
};

QString treated(const PropertyDictionary& iptc, const IptcName& name)
{
    const PropertyValue* value = iptc.value(name.key);
    const QStringList texts = value ? textsOf(*value) : QStringList();
    if (name.treatment == Treatment::First)
        return texts.value(0);
    return texts.join(u"; "_s);
}

QString nameOfDeviceSpace(const platform::codecs::ImageHeader& header)
{
    switch (header.colorModel) {
    case platform::graphics::ColorModel::Gray:
        return u"Generic Gray Gamma 2.2 Profile"_s;
    case platform::graphics::ColorModel::Rgb:
        return u"sRGB IEC61966-2.1"_s;
    case platform::graphics::ColorModel::Cmyk:
        return u"Generic CMYK Profile"_s;
    case platform::graphics::ColorModel::Lab:
        return u"Generic Lab Profile"_s;
    }
    return {};
}

} // namespace

mMeta::mMeta(panels::Panels& panels)
    : m_panels(panels)
{
}

const QList<PropertyNode>& mMeta::hiDoNothing(const QString& path)
{
    m_panels.vwPhotoInfo.tfActiveFilePath.setStringValue(path);
    const auto source = getMyImageSource(path);
    if (!source) {
        m_panels.vwFileManagementEXIF.tfExifUserComment.setStringValue(notSupportedText());
        m_panels.vwPhotoInfo.mTree.removeAllObjects();
        return m_tree;
    }
    showComment(*source);
    m_panels.vwPhotoInfo.mTree.setObjects(propertyRows(propTree(*source)));
    return m_tree;
}

void mMeta::forgetPhoto()
{
    if (m_panels.vwPhotoInfo.tfActiveFilePath.stringValue().isEmpty())
        return; // a comment that stands there is not that of a photo
    m_tree.clear();
    m_panels.vwPhotoInfo.tfActiveFilePath.setStringValue({});
    m_panels.vwFileManagementEXIF.tfExifUserComment.setStringValue({});
    m_panels.vwPhotoInfo.mTree.removeAllObjects();
}

void mMeta::showComment(const PropertyDictionary& properties)
{
    const PropertyDictionary* exif = properties.dictionary(property::exifDictionary);
    const std::optional<QString> comment
        = exif ? exif->text(property::exifUserComment) : std::nullopt;
    m_panels.vwFileManagementEXIF.tfExifUserComment.setStringValue(
        comment.value_or(notSupportedOrAvailableText())
    );
}

const QList<PropertyNode>& mMeta::propTree(const PropertyDictionary& properties)
{
    m_tree = propertyNodes(properties);
    return m_tree;
}

QString mMeta::hGetMetaData(const QString& path)
{
    const auto source = getMyImageSource(path);
    const PropertyDictionary* exif
        = source ? source->dictionary(property::exifDictionary) : nullptr;
    m_panels.vwFileManagementEXIF.tfExifUserComment.setStringValue(
        keptText(exif, property::exifUserComment)
    );
    showIptc(source ? source->dictionary(property::iptcDictionary) : nullptr);
    return u"OK"_s;
}

void mMeta::showIptc(const PropertyDictionary* iptc)
{
    panels::ExifPanel& panel = m_panels.vwFileManagementEXIF;
    const auto show = [iptc](controls::TextField& field, QLatin1StringView key) {
        const PropertyValue* value = iptc ? iptc->value(key) : nullptr;
        field.setStringValue(value ? textsOf(*value).join(u"; "_s) : QString());
    };
    const PropertyValue* keywords = iptc ? iptc->value(property::iptcKeywords) : nullptr;
    QString keywordText;
    for (const QString& keyword : keywords ? textsOf(*keywords) : QStringList())
        keywordText += keyword + QLatin1Char(';');

    show(panel.tfIPTCTitle, property::iptcObjectName);
    panel.tfIPTCKeyWords.setStringValue(keywordText);
    show(panel.tfIPTCCaption, property::iptcCaptionAbstract);
    show(panel.tfIPTCHeadline, property::iptcHeadline);
    show(panel.tfIPTCCopyRight, property::iptcCopyrightNotice);
    show(panel.tfIPTCCopyRightTerms, property::iptcRightsUsageTerms);
    show(panel.tfIPTCCreator, property::iptcByline);
    show(panel.tfIPTCCreatorTitle, property::iptcBylineTitle);
    show(panel.tfIPTCSourceOwner, property::iptcSource);
    show(panel.tfIPTCImageContactInfo, property::iptcContact);
    show(panel.tfIPTCEditorContactInfo, property::iptcWriterEditor);
    show(panel.tfIPTCCreatorContactInfo, property::iptcCreatorContactInfo);
}

std::optional<PropertyDictionary> mMeta::getMyImageSource(const QString& path)
{
    return platform::metadata::imageProperties(path);
}

QList<qint64> mMeta::hGetPixelFormatFromSource(const PropertyDictionary& source)
{
    const auto number = [&source](QLatin1StringView key) {
        const PropertyValue* value = source.value(key);
        return value ? static_cast<qint64>(value->number().value_or(0)) : 0;
    };
    return {number(property::pixelWidth), number(property::pixelHeight)};
}

QString mMeta::hGetExifUcFromSource(const PropertyDictionary& source, const QString& name)
{
    const PropertyDictionary* exif = source.dictionary(property::exifDictionary);
    if (name != userCommentName())
        return keptText(exif, property::exifDateTimeOriginal);
    const QString comment = keptText(exif, property::exifUserComment);
    return isOfBlanksOnly(comment) ? QString() : comment;
}

QString mMeta::hGetExifUc(const QString& path, const QString& name)
{
    static const QStringList known{u"png"_s, u"jpg"_s, u"jpeg"_s, u"tif"_s, u"tiff"_s, u"heic"_s};
    const auto source = isExtensionIn(known, path) ? getMyImageSource(path) : std::nullopt;
    const PropertyDictionary* exif
        = source ? source->dictionary(property::exifDictionary) : nullptr;
    if (!exif)
        return {};
    const PropertyDictionary* iptc = source->dictionary(property::iptcDictionary);
    if (name != userCommentName())
        return valueOrCounterpart(
            *exif, property::exifDateTimeOriginal, iptc, property::iptcTimeCreated
        );
    const QString comment
        = valueOrCounterpart(*exif, property::exifUserComment, iptc, property::iptcCaptionAbstract);
    return isOfBlanksOnly(comment) ? QString() : comment;
}

QString mMeta::hGetSomeIPTC(const QString& path, const QString& name)
{
    static const QStringList known{u"jpg"_s, u"jpeg"_s, u"tif"_s, u"tiff"_s, u"heic"_s};
    const auto source = isExtensionIn(known, path) ? getMyImageSource(path) : std::nullopt;
    const PropertyDictionary* iptc
        = source ? source->dictionary(property::iptcDictionary) : nullptr;
    if (!iptc)
        return {};
    const auto found = std::find_if(iptcNames.begin(), iptcNames.end(), [&name](const auto& row) {
        return row.name == name;
    });
    if (found != iptcNames.end())
        m_iptcValue = treated(*iptc, *found);
    return m_iptcValue;
}

QString mMeta::hGetColorProfile(const QString& path)
{
    const auto source = getMyImageSource(path);
    if (!source)
        return {};
    if (const auto name = source->text(property::profileName))
        return *name;
    const auto photo = platform::codecs::ImageSource::open(path);
    return photo ? nameOfDeviceSpace(photo->header()) : QString();
}

QStringList mMeta::hGetPixelFormat(const QString& path)
{
    const auto photo = platform::codecs::ImageSource::open(path);
    if (!photo)
        return {};
    const platform::graphics::PixelSize size = photo->header().uprightSize;
    return {QString::number(size.width), QString::number(size.height)};
}

} // namespace brenvaldo::metadata
