// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QString>

#include <memory>
#include <optional>

namespace brenvaldo::platform::codecs {

/// Facts about image 0 of a file, read from its header alone.
struct ImageHeader
{
    graphics::PixelSize storedSize; ///< pixels as stored; for HEIC before the file's own rotation
    graphics::PixelSize uprightSize; ///< as the photo shows, with the orientation applied
    int orientation = 1; ///< 1 to 8; invalid values of a file read as 1
    QString typeIdentifier; ///< by contents
    int bitsPerComponent = 8;
    graphics::ColorModel colorModel = graphics::ColorModel::Rgb;
    bool hasAlpha = false;
    double dotsPerInch = 72;
};

enum class SourceAccess {
    OnePass, ///< streamed from top to bottom; each picture can be evaluated once
    Random ///< decoded to memory when first needed
};

struct SourceRequest
{
    SourceAccess access = SourceAccess::OnePass;
    /// The decoder may halve the picture as long as it stays at least this large; not set: full
    /// size.
    std::optional<graphics::PixelSize> atLeast = {};
};

/// Opens the photos of a file without decoding them.
///
/// Files that are empty, of no image type, or of an absurd size (more than 2^30 pixels, or 2^28 in
/// a progressive JPEG) do not open. Damage further inside shows when the pixels are evaluated:
/// writing or copying then fails, no grey half photo comes out. The contents decide the type, not
/// the name.
class ImageSource
{
public:
    /// Nothing when the file can't be read as an image.
    [[nodiscard]] static std::optional<ImageSource> open(const QString& path);

    [[nodiscard]] const QString& path() const;
    [[nodiscard]] const ImageHeader& header() const;

    using Access = SourceAccess;
    using Request = SourceRequest;

    /// The stored pixels; the orientation is not applied.
    [[nodiscard]] std::optional<graphics::Image> image(const Request& request = {}) const;

    /// The upright pixels; the orientation is applied.
    [[nodiscard]] std::optional<graphics::Image> uprightImage(const Request& request = {}) const;

private:
    struct State;
    explicit ImageSource(std::shared_ptr<const State> state);

    std::shared_ptr<const State> m_state;
};

/// The small upright preview that a camera has put into the file, at once; null when there is none.
[[nodiscard]] QImage embeddedThumbnail(const QString& path);

} // namespace brenvaldo::platform::codecs
