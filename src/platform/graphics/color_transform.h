// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_node.h"
#include "profile_conversion.h"

#include <lcms2.h>

#include <memory>

/// \file
/// Colour transforms between profiles; used by this folder alone.

namespace brenvaldo::platform::graphics {

struct ProfileCloser
{
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, ProfileCloser>;

[[nodiscard]] cmsColorSpaceSignature signatureOf(ColorModel model);

/// Null when the bytes are no profile.
[[nodiscard]] Profile openProfile(const QByteArray& bytes);

/// What pixels of a model mean when they come without a profile.
[[nodiscard]] Profile assumedProfile(ColorModel model);

/// The profile of a picture, or the one that is assumed.
[[nodiscard]] Profile profileOf(const ImageNode& node);

/// One side of a colour conversion.
struct Side
{
    const Profile& profile;
    ColorModel model;
    VipsBandFormat format;
};

enum class BlackPoint { Kept, Compensated };

/// How colours that the target lacks are dealt with.
struct Rendering
{
    RenderingIntent intent = RenderingIntent::Relative;
    BlackPoint blackPoint = BlackPoint::Compensated;
};

/// `pixels` taken from one side to the other; the alpha is only brought to the other depth. Throws
/// `vips::VError` when the profiles don't go together.
[[nodiscard]] vips::VImage transformed(
    const vips::VImage& pixels,
    const Side& from,
    const Side& to,
    bool hasAlpha,
    const Rendering& rendering = {}
);

/// Tells whether a conversion can be made; a readable header alone doesn't mean it.
[[nodiscard]] bool isPossible(const Side& from, const Side& to);

} // namespace brenvaldo::platform::graphics
