// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>
#include <workspace/list/photo_list.h>

#include <QHash>
#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>

namespace brenvaldo::views {

/// Small pictures of what each of several choices would make of the selected photo. They are made
/// in a worker thread, one after the other, when they are asked for; nothing here waits.
///
/// The pictures of the photo before are shown until those of the new one are there.
class PhotoSamples : public QObject
{
    Q_OBJECT

public:
    /// What a choice makes of a small photo; called in the worker thread.
    using Render = std::function<std::optional<platform::graphics::Image>(
        const platform::graphics::Image& photo, int choice
    )>;

    PhotoSamples(const workspace::PhotoList& photos, Render render, QObject* parent = nullptr);
    ~PhotoSamples() override;
    PhotoSamples(const PhotoSamples&) = delete;
    PhotoSamples& operator=(const PhotoSamples&) = delete;
    PhotoSamples(PhotoSamples&&) = delete;
    PhotoSamples& operator=(PhotoSamples&&) = delete;

    /// Room of a picture in points; it is made at twice as many pixels, for dense screens.
    static constexpr QSize size{104, 69};

    /// The newest picture there is; null at first, and without a photo. Asking starts the making.
    [[nodiscard]] QImage picture(int choice);

Q_SIGNALS:
    /// A newer picture can be had for `choice`.
    void arrived(int choice);
    /// Every picture is to be asked for anew.
    void outdated();

private:
    struct Sample
    {
        QImage picture;
        int round = 0; ///< of the photo that it was made of
    };

    /// The small photo that the worker has made the last pictures of. The worker alone uses it.
    struct Base
    {
        int round = 0;
        std::optional<platform::graphics::Image> photo;
    };

    void takePhoto();
    void startNext();
    void take(int choice, const Sample& sample);
    [[nodiscard]] QImage made(int choice, const workspace::ListPicture& photo, int round);

    Render m_render;
    const workspace::PhotoList& m_photos;
    std::optional<workspace::ListPicture> m_photo;
    int m_round = 0; ///< counts the photos that have been selected
    QHash<int, Sample> m_samples;
    QList<int> m_waiting;
    bool m_isWorking = false;
    Base m_base;
    platform::Subscription m_selection;
    platform::Subscription m_entries;
    QThreadPool m_worker;
};

} // namespace brenvaldo::views
