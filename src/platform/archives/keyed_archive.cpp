// SPDX-License-Identifier: GPL-3.0-or-later
#include "keyed_archive.h"

#include "archive_reader.h"
#include "binary_property_list.h"
#include "typed_stream.h"

#include <QList>
#include <QtEndian>

#include <algorithm>
#include <bit>

namespace brenvaldo::platform::archives {

namespace {

using Reference = BinaryPropertyList::Reference;

/// The entry that a UID of the archive stands for.
Reference
objectOf(const BinaryPropertyList& list, const std::vector<Reference>& objects, Reference uid)
{
    const std::uint64_t index = list.uid(uid);
    refuseUnless(index < objects.size());
    return objects[index];
}

bool isArrayClass(const BinaryPropertyList& list, Reference description)
{
    const std::string name = list.text(list.value(description, "$classname"));
    if (name == "NSArray" || name == "NSMutableArray")
        return true;
    if (!list.hasKey(description, "$classes"))
        return false;
    const std::vector<Reference> classes = list.array(list.value(description, "$classes"));
    return std::any_of(classes.begin(), classes.end(), [&](Reference candidate) {
        return list.text(candidate) == "NSArray";
    });
}

// Writing. Entries are numbered in the order in which they are appended.

QByteArray textEntry(const QByteArray& text)
{
    constexpr qsizetype shortest = 15;
    QByteArray entry;
    if (text.size() < shortest)
        entry.append(static_cast<char>(0x50 + text.size()));
    else
        entry.append("\x5F\x10").append(static_cast<char>(text.size()));
    return entry + text;
}

QByteArray containerEntry(int kind, std::initializer_list<int> references)
{
    const bool isDictionary = kind == 0xD0;
    const auto size = static_cast<int>(references.size()) / (isDictionary ? 2 : 1);
    QByteArray entry(1, static_cast<char>(kind + size));
    for (const int reference : references)
        entry.append(static_cast<char>(reference));
    return entry;
}

QByteArray dictionaryEntry(std::initializer_list<int> keysThenValues)
{
    return containerEntry(0xD0, keysThenValues);
}

QByteArray arrayEntry(std::initializer_list<int> references)
{
    return containerEntry(0xA0, references);
}

QByteArray uidEntry(int uid)
{
    QByteArray entry("\x80");
    return entry.append(static_cast<char>(uid));
}

QByteArray floatEntry(float value)
{
    const quint32 bits = qToBigEndian(std::bit_cast<quint32>(value));
    QByteArray entry(1, '\x22');
    return entry.append(reinterpret_cast<const char*>(&bits), sizeof bits);
}

/// Which number each component is: a component that repeats a 0 or 1 is the same object as the
/// earlier one, every other is an object of its own.
struct Numbering
{
    std::array<int, 3> numberOf = {};
    QList<float> numbers;
};

Numbering numbered(const ColorComponents& components)
{
    Numbering numbering;
    for (std::size_t index = 0; index < components.size(); ++index) {
        std::size_t same = 0;
        while (same < index && !isSharedNumber(components[same], components[index]))
            ++same;
        if (same < index) {
            numbering.numberOf[index] = numbering.numberOf[same];
        } else {
            numbering.numberOf[index] = static_cast<int>(numbering.numbers.size());
            numbering.numbers.append(components[index]);
        }
    }
    return numbering;
}

constexpr int firstNumberUid = 2;
constexpr int firstUidEntry = 16;
constexpr int firstNumberEntry = 20;

QByteArray objectsEntry(int numbers)
{
    QByteArray entry(1, static_cast<char>(0xA3 + numbers));
    entry.append(11).append(12);
    for (int entryNumber = firstNumberEntry; entryNumber <= firstNumberEntry + numbers;
         ++entryNumber)
        entry.append(static_cast<char>(entryNumber));
    return entry;
}

/// Each UID is an entry of its own, yet a repeated one is referred to by its first copy.
QByteArray elementsEntry(const std::array<int, 3>& numberOf)
{
    QByteArray entry("\xA3");
    for (const int number : numberOf) {
        const auto first = std::find(numberOf.begin(), numberOf.end(), number) - numberOf.begin();
        entry.append(static_cast<char>(firstUidEntry + first));
    }
    return entry;
}

QList<QByteArray> entriesOf(const Numbering& numbering)
{
    const auto numbers = static_cast<int>(numbering.numbers.size());
    const int description = firstNumberEntry + numbers;
    QList<QByteArray> entries = {
        dictionaryEntry({1, 2, 3, 4, 5, 6, 7, 10}),
        textEntry("$version"),
        textEntry("$archiver"),
        textEntry("$top"),
        textEntry("$objects"),
        QByteArray("\x12\x00\x01\x86\xA0", 5),
        textEntry("NSKeyedArchiver"),
        dictionaryEntry({8, 9}),
        textEntry("MY_ARRAY"),
        uidEntry(1),
        objectsEntry(numbers),
        textEntry("$null"),
        dictionaryEntry({13, 14, 15, 19}),
        textEntry("NS.objects"),
        textEntry("$class"),
        elementsEntry(numbering.numberOf),
    };
    for (const int number : numbering.numberOf)
        entries.append(uidEntry(firstNumberUid + number));
    entries.append(uidEntry(firstNumberUid + numbers));
    for (const float number : numbering.numbers)
        entries.append(floatEntry(number));
    entries.append(
        dictionaryEntry({description + 1, description + 2, description + 3, description + 4})
    );
    entries.append(textEntry("$classname"));
    entries.append(textEntry("$classes"));
    entries.append(textEntry("NSArray"));
    entries.append(arrayEntry({description + 3, description + 5}));
    entries.append(textEntry("NSObject"));
    return entries;
}

void appendNumber(QByteArray& archive, qsizetype value)
{
    const quint64 bits = qToBigEndian(static_cast<quint64>(value));
    archive.append(reinterpret_cast<const char*>(&bits), sizeof bits);
}

} // namespace

QByteArray keyedArchiveOf(const ColorComponents& components)
{
    const QList<QByteArray> entries = entriesOf(numbered(components));
    QByteArray archive("bplist00");
    QByteArray offsets;
    for (const QByteArray& entry : entries) {
        offsets.append(static_cast<char>(archive.size()));
        archive.append(entry);
    }
    const qsizetype table = archive.size();
    archive.append(offsets);
    archive.append(QByteArray(6, '\0')).append("\x01\x01");
    appendNumber(archive, entries.size());
    appendNumber(archive, 0);
    appendNumber(archive, table);
    return archive;
}

ColorComponents componentsOfKeyedArchive(QByteArrayView archive)
{
    const BinaryPropertyList list(archive);
    (void)list.text(list.value(list.top(), "$archiver"));
    const std::vector<Reference> objects = list.array(list.value(list.top(), "$objects"));
    const Reference top = list.value(list.top(), "$top");
    const Reference array = objectOf(list, objects, list.value(top, "MY_ARRAY"));
    refuseUnless(isArrayClass(list, objectOf(list, objects, list.value(array, "$class"))));

    const std::vector<Reference> elements = list.array(list.value(array, "NS.objects"));
    ColorComponents components = {};
    refuseUnless(elements.size() == components.size());
    for (std::size_t index = 0; index < components.size(); ++index)
        components[index]
            = static_cast<float>(list.number(objectOf(list, objects, elements[index])));
    return components;
}

bool isKeyedArchive(QByteArrayView data) { return data.startsWith("bplist0"); }

} // namespace brenvaldo::platform::archives
