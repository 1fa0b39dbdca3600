// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/psd_file.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

#include <cstdio>

// Somebody else may write a photo anew between its header and its pixels.

namespace brenvaldo {
namespace {

using namespace platform;
using namespace platform::graphics;
using namespace platform::codecs;
using namespace test;

QByteArray anymap(QSize size, char grey)
{
    const QByteArray header = QByteArrayLiteral("P6 ") + QByteArray::number(size.width()) + ' '
        + QByteArray::number(size.height()) + " 255\n";
    return header + QByteArray(qsizetype{3} * size.width() * size.height(), grey);
}

QByteArray layers(QSize size, char grey)
{
    const QByteArray channel(qsizetype{size.width()} * size.height(), grey);
    return psdFile({.size = size, .channels = {channel, channel, channel}});
}

template <PhotoFormat format>
QByteArray photo(QSize size, char grey)
{
    return PhotoBuilder()
        .size(size.width(), size.height())
        .solid({grey, grey, grey})
        .format(format)
        .bytes();
}

struct ChangingPhoto
{
    const char* name;
    QByteArray (*bytes)(QSize size, char grey);
    const char* faultOfRewriting; ///< "" when the whole file is in memory by then

    friend void PrintTo(const ChangingPhoto& row, std::ostream* out) { *out << row.name; }
};

class ChangingPhotoTest : public testing::TestWithParam<ChangingPhoto>
{
protected:
    static constexpr QSize large = {512, 384};
    static constexpr QSize small = {64, 64};
    static constexpr char light = 100;
    static constexpr char dark = 20;

    /// The large, light photo once it is opened.
    std::optional<Image> image()
    {
        const auto source = ImageSource::open(write(GetParam().bytes(large, light)));
        return source ? source->uprightImage() : std::nullopt;
    }

    QString write(const QByteArray& contents) { return m_folder.write(u"photo"_s, contents); }

    TemporaryFolder m_folder;
};

void expectLarge(const QImage& pixels)
{
    ASSERT_EQ(pixels.size(), QSize(512, 384));
    EXPECT_NEAR(qRed(pixels.pixel(0, 0)), 100, 2);
    EXPECT_NEAR(qRed(pixels.pixel(511, 383)), 100, 2);
}

TEST_P(ChangingPhotoTest, IsReadWholeWhileAnotherFileTakesItsPlace)
{
    const auto opened = image();
    ASSERT_TRUE(opened);
    const QString other = m_folder.write(u"other"_s, GetParam().bytes(small, dark));
    ASSERT_EQ(std::rename(qPrintable(other), qPrintable(m_folder.path(u"photo"_s))), 0);

    expectLarge(opened->toQImage());
}

TEST_P(ChangingPhotoTest, FailsOnceItIsWrittenAnewInPlace)
{
    const LogLines log;
    const auto opened = image();
    ASSERT_TRUE(opened);
    write(GetParam().bytes(small, dark));

    const QImage pixels = opened->toQImage();

    if (QByteArrayView(GetParam().faultOfRewriting).isEmpty())
        return expectLarge(pixels);
    EXPECT_TRUE(pixels.isNull());
    EXPECT_THAT(
        log.lines().join(u'\n').toStdString(), testing::HasSubstr(GetParam().faultOfRewriting)
    );
}

INSTANTIATE_TEST_SUITE_P(
    Types,
    ChangingPhotoTest,
    testing::Values(
        ChangingPhoto{"Jpeg", photo<PhotoFormat::Jpeg>, "the file has changed"},
        ChangingPhoto{"Png", photo<PhotoFormat::Png>, "Failed"},
        ChangingPhoto{"Tiff", photo<PhotoFormat::Tiff>, "Failed"},
        ChangingPhoto{"Gif", photo<PhotoFormat::Gif>, ""},
        ChangingPhoto{"Jpeg2000", photo<PhotoFormat::Jpeg2000>, "Failed"},
        ChangingPhoto{"Heic", photo<PhotoFormat::Heic>, "the file has changed"},
        ChangingPhoto{"Bitmap", photo<PhotoFormat::Bmp>, "the file has changed"},
        ChangingPhoto{"Anymap", anymap, "Failed"},
        ChangingPhoto{"Layers", layers, "another layout"}
    ),
    CaseName()
);

} // namespace
} // namespace brenvaldo
