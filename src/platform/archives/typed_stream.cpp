// SPDX-License-Identifier: GPL-3.0-or-later
#include "typed_stream.h"

#include "archive_reader.h"

#include <QtEndian>

#include <bit>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace brenvaldo::platform::archives {

using containers::ByteOrder;

namespace {

using namespace std::string_view_literals;

// Head bytes of items; every other byte stands for a small number or a reference.
constexpr std::uint8_t twoByteInteger = 0x81;
constexpr std::uint8_t fourByteInteger = 0x82;
constexpr std::uint8_t realNumber = 0x83;
constexpr std::uint8_t newItem = 0x84;
constexpr std::uint8_t nilItem = 0x85;
constexpr std::uint8_t endOfObject = 0x86;
constexpr std::uint8_t eightByteInteger = 0x87;
constexpr std::uint8_t lastReservedHead = 0x91;

constexpr int firstReference = 110;
constexpr std::uint64_t longestString = 64;
constexpr int deepestClassChain = 8;
constexpr std::size_t mostTableEntries = 256;

constexpr auto littleEndianSignature = "\x04\x0bstreamtyped"sv;
constexpr auto bigEndianSignature = "\x04\x0btypedstream"sv;

/// What an entry of the object table is; `monostate` while it is being read.
struct ClassEntry
{
    std::string name;
};
struct TextEntry
{
    std::string text;
};
struct NumberEntry
{
    float value;
};
using Entry = std::variant<std::monostate, ClassEntry, TextEntry, NumberEntry>;

/// Reads the stream's grammar. Two tables are numbered while reading: strings and type codes in
/// one, objects, classes and C strings in the other, each entry at the moment its item begins.
class TypedStreamReader
{
public:
    TypedStreamReader(QByteArrayView body, ByteOrder order)
        : m_reader(body)
        , m_order(order)
    {
    }

    [[nodiscard]] ColorComponents colorArray();

private:
    [[nodiscard]] std::int64_t integer() { return integer(m_reader.byte()); }
    [[nodiscard]] std::int64_t integer(std::uint8_t head);
    [[nodiscard]] std::string sharedString();
    [[nodiscard]] std::string className(int depth = 0);
    [[nodiscard]] std::string cString();
    [[nodiscard]] float numberObject();
    [[nodiscard]] double value(char type);
    [[nodiscard]] double real(char type);

    void expectType(std::string_view type) { refuseUnless(sharedString() == type); }
    void expectEndOfObject() { refuseUnless(m_reader.byte() == endOfObject); }

    [[nodiscard]] std::size_t beginEntry();
    template <class Kind>
    [[nodiscard]] const Kind& entryAt(std::uint8_t head);

    ArchiveReader m_reader;
    ByteOrder m_order;
    std::vector<std::string> m_strings;
    std::vector<Entry> m_entries;
};

std::int64_t TypedStreamReader::integer(std::uint8_t head)
{
    switch (head) {
    case twoByteInteger:
        return static_cast<std::int16_t>(m_reader.number(2, m_order));
    case fourByteInteger:
        return static_cast<std::int32_t>(m_reader.number(4, m_order));
    case eightByteInteger:
        return static_cast<std::int64_t>(m_reader.number(8, m_order));
    default:
        refuseUnless(head < 0x80 || head > lastReservedHead);
        return static_cast<std::int8_t>(head);
    }
}

std::string TypedStreamReader::sharedString()
{
    const std::uint8_t head = m_reader.byte();
    if (head != newItem) {
        const std::int64_t reference = integer(head) + firstReference;
        refuseUnless(reference >= 0 && reference < std::ssize(m_strings));
        return m_strings[static_cast<std::size_t>(reference)];
    }
    const auto length = static_cast<std::uint64_t>(integer());
    refuseUnless(length <= longestString && m_strings.size() < mostTableEntries);
    return m_strings.emplace_back(m_reader.text(length));
}

std::size_t TypedStreamReader::beginEntry()
{
    refuseUnless(m_entries.size() < mostTableEntries);
    m_entries.emplace_back();
    return m_entries.size() - 1;
}

template <class Kind>
const Kind& TypedStreamReader::entryAt(std::uint8_t head)
{
    const std::int64_t reference = integer(head) + firstReference;
    refuseUnless(reference >= 0 && reference < std::ssize(m_entries));
    const Kind* entry = std::get_if<Kind>(&m_entries[static_cast<std::size_t>(reference)]);
    refuseUnless(entry != nullptr);
    return *entry;
}

std::string TypedStreamReader::className(int depth)
{
    refuseUnless(depth < deepestClassChain);
    const std::uint8_t head = m_reader.byte();
    if (head == nilItem)
        return {};
    if (head != newItem)
        return entryAt<ClassEntry>(head).name;
    const std::size_t index = beginEntry();
    const std::string name = sharedString();
    (void)integer(); // the version of the class
    (void)className(depth + 1); // its superclass
    m_entries[index] = ClassEntry{name};
    return name;
}

std::string TypedStreamReader::cString()
{
    const std::uint8_t head = m_reader.byte();
    if (head != newItem)
        return entryAt<TextEntry>(head).text;
    const std::size_t index = beginEntry();
    const std::string text = sharedString();
    m_entries[index] = TextEntry{text};
    return text;
}

double TypedStreamReader::real(char type)
{
    const std::uint8_t head = m_reader.byte();
    if (head != realNumber)
        return static_cast<double>(integer(head));
    if (type == 'f')
        return std::bit_cast<float>(static_cast<std::uint32_t>(m_reader.number(4, m_order)));
    return std::bit_cast<double>(m_reader.number(8, m_order));
}

double TypedStreamReader::value(char type)
{
    switch (type) {
    case 'f':
    case 'd':
        return real(type);
    case 'c':
        return static_cast<std::int8_t>(m_reader.byte());
    case 'C':
    case 'B':
        return m_reader.byte();
    default:
        refuseUnless("iIsSlLqQ"sv.find(type) != std::string_view::npos);
        return static_cast<double>(integer());
    }
}

float TypedStreamReader::numberObject()
{
    const std::uint8_t head = m_reader.byte();
    if (head != newItem)
        return entryAt<NumberEntry>(head).value;
    const std::size_t index = beginEntry();
    refuseUnless(className() == "NSNumber"sv);
    expectType("*"sv);
    const std::string type = cString();
    refuseUnless(type.size() == 1);
    expectType(type);
    const auto number = static_cast<float>(value(type.front()));
    expectEndOfObject();
    m_entries[index] = NumberEntry{number};
    return number;
}

ColorComponents TypedStreamReader::colorArray()
{
    (void)integer(); // the system version, which has no influence
    expectType("@"sv);
    refuseUnless(m_reader.byte() == newItem);
    (void)beginEntry();
    const std::string array = className();
    refuseUnless(array == "NSArray"sv || array == "NSMutableArray"sv);
    const std::string countType = sharedString();
    refuseUnless(countType.size() == 1 && "iIlLqQ"sv.find(countType) != std::string_view::npos);
    ColorComponents components = {};
    refuseUnless(integer() == std::ssize(components));
    for (float& component : components) {
        expectType("@"sv);
        component = numberObject();
    }
    expectEndOfObject();
    return components;
}

/// Everything up to the value of red: the header, the array with its class and count, and the head
/// of the first number.
constexpr auto fixedStart = "\x04\x0bstreamtyped\x81\xe8\x03"
                            "\x84\x01@"
                            "\x84\x84\x84\x07NSArray\x00\x84\x84\x08NSObject\x00\x85"
                            "\x84\x01i\x03"
                            "\x92\x84\x84\x84\x08NSNumber\x00\x84\x84\x07NSValue\x00\x94"
                            "\x84\x01*\x84\x84\x01"
                            "f\x99"sv;
constexpr auto startOfFurtherNumber = "\x92\x84\x96\x98\x98\x99"sv;
constexpr auto redAgain = "\x92\x95"sv;
constexpr auto greenAgain = "\x92\x99"sv;

void append(QByteArray& stream, std::string_view bytes)
{
    stream.append(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// Numbers with integral values are written as integers.
void appendValue(QByteArray& stream, float value)
{
    if (value == 0.0F || value == 1.0F) {
        stream.append(static_cast<char>(value));
    } else {
        const quint32 bits = qToLittleEndian(std::bit_cast<quint32>(value));
        stream.append(static_cast<char>(realNumber));
        stream.append(reinterpret_cast<const char*>(&bits), sizeof bits);
    }
    stream.append(static_cast<char>(endOfObject));
}

void appendFurtherNumber(QByteArray& stream, float value)
{
    append(stream, startOfFurtherNumber);
    appendValue(stream, value);
}

} // namespace

bool isSharedNumber(float left, float right)
{
    return left == right && (left == 0.0F || left == 1.0F);
}

QByteArray typedStreamOf(const ColorComponents& components)
{
    const auto& [red, green, blue] = components;
    QByteArray stream;
    append(stream, fixedStart);
    appendValue(stream, red);
    if (isSharedNumber(red, green))
        append(stream, redAgain);
    else
        appendFurtherNumber(stream, green);
    if (isSharedNumber(red, blue))
        append(stream, redAgain);
    else if (isSharedNumber(green, blue))
        append(stream, greenAgain);
    else
        appendFurtherNumber(stream, blue);
    stream.append(static_cast<char>(endOfObject));
    return stream;
}

ColorComponents componentsOfTypedStream(QByteArrayView stream)
{
    refuseUnless(isTypedStream(stream));
    const bool littleEndian = stream.startsWith(
        QByteArrayView(littleEndianSignature.data(), littleEndianSignature.size())
    );
    const auto body = stream.sliced(littleEndianSignature.size());
    return TypedStreamReader(body, littleEndian ? ByteOrder::Little : ByteOrder::Big).colorArray();
}

bool isTypedStream(QByteArrayView data)
{
    return data.startsWith(
               QByteArrayView(littleEndianSignature.data(), littleEndianSignature.size())
           )
        || data.startsWith(QByteArrayView(bigEndianSignature.data(), bigEndianSignature.size()));
}

} // namespace brenvaldo::platform::archives
