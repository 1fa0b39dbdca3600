// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_samples.h"

#include <algorithm>

namespace brenvaldo::views {

namespace {

using platform::graphics::Image;
using platform::graphics::PixelRect;
using platform::graphics::PixelSize;

constexpr int sampleScale = 2;
constexpr PixelSize pixels
    = {PhotoSamples::size.width() * sampleScale, PhotoSamples::size.height() * sampleScale};

/// The middle of the photo with the proportions of a sample.
PixelRect middleOf(PixelSize photo)
{
    const int width = std::min(photo.width, photo.height * pixels.width / pixels.height);
    const int height = std::min(photo.height, photo.width * pixels.height / pixels.width);
    return {
        .x = (photo.width - width) / 2,
        .y = (photo.height - height) / 2,
        .width = std::max(1, width),
        .height = std::max(1, height)};
}

std::optional<Image> smallPhoto(const workspace::ListPicture& picture)
{
    constexpr int side = 2 * pixels.width; // an upright photo is cut down to half its height
    const auto drawn = workspace::drawnPicture(picture, side);
    const auto middle = drawn ? drawn->croppedTo(middleOf(drawn->pixelSize())) : std::nullopt;
    if (!middle)
        return std::nullopt;
    const QImage small = middle->scaledTo(pixels).toQImage();
    return small.isNull()
        ? std::nullopt
        : std::optional(Image::fromQImage(small.convertToFormat(QImage::Format_RGB32)));
}

bool isPhoto(const workspace::cCollectionViewItem* entry)
{
    return entry && entry->myPhoto.kind != workspace::ListPicture::Kind::Generic;
}

} // namespace

PhotoSamples::PhotoSamples(const workspace::PhotoList& photos, Render render, QObject* parent)
    : QObject(parent)
    , m_render(std::move(render))
    , m_photos(photos)
    , m_selection(photos.selectionChanged.connect([this] { takePhoto(); }))
    , m_entries(photos.entriesChanged.connect([this] { takePhoto(); }))
{
    m_worker.setMaxThreadCount(1);
    m_worker.setThreadPriority(QThread::LowPriority);
    takePhoto();
}

PhotoSamples::~PhotoSamples()
{
    m_waiting.clear();
    m_worker.waitForDone();
}

/// A change of the list may mean that the file is another one now.
void PhotoSamples::takePhoto()
{
    const workspace::cCollectionViewItem* entry = m_photos.selectedEntry();
    m_photo = isPhoto(entry) ? std::optional(entry->myPhoto) : std::nullopt;
    if (!m_photo)
        m_samples.clear();
    m_waiting.clear();
    ++m_round;
    Q_EMIT outdated();
}

QImage PhotoSamples::picture(int choice)
{
    const Sample sample = m_samples.value(choice);
    if (m_photo && sample.round != m_round && !m_waiting.contains(choice)) {
        m_waiting.append(choice);
        startNext();
    }
    return sample.picture;
}

void PhotoSamples::startNext()
{
    if (m_isWorking || m_waiting.isEmpty())
        return;
    m_isWorking = true;
    m_worker.start([this, choice = m_waiting.first(), photo = *m_photo, round = m_round] {
        const Sample sample = {.picture = made(choice, photo, round), .round = round};
        QMetaObject::invokeMethod(this, [this, choice, sample] { take(choice, sample); });
    });
}

QImage PhotoSamples::made(int choice, const workspace::ListPicture& photo, int round)
{
    if (m_base.round != round)
        m_base = {.round = round, .photo = smallPhoto(photo)};
    const auto sample = m_base.photo ? m_render(*m_base.photo, choice) : std::nullopt;
    return sample ? sample->toQImage() : QImage();
}

void PhotoSamples::take(int choice, const Sample& sample)
{
    m_isWorking = false;
    if (sample.round == m_round) {
        m_samples.insert(choice, sample);
        m_waiting.removeOne(choice);
        Q_EMIT arrived(choice);
    }
    startNext();
}

} // namespace brenvaldo::views
