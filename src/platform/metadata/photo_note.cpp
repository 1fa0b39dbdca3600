// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_note.h"

#include "xmp_parser.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

#include <exiv2/exiv2.hpp>

#include <limits>

namespace brenvaldo::platform::metadata {

namespace {

constexpr qsizetype shortTextBytes = 64; // of IPTC
constexpr qsizetype captionBytes = 2000;

QByteArray cutOnBorder(const QString& text, qsizetype bytes)
{
    QByteArray utf8 = text.toUtf8();
    if (utf8.size() <= bytes)
        return utf8;
    constexpr unsigned char mask = 0xC0;
    constexpr unsigned char continuation = 0x80;
    while (bytes > 0 && (static_cast<unsigned char>(utf8.at(bytes)) & mask) == continuation)
        --bytes;
    return utf8.first(bytes);
}

std::string inUtf8(const std::string& text)
{
    const QByteArray bytes = QByteArray::fromStdString(text);
    return bytes.isValidUtf8() ? text : QString::fromLatin1(bytes).toStdString();
}

/// The announcement is for all texts, those that stay among them.
void announceUtf8(Exiv2::IptcData& iptc)
{
    for (Exiv2::Iptcdatum& datum : iptc) {
        if (datum.typeId() == Exiv2::string)
            datum.setValue(inUtf8(datum.toString()));
    }
    iptc["Iptc.Envelope.CharacterSet"] = std::string("\033%G");
}

template <class Data, class Key>
void removeAll(Data& data, const Key& key)
{
    for (auto found = data.findKey(key); found != data.end(); found = data.findKey(key))
        data.erase(found);
}

void setTexts(Exiv2::IptcData& iptc, const char* name, const QList<QByteArray>& texts)
{
    const Exiv2::IptcKey key(name);
    removeAll(iptc, key);
    for (const QByteArray& text : texts) {
        Exiv2::StringValue value(text.toStdString());
        iptc.add(key, &value);
    }
}

void putIptc(Exiv2::Image& image, const PhotoNote& note)
{
    Exiv2::IptcData& iptc = image.iptcData();
    announceUtf8(iptc);
    QList<QByteArray> keywords;
    for (const QString& keyword : note.keywords)
        keywords.append(cutOnBorder(keyword, shortTextBytes));
    if (!keywords.isEmpty())
        setTexts(iptc, "Iptc.Application2.Keywords", keywords);
    if (!note.title.isEmpty())
        setTexts(iptc, "Iptc.Application2.ObjectName", {cutOnBorder(note.title, shortTextBytes)});
    if (!note.description.isEmpty())
        setTexts(iptc, "Iptc.Application2.Caption", {cutOnBorder(note.description, captionBytes)});
}

/// The key goes first: to a text that stands, a further one would only be added.
void setXmp(Exiv2::XmpData& xmp, const char* name, Exiv2::TypeId type, const QStringList& texts)
{
    const Exiv2::XmpKey key(name);
    removeAll(xmp, key);
    const Exiv2::Value::AutoPtr value = Exiv2::Value::create(type);
    for (const QString& text : texts)
        value->read(text.toStdString());
    xmp.add(key, value.get());
}

void putXmp(Exiv2::Image& image, const PhotoNote& note)
{
    Exiv2::XmpProperties::registerNs("http://www.digikam.org/ns/1.0/", "digiKam");
    Exiv2::XmpData& xmp = image.xmpData();
    if (!note.keywords.isEmpty()) {
        setXmp(xmp, "Xmp.dc.subject", Exiv2::xmpBag, note.keywords);
        setXmp(xmp, "Xmp.digiKam.TagsList", Exiv2::xmpSeq, note.keywords);
    }
    if (!note.title.isEmpty())
        setXmp(xmp, "Xmp.dc.title", Exiv2::langAlt, {note.title});
    if (!note.description.isEmpty()) {
        setXmp(xmp, "Xmp.dc.description", Exiv2::langAlt, {note.description});
        image.exifData()["Exif.Image.ImageDescription"] = note.description.toStdString();
    }
}

constexpr const char* xmpRating = "Xmp.xmp.Rating";
constexpr const char* pickLabel = "Xmp.digiKam.PickLabel";
constexpr const char* exifRating = "Exif.Image.Rating";
constexpr int fiveStars = 5;
constexpr int picked = 3;

template <class Data, class Key>
void removeIfStill(Data& data, const Key& key, int value)
{
    const auto found = data.findKey(key);
    if (found != data.end() && found->toString() == std::to_string(value))
        data.erase(found);
}

void putFavourite(Exiv2::Image& image, bool favourite)
{
    Exiv2::XmpProperties::registerNs("http://www.digikam.org/ns/1.0/", "digiKam");
    if (favourite) {
        image.xmpData()[xmpRating] = std::to_string(fiveStars);
        image.xmpData()[pickLabel] = std::to_string(picked);
        image.exifData()[exifRating] = std::uint16_t{fiveStars};
        return;
    }
    removeIfStill(image.xmpData(), Exiv2::XmpKey(xmpRating), fiveStars);
    removeIfStill(image.xmpData(), Exiv2::XmpKey(pickLabel), picked);
    removeIfStill(image.exifData(), Exiv2::ExifKey(exifRating), fiveStars);
}

QByteArray bytesOf(Exiv2::BasicIo& io)
{
    io.open();
    const Exiv2::DataBuf bytes = io.read(static_cast<long>(io.size()));
    return {reinterpret_cast<const char*>(bytes.pData_), static_cast<qsizetype>(bytes.size_)};
}

template <class Edit>
std::optional<QByteArray> edited(const QByteArray& file, const Edit& edit)
{
    if (file.isEmpty() || file.size() > std::numeric_limits<int>::max())
        return std::nullopt;
    const auto lock = lockedXmpParser();
    try {
        const auto* bytes = reinterpret_cast<const Exiv2::byte*>(file.constData());
        const auto image = Exiv2::ImageFactory::open(bytes, static_cast<long>(file.size()));
        image->readMetadata();
        edit(*image);
        image->writeMetadata();
        return bytesOf(image->io());
    } catch (const std::exception& fault) {
        platform::log(
            u"The metadata of a photo can't be edited: "_s + QString::fromUtf8(fault.what())
        );
        return std::nullopt;
    }
}

} // namespace

std::optional<QByteArray> withIptcNote(const QByteArray& file, const PhotoNote& note)
{
    return edited(file, [&note](Exiv2::Image& image) { putIptc(image, note); });
}

std::optional<QByteArray> withXmpNote(const QByteArray& file, const PhotoNote& note)
{
    return edited(file, [&note](Exiv2::Image& image) { putXmp(image, note); });
}

std::optional<QByteArray> withFavourite(const QByteArray& file, bool favourite)
{
    return edited(file, [favourite](Exiv2::Image& image) { putFavourite(image, favourite); });
}

} // namespace brenvaldo::platform::metadata
