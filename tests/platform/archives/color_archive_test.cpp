// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_archive_samples.h"

#include "support/text_printing.h"

#include <platform/foundation/literals.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

using namespace brenvaldo;
using platform::archives::ColorComponents;
using test::ArchiveForm;
using test::ColorArchiveSample;
using test::DamagedColorArchive;

namespace {

QString archiveOf(const ColorComponents& components, ArchiveForm form)
{
    return form == ArchiveForm::Color ? platform::archives::colorArchive(components)
                                      : platform::archives::galleryColorArchive(components);
}

QByteArray bytesOf(const ColorArchiveSample& sample)
{
    return QByteArray::fromBase64(sample.base64);
}

QString textOf(const QByteArray& bytes) { return QString::fromLatin1(bytes.toBase64()); }

template <class Row>
std::string rowName(const testing::TestParamInfo<Row>& row)
{
    return row.param.name;
}

class ColorArchiveSamples : public testing::TestWithParam<ColorArchiveSample>
{
};

class DamagedColorArchives : public testing::TestWithParam<DamagedColorArchive>
{
};

} // namespace

TEST_P(ColorArchiveSamples, IsReadExactly)
{
    const auto found = platform::archives::colorFromArchive(QString::fromLatin1(GetParam().base64));

    ASSERT_TRUE(found);
    EXPECT_EQ(*found, GetParam().components);
}

TEST_P(ColorArchiveSamples, IsWrittenToTheByte)
{
    const ColorArchiveSample& sample = GetParam();
    const bool same
        = archiveOf(sample.components, sample.form) == QString::fromLatin1(sample.base64);

    EXPECT_EQ(same, sample.use == test::ArchiveUse::WrittenAndRead);
}

TEST_P(ColorArchiveSamples, IsRefusedWhenItsEndIsMissing)
{
    const QByteArray whole = bytesOf(GetParam());

    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(platform::archives::colorFromArchive(textOf(whole.first(size)))) << size;
}

TEST_P(ColorArchiveSamples, NeverBreaksTheReaderWhenAByteIsDamaged)
{
    const QByteArray whole = bytesOf(GetParam());
    std::mt19937 random(42);
    std::uniform_int_distribution<int> anyByte(0, 255);

    for (qsizetype position = 0; position < whole.size(); ++position) {
        for (int repeat = 0; repeat < 4; ++repeat) {
            QByteArray damaged = whole;
            damaged[position] = static_cast<char>(anyByte(random));
            const auto found = platform::archives::colorFromArchive(textOf(damaged));
            EXPECT_TRUE(!found || std::isfinite(found->front()));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, ColorArchiveSamples, testing::ValuesIn(test::colorArchiveSamples), rowName<ColorArchiveSample>);

TEST_P(DamagedColorArchives, AreRefused)
{
    EXPECT_FALSE(platform::archives::colorFromArchive(QString::fromLatin1(GetParam().base64)));
}

INSTANTIATE_TEST_SUITE_P(, DamagedColorArchives, testing::ValuesIn(test::damagedColorArchives), rowName<DamagedColorArchive>);

TEST(ColorArchive, SurvivesARoundTripForEveryMixOfEndsAndMiddle)
{
    constexpr float values[] = {0.0F, 0.5F, 1.0F};
    for (const float red : values) {
        for (const float green : values) {
            for (const float blue : values) {
                const ColorComponents color = {red, green, blue};
                EXPECT_EQ(
                    platform::archives::colorFromArchive(platform::archives::colorArchive(color)),
                    color
                );
                EXPECT_EQ(
                    platform::archives::colorFromArchive(
                        platform::archives::galleryColorArchive(color)
                    ),
                    color
                );
            }
        }
    }
}

TEST(ColorArchive, WritesNegativeZeroAndWhatIsNoNumberAsZero)
{
    const QString black = platform::archives::colorArchive({0.0F, 0.0F, 0.0F});
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();

    EXPECT_EQ(platform::archives::colorArchive({-0.0F, notANumber, infinite}), black);
}

TEST(ColorArchive, IsReadWhenWrappedAndWithoutPadding)
{
    QString text = platform::archives::colorArchive({0.0F, 0.0F, 0.0F});
    ASSERT_TRUE(text.endsWith(QLatin1Char('=')));
    text.chop(1);
    text.insert(64, u"\r\n"_s);

    EXPECT_EQ(platform::archives::colorFromArchive(text), ColorComponents({0.0F, 0.0F, 0.0F}));
}

TEST(ColorArchive, RefusesWhatIsNoArchive)
{
    EXPECT_FALSE(platform::archives::colorFromArchive(QString()));
    EXPECT_FALSE(platform::archives::colorFromArchive(u"FFAA00"_s));
    EXPECT_FALSE(platform::archives::colorFromArchive(u"not base64!"_s));
    EXPECT_FALSE(platform::archives::colorFromArchive(QString(20'000, QLatin1Char('A'))));
}

TEST(ColorArchive, ReadsStreamsOfTheOtherByteOrder)
{
    QByteArray stream = QByteArray::fromBase64(test::colorArchiveSamples[12].base64);
    stream.replace("streamtyped\x81\xe8\x03", "typedstream\x81\x03\xe8");
    for (const char* number : {"\xCD\xCC\x4C\x3E", "\x00\x00\x00\x3F", "\x00\x00\x40\x3F"}) {
        const QByteArray little(number, 4);
        QByteArray big = little;
        std::reverse(big.begin(), big.end());
        stream.replace(little, big);
    }

    EXPECT_EQ(
        platform::archives::colorFromArchive(textOf(stream)),
        test::colorArchiveSamples[12].components
    );
}
