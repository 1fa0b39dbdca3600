// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <libheif/heif.h>
#include <vips/vips8>

#include <memory>

namespace brenvaldo::platform::codecs {

template <auto Release>
struct HeifReleaser
{
    template <typename Object>
    void operator()(Object* object) const
    {
        Release(object);
    }
};

using HeifContext = std::unique_ptr<heif_context, HeifReleaser<heif_context_free>>;
using HeifHandle = std::unique_ptr<heif_image_handle, HeifReleaser<heif_image_handle_release>>;
using HeifImage = std::unique_ptr<heif_image, HeifReleaser<heif_image_release>>;
using HeifEncoder = std::unique_ptr<heif_encoder, HeifReleaser<heif_encoder_release>>;
using HeifEncodingOptions
    = std::unique_ptr<heif_encoding_options, HeifReleaser<heif_encoding_options_free>>;
using HeifDecodingOptions
    = std::unique_ptr<heif_decoding_options, HeifReleaser<heif_decoding_options_free>>;

/// Throws the library's message when a call went wrong.
inline void checkHeif(const heif_error& error)
{
    if (error.code != heif_error_Ok)
        throw vips::VError(error.message);
}

} // namespace brenvaldo::platform::codecs
