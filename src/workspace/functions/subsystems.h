// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::files {
class cToolBox;
}
namespace brenvaldo::gallery {
class cResponsiveDesign;
}
namespace brenvaldo::imaging {
class DVImageHandling;
}
namespace brenvaldo::metadata {
class mMeta;
}
namespace brenvaldo::panels {
class Panels;
}
namespace brenvaldo::services {
class cPhotosLink;
}
namespace brenvaldo::watermark {
class DVWatermark;
}

namespace brenvaldo::workspace {

class PreviewPhotos;

/// The objects that functions work with; they live as long as the program.
struct Subsystems
{
    panels::Panels& panels;
    imaging::DVImageHandling& imageHandling;
    watermark::DVWatermark& watermark;
    gallery::cResponsiveDesign& gallery;
    PreviewPhotos& previewPhotos;
    const files::cToolBox& toolBox;
    metadata::mMeta& meta;
    services::cPhotosLink& photosLink;
};

} // namespace brenvaldo::workspace
