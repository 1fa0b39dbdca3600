// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/stamp.h>
#include <platform/foundation/literals.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>
#include <views/preview/preview_renderer.h>

#include <gtest/gtest.h>

#include <QEventLoop>
#include <QSemaphore>
#include <QTest>
#include <QTimer>

using namespace brenvaldo;
using platform::drawing::Stamp;

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

    platform::graphics::Image photo()
    {
        const QString path = test::PhotoBuilder()
                                 .size(643, 427)
                                 .gradient()
                                 .format(test::PhotoFormat::Png)
                                 .write(folder.path(u"a.png"_s));
        return *test::openedPhoto(path).uprightImage(
            {.access = platform::codecs::ImageSource::Access::Random, .atLeast = {}}
        );
    }

    static Stamp stampAt(QPoint topLeft)
    {
        QImage layer(61, 37, QImage::Format_ARGB32_Premultiplied);
        layer.fill(QColor(255, 0, 0, 200));
        return {.layer = layer, .topLeft = topLeft, .repeat = Stamp::Repeat::Once};
    }

    static constexpr platform::graphics::PixelSize room{.width = 200, .height = 200};
    test::TemporaryFolder folder;
    views::PreviewRenderer renderer;
};

} // namespace

TEST_P(PreviewRenderer, DrawsAMarkedPhotoAsIfItWereRenderedWhole)
{
    const platform::graphics::Image plain = photo();
    const platform::graphics::Image marked = platform::drawing::stamped(plain, stampAt(GetParam()));

    const auto whole
        = rendered({.photo = {}, .overlay = marked, .room = room, .part = std::nullopt, .path = {}}
        );
    const auto onPhoto = rendered(
        {.photo = plain, .overlay = marked, .room = room, .part = std::nullopt, .path = {}}
    );

    ASSERT_FALSE(whole.overlay.isNull());
    EXPECT_TRUE(onPhoto.photo.isNull());
    EXPECT_EQ(test::largestDifference(onPhoto.overlay, whole.overlay), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Places,
    PreviewRenderer,
    testing::Values(
        QPoint(0, 0), QPoint(300, 200), QPoint(620, 410), QPoint(-30, 413), QPoint(900, 900)
    )
);

namespace {

/// A photo whose stamp waits to be made until it is let go.
class HeldStamp
{
public:
    explicit HeldStamp(const platform::graphics::Image& photo)
        : m_marked(platform::drawing::stamped(photo, [state = m_state] {
            state->begun.release();
            state->goOn.acquire();
            state->thread = QThread::currentThread();
            return Stamp();
        }))
    {
    }

    [[nodiscard]] const platform::graphics::Image& marked() const { return m_marked; }
    void waitUntilBegun() const { m_state->begun.acquire(); }
    [[nodiscard]] bool hasBegun() const { return m_state->begun.available() > 0; }
    void letGo() const { m_state->goOn.release(); }
    [[nodiscard]] const QThread* thread() const { return m_state->thread; }

private:
    struct State
    {
        QSemaphore begun;
        QSemaphore goOn;
        const QThread* thread = nullptr;
    };

    std::shared_ptr<State> m_state = std::make_shared<State>();
    platform::graphics::Image m_marked;
};

class BusyPreviewRenderer : public PreviewRenderer
{
protected:
    BusyPreviewRenderer()
    {
        QObject::connect(
            &renderer,
            &views::PreviewRenderer::rendered,
            &renderer,
            [this](const views::PreviewPicture& picture) { shown.append(picture); }
        );
    }

    void render(const platform::graphics::Image& overlay, const QString& path = u"a.png"_s)
    {
        renderer.render(
            {.photo = plain, .overlay = overlay, .room = room, .part = std::nullopt, .path = path}
        );
    }

    bool finishes()
    {
        return QTest::qWaitFor([this] { return !renderer.isBusy(); }, 60000);
    }

    const platform::graphics::Image plain = photo();
    QList<views::PreviewPicture> shown;
};

} // namespace

TEST_F(BusyPreviewRenderer, MakesTheMarkOutsideOfTheMainThread)
{
    const HeldStamp stamp(plain);
    render(stamp.marked());
    stamp.waitUntilBegun();

    bool wasAlive = false;
    QTimer::singleShot(0, &renderer, [&wasAlive] { wasAlive = true; });
    EXPECT_TRUE(QTest::qWaitFor([&wasAlive] { return wasAlive; }));
    EXPECT_TRUE(renderer.isBusy());

    stamp.letGo();
    EXPECT_TRUE(finishes());
    EXPECT_NE(stamp.thread(), QThread::currentThread());
    EXPECT_EQ(shown.size(), 1);
}

TEST_F(BusyPreviewRenderer, LeavesOutRequestsThatANewerOneReplaces)
{
    const HeldStamp first(plain);
    const HeldStamp replaced(plain);
    const HeldStamp last(plain);
    last.letGo();
    render(first.marked());
    first.waitUntilBegun();

    render(replaced.marked());
    render(last.marked());
    first.letGo();

    EXPECT_TRUE(finishes());
    EXPECT_FALSE(replaced.hasBegun());
    EXPECT_TRUE(last.hasBegun());
}

TEST_F(BusyPreviewRenderer, ShowsWhatIsFinishedWhileTheSamePhotoIsChangedOn)
{
    const HeldStamp first(plain);
    render(first.marked());
    first.waitUntilBegun();

    render(platform::drawing::stamped(plain, stampAt({300, 200})));
    first.letGo();

    EXPECT_TRUE(finishes());
    ASSERT_EQ(shown.size(), 2);
    EXPECT_GT(test::largestDifference(shown.at(0).overlay, shown.at(1).overlay), 0);
}

TEST_F(BusyPreviewRenderer, DropsAPictureOfThePhotoBefore)
{
    const HeldStamp first(plain);
    render(first.marked(), u"before.png"_s);
    first.waitUntilBegun();

    render(platform::drawing::stamped(plain, stampAt({300, 200})), u"now.png"_s);
    first.letGo();

    EXPECT_TRUE(finishes());
    ASSERT_EQ(shown.size(), 1);
    EXPECT_TRUE(shown.first().caption.startsWith(u"now.png"));
}

TEST_F(PreviewRenderer, DrawsAnotherPhotoAnew)
{
    QImage white(10, 10, QImage::Format_RGB32);
    white.fill(Qt::white);
    const auto request = [](const platform::graphics::Image& image) {
        return views::PreviewRequest{
            .photo = image, .overlay = {}, .room = room, .part = std::nullopt, .path = {}};
    };
    rendered(request(photo()));

    const auto second = rendered(request(platform::graphics::Image::fromQImage(white)));

    EXPECT_EQ(second.photo.size(), QSize(10, 10));
}
