// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/graphics/stamp.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>
#include <views/preview_renderer.h>

#include <gtest/gtest.h>

#include <QEventLoop>

using namespace brenvaldo;
using platform::Stamp;

namespace {

class PreviewRenderer : public testing::TestWithParam<QPoint>
{
protected:
    views::PreviewPicture rendered(const views::PreviewRequest& request)
    {
        views::PreviewPicture result;
        QEventLoop loop;
        QObject::connect(
            &renderer,
            &views::PreviewRenderer::rendered,
            &loop,
            [&](const views::PreviewPicture& picture) {
                result = picture;
                loop.quit();
            }
        );
        renderer.render(request);
        loop.exec();
        return result;
    }

    platform::Image photo()
    {
        const QString path = test::PhotoBuilder()
                                 .size(643, 427)
                                 .gradient()
                                 .format(test::PhotoFormat::Png)
                                 .write(folder.path(u"a.png"_qs));
        return *test::openedPhoto(path).uprightImage(
            {.access = platform::ImageSource::Access::Random, .atLeast = {}}
        );
    }

    static Stamp stampAt(QPoint topLeft)
    {
        QImage layer(61, 37, QImage::Format_ARGB32_Premultiplied);
        layer.fill(QColor(255, 0, 0, 200));
        return {.layer = layer, .topLeft = topLeft, .repeat = Stamp::Repeat::Once};
    }

    static constexpr platform::PixelSize room{.width = 200, .height = 200};
    test::TemporaryFolder folder;
    views::PreviewRenderer renderer;
};

} // namespace

TEST_P(PreviewRenderer, DrawsAMarkedPhotoAsIfItWereRenderedWhole)
{
    const platform::Image plain = photo();
    const platform::Image marked = platform::stamped(plain, stampAt(GetParam()));

    const auto whole
        = rendered({.photo = {}, .overlay = marked, .room = room, .part = std::nullopt, .path = {}}
        );
    const auto onPhoto = rendered(
        {.photo = plain, .overlay = marked, .room = room, .part = std::nullopt, .path = {}}
    );

    ASSERT_FALSE(whole.overlay.isNull());
    EXPECT_EQ(test::largestDifference(onPhoto.overlay, whole.overlay), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Places,
    PreviewRenderer,
    testing::Values(
        QPoint(0, 0), QPoint(300, 200), QPoint(620, 410), QPoint(-30, 413), QPoint(900, 900)
    )
);

TEST_F(PreviewRenderer, DrawsAnotherPhotoAnew)
{
    QImage white(10, 10, QImage::Format_RGB32);
    white.fill(Qt::white);
    const auto request = [](const platform::Image& image) {
        return views::PreviewRequest{
            .photo = image, .overlay = {}, .room = room, .part = std::nullopt, .path = {}};
    };
    rendered(request(photo()));

    const auto second = rendered(request(platform::Image::fromQImage(white)));

    EXPECT_EQ(second.photo.size(), QSize(10, 10));
}
