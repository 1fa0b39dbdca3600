// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>

namespace brenvaldo::imaging {

using platform::graphics::Image;

namespace {

/// The pictures of the faces as a chain whose last link is the last face.
class FaceChain
{
public:
    FaceChain(const SourceAndBase& photo, const OutputTail& tail)
        : m_photo(photo)
        , m_blank(outputPicture(std::nullopt, photo, tail))
    {
    }

    void append(const std::optional<Image>& face)
    {
        PictureToSave picture = m_blank;
        picture.destination = DVImageHandling::faceBase(m_photo.destinationBase, ++m_count);
        picture.image = face;
        picture.before = m_last;
        m_last = std::make_shared<const PictureToSave>(std::move(picture));
    }

    [[nodiscard]] Outcome outcome() const
    {
        return m_last ? Outcome(*m_last) : Outcome(WordOfPictureBefore{});
    }

private:
    const SourceAndBase& m_photo;
    PictureToSave m_blank; ///< all that the faces share
    std::shared_ptr<const PictureToSave> m_last;
    int m_count = 0;
};

/// Several parts are taken of the stored pixels, so they are decoded once for all.
std::optional<Image> storedOnce(const QString& path)
{
    using platform::codecs::ImageSource;
    const auto source = ImageSource::open(path);
    return source ? source->image({.access = ImageSource::Access::Random}) : std::nullopt;
}

} // namespace

QString DVImageHandling::faceBase(const QString& destinationBase, int number)
{
    const QString name = u"f%1_"_s.arg(number) + platform::lastPathComponent(destinationBase);
    return platform::deletingLastPathComponent(destinationBase) + u'/' + name;
}

Outcome DVImageHandling::hGetListOfFaces(
    const SourceAndBase& photo, FaceFinder findFaces, const OutputTail& tail
)
{
    const auto upright = hNSURLtoCIImage(QUrl::fromLocalFile(photo.source));
    const auto faces = upright ? findFaces(*upright) : std::vector<platform::graphics::PixelRect>();
    const auto stored = faces.empty() ? std::nullopt : storedOnce(photo.source);
    FaceChain chain(photo, tail);
    for (const auto& face : faces)
        chain.append(stored ? stored->croppedTo(face) : std::nullopt);
    return chain.outcome();
}

} // namespace brenvaldo::imaging
