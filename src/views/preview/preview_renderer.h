// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <memory>
#include <optional>

namespace brenvaldo::views {

/// What the preview is to show: a photo, a layer over it, or one of them alone.
struct PreviewRequest
{
    std::optional<platform::graphics::Image> photo;
    std::optional<platform::graphics::Image> overlay;
    platform::graphics::PixelSize room; ///< pixels of the screen
    /// Not set: each picture is fitted into `room`. Set: this part of it at one pixel a pixel.
    std::optional<platform::graphics::PixelRect> part;
    QString path; ///< file that the caption tells about; may be empty
    QString fileSize = {}; ///< as text; part of the caption
};

/// A rendered preview; null images stand for what is not there or can't be read. There is no photo
/// below an overlay that is the photo with its mark.
struct PreviewPicture
{
    QImage photo;
    QImage overlay;
    std::optional<platform::graphics::PixelRect> part;
    QString caption;
};

/// Renders previews in a worker thread, marks that are still to be drawn included. A request that
/// waits is replaced by a newer one, so that only the newest counts. What was begun is still shown
/// when the newer request is about the same photo: the preview goes along with a user who types on.
class PreviewRenderer : public QObject
{
    Q_OBJECT

public:
    explicit PreviewRenderer(QObject* parent = nullptr);
    ~PreviewRenderer() override;
    PreviewRenderer(const PreviewRenderer&) = delete;
    PreviewRenderer& operator=(const PreviewRenderer&) = delete;
    PreviewRenderer(PreviewRenderer&&) = delete;
    PreviewRenderer& operator=(PreviewRenderer&&) = delete;

    void render(const PreviewRequest& request);
    [[nodiscard]] bool isBusy() const { return m_running; }

Q_SIGNALS:
    void rendered(const brenvaldo::views::PreviewPicture& picture);

private:
    [[nodiscard]] PreviewPicture renderedPicture(const PreviewRequest& request);
    [[nodiscard]] QImage renderedPhoto(const PreviewRequest& request);
    void startNext();
    void take(const PreviewPicture& picture, const QString& path);

    std::optional<PreviewRequest> m_waiting;
    bool m_running = false;

    /// A photo as it was rendered last. The worker alone uses it.
    struct RenderedPhoto
    {
        std::shared_ptr<const platform::graphics::ImageNode> node;
        platform::graphics::PixelSize room;
        std::optional<platform::graphics::PixelRect> part;
        QImage picture;
    };
    RenderedPhoto m_lastPhoto;

    QThreadPool m_worker;
};

/// "name · 4608 × 3072 · 8 bit RGB · 2.90MB"; the name alone when the file can't be read.
[[nodiscard]] QString photoCaption(const QString& path, const QString& fileSize);

/// The largest size with the proportions of `size` that stands in `room`; never more than `size`.
[[nodiscard]] platform::graphics::PixelSize
fittedInto(platform::graphics::PixelSize size, platform::graphics::PixelSize room);

} // namespace brenvaldo::views
